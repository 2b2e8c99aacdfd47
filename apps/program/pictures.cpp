#include "program/pictures.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <set>

#include "reading/input.h"
#include "telling/output_file.h"
#include "text/text.h"

namespace quorvel::program {
namespace {

using host::Answered;
using host::Format;
using host::InputError;
using host::Picture;

constexpr std::pair<const char*, Format> endings[] = {
    {".svg", Format::svg}, {".pdf", Format::pdf}, {".png", Format::png}};

Format format_of(const std::string& file) {
    for (const auto& [ending, format] : endings)
        if (file.ends_with(ending)) return format;
    throw InputError(file + ": a picture's name must end in .svg, .pdf or .png");
}

std::vector<const Picture*> pictures_of(const host::Answer& answer) {
    std::vector<const Picture*> found;
    for (const host::Section& section : answer.sections)
        for (const Picture& picture : section.pictures) found.push_back(&picture);
    return found;
}

std::string stem_of(const std::string& input) {
    return input == "-" ? "input" : std::filesystem::path(input).stem().string();
}

// What users call a thing, as part of a file's name.
std::string file_part(std::string name) {
    const auto stays = [](unsigned char c) {
        return std::isalnum(c) || c == '_' || c == '.' || c >= 0x80;
    };
    std::ranges::replace_if(
        name, [&](char c) { return !stays(static_cast<unsigned char>(c)); }, '-');
    return name;
}

// Files beside one: day.svg and "shadow" are day-shadow.svg, or day-shadow-2.svg where that is
// taken.
class Names {
  public:
    std::string with(const std::string& file, const std::string& part) {
        const std::string ending = picture_ending(file);
        const std::string stem =
            file.substr(0, file.size() - ending.size()) + '-' + file_part(part);
        std::string name = stem + ending;
        for (int n = 2; !taken_.insert(name).second; ++n)
            name = stem + '-' + std::to_string(n) + ending;
        return name;
    }

  private:
    std::set<std::string> taken_;
};

}  // namespace

void write(const std::vector<File>& files) {
    std::vector<std::string> bytes;
    for (const File& file : files) bytes.push_back(file.bytes());
    for (std::size_t i = 0; i < files.size(); ++i) host::write_file(files[i].path, bytes[i]);
}

std::string picture_ending(const std::string& file) {
    const Format format = format_of(file);
    return std::ranges::find(endings, format, [](const auto& pair) { return pair.second; })->first;
}

std::vector<File> pictures(std::span<const Answered> answers,
                           const std::vector<std::string>& files) {
    std::vector<File> result;
    Names names;
    for (const std::string& file : files)
        for (const auto& [input, answer] : answers) {
            const auto found = pictures_of(answer);
            const std::string about = input.empty() ? "" : host::told_path(input) + ": ";
            if (found.empty())
                throw InputError(about + "there is no chart of this to draw into " + file);
            const std::string own = answers.size() > 1 ? names.with(file, stem_of(input)) : file;
            for (const Picture* picture : found)
                result.push_back(
                    {picture == found.front() ? own : names.with(own, picture->key),
                     [picture, format = format_of(file)] { return picture->chart.draw(format); }});
        }
    return result;
}

}  // namespace quorvel::program
