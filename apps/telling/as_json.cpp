#include "telling/as_json.h"

#include <charconv>
#include <cmath>
#include <nlohmann/json.hpp>
#include <stdexcept>

#include "telling/value.h"
#include "text/text.h"

namespace quorvel::host {
namespace {

using Json = nlohmann::ordered_json;

template <class Number>
Json parsed(const std::string& digits) {
    Number number{};
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return number;
}

Json json_of(const Quantity& quantity, const Value& value) {
    constexpr double exact = 9007199254740992.0;  // up to here doubles are all whole numbers
    if (const auto* word = std::get_if<std::string>(&value)) return *word;
    const double number = std::get<double>(value);
    if (!std::isfinite(number)) return nullptr;
    const bool whole = quantity.decimals == 0 && std::fabs(number) < exact;
    const std::string text = digits(quantity, value);
    return whole ? parsed<std::int64_t>(text) : parsed<double>(text);
}

// Under a key of its own.
void put(Json& object, const std::string& key, Json value) {
    if (!object.emplace(key, std::move(value)).second)
        throw std::logic_error("two parts of an answer have the key " + key);
}

Json json_of(const Quantity& quantity) {
    Json json{{"name", quantity.name}, {"unit", quantity.unit}};
    if (!quantity.group.empty()) json["group"] = quantity.group;
    return json;
}

Json json_of(const Figure& figure) {
    Json json = json_of(figure.quantity);
    json["value"] = json_of(figure.quantity, figure.value);
    if (!figure.remark.empty()) json["remark"] = figure.remark;
    return json;
}

Json json_of(const DataTable& table) {
    Json columns = Json::object(), rows = Json::array();
    for (const Quantity& column : table.columns) put(columns, column.key, json_of(column));
    for (const auto& row : table.rows) {
        Json line = Json::object();
        for (std::size_t i = 0; i < row.size(); ++i)
            line[table.columns[i].key] = json_of(table.columns[i], row[i]);
        rows.push_back(std::move(line));
    }
    Json json{{"title", table.title}, {"columns", columns}, {"rows", rows}};
    if (!table.remarks.empty()) json["remarks"] = table.remarks;
    return json;
}

void add(Json& json, const Section& section) {
    for (const std::string& paragraph : section.paragraphs) json["text"].push_back(paragraph);
    for (const Figure& figure : section.figures)
        put(json["figures"], figure.quantity.key, json_of(figure));
    for (const DataTable& table : section.tables) put(json["tables"], table.key, json_of(table));
}

Json empty_part() {
    return {{"text", Json::array()}, {"figures", Json::object()}, {"tables", Json::object()}};
}

// Sections with a key are parts of their own.
Json json_of(const std::vector<Section>& sections) {
    Json json = empty_part();
    Json parts = Json::object();
    for (const Section& section : sections) {
        if (section.key.empty()) {
            add(json, section);
            continue;
        }
        if (!parts.contains(section.key)) {
            parts[section.key] = {{"title", section.title}};
            parts[section.key].update(empty_part());
        }
        add(parts[section.key], section);
    }
    json["parts"] = std::move(parts);
    return json;
}

Json json_of(const Origin& origin, const Answered& answered) {
    const Answer& answer = answered.answer;
    Json json{{"command", origin.command}, {"program", origin.program_version}};
    json["library"] = origin.library_version.empty() ? Json(nullptr) : Json(origin.library_version);
    json["input"] = answered.input.empty() ? Json(nullptr) : Json(told_path(answered.input));
    json["title"] = answer.title;
    json["subtitle"] = answer.subtitle;
    json.update(json_of(answer.sections));
    json["inputs"] = json_of(answer.inputs);
    json["method"] = answer.method;
    json["warnings"] = answer.warnings;
    json["wrong"] = answer.wrong;
    return json;
}

}  // namespace

std::string as_json(const Origin& origin, std::span<const Answered> answers) {
    Json json = Json::array();
    for (const Answered& answered : answers) json.push_back(json_of(origin, answered));
    if (json.size() == 1) json = Json(json[0]);
    return json.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}

}  // namespace quorvel::host
