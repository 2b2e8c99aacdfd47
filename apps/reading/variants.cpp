#include "reading/variants.h"

#include <algorithm>

#include "text/text.h"

namespace quorvel::host {
namespace {

constexpr std::size_t most_variants = 12;

class Merger {
  public:
    explicit Merger(const Alternatives& alternatives) : alternatives_(alternatives) {}

    // Moves what is laid over, so that every value still knows its line.
    void merge(toml::table& base, toml::table&& over) const {
        for (auto&& [key, value] : over) {
            toml::node* const old = base.get(key.str());
            const bool away =
                old && !old->is_boolean() && value.is_boolean() && !*value.value<bool>();
            if (away) {
                base.erase(key.str());
            } else if (old && old->is_table() && value.is_table()) {
                merge(*old->as_table(), std::move(*value.as_table()));
            } else if (old && has_names(*old) && has_names(value)) {
                merge(*old->as_array(), std::move(*value.as_array()));
            } else {
                make_room(base, key.str());
                std::move(value).visit([&base, &at = key](auto&& node) {
                    base.insert_or_assign(at, std::move(node));
                });
            }
        }
    }

  private:
    static const std::string* name_of(const toml::node& node) {
        const auto* table = node.as_table();
        const auto* name = table ? table->get_as<std::string>("name") : nullptr;
        return name ? &name->get() : nullptr;
    }

    static bool has_names(const toml::node& node) {
        const auto* list = node.as_array();
        return list && std::ranges::all_of(*list, [](const toml::node& entry) {
                   return name_of(entry) != nullptr;
               });
    }

    void merge(toml::array& base, toml::array&& over) const {
        for (toml::node& entry : over) {
            const std::string name = *name_of(entry);
            const auto same = std::ranges::find_if(
                base, [&](const toml::node& old) { return *name_of(old) == name; });
            if (same != base.end())
                merge(*same->as_table(), std::move(*entry.as_table()));
            else
                base.push_back(std::move(*entry.as_table()));
        }
    }

    void make_room(toml::table& base, std::string_view key) const {
        for (const auto& keys : alternatives_) {
            if (std::ranges::find(keys, key) == keys.end()) continue;
            for (const std::string_view other : keys) base.erase(other);
        }
    }

    const Alternatives& alternatives_;
};

// Without the table of variants.
toml::table base_of(toml::table table) {
    table.erase("variant");
    return table;
}

}  // namespace

std::vector<Variant> read_variants(const std::string& path, const Alternatives& alternatives) {
    const std::string text = read_bytes(path), file = told_path(path);
    const InputFile whole(file, text);
    std::vector<Variant> variants;
    variants.push_back({"", std::make_unique<InputFile>(file, base_of(parsed(text, file)))});
    if (!whole.root().has("variant")) return variants;

    const Merger merger(alternatives);
    for (const InputTable& table : whole.root().tables("variant", 1, most_variants)) {
        const std::string name = table.text("name");
        if (std::ranges::count(variants, name, &Variant::name) > 0)
            throw table.error("name", "is that of another variant too");
        toml::table all = parsed(text, file);
        toml::table over =
            std::move(*all.get_as<toml::array>("variant")->get(variants.size() - 1)->as_table());
        over.erase("name");
        toml::table base = base_of(std::move(all));
        merger.merge(base, std::move(over));
        variants.push_back({name, std::make_unique<InputFile>(file, std::move(base))});
    }
    return variants;
}

}  // namespace quorvel::host
