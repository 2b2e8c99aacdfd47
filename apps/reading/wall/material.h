// What a layer or a part of it is made of, in the input.
#pragma once

#include <initializer_list>
#include <string_view>

#include "calculation/wall/element.h"
#include "reading/library.h"

namespace quorvel::wall {

inline constexpr std::string_view hatchings[] = {"plain",  "masonry", "concrete", "insulation",
                                                 "timber", "plaster", "bitumen"};

// Properties that stand in a table of the input or, where it names a material, in that of the
// library.
class Properties {
  public:
    Properties(const host::InputTable& own, const host::Library& library);

    bool has(std::string_view key) const {
        return own_.has(key) || (material_ && material_->has(key));
    }
    bool gap() const;
    bool membrane() const;
    std::string name() const;  // its own, or the material's

    // The thickness in m; of a membrane it is not used. `more` are keys that the table may have
    // besides.
    Part part(double fraction, double thickness,
              std::initializer_list<std::string_view> more) const;

  private:
    const host::InputTable& holder(std::string_view key) const {
        return own_.has(key) ? own_ : *material_;
    }
    double number(std::string_view key, const host::Range& range) const;
    void expect(std::initializer_list<std::string_view> known,
                std::initializer_list<std::string_view> more) const;
    std::string_view vapour_key(std::initializer_list<std::string_view> keys) const;
    double diffusion_factor() const;
    Solid solid(double thickness) const;
    Gap gap_between() const;
    Membrane sheet() const;

    const host::InputTable& own_;
    std::optional<host::InputTable> material_;
};

}  // namespace quorvel::wall
