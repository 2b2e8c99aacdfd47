#include "fabric/element_records.h"

#include "fabric/packing.h"

namespace quorvel::fabric {
namespace {

struct ElementType {
    int number;  // 0 to 9, its place in a set of classes
    int subtype;
};

// The limits hold for the code as it stands, before rounding; not a number is no code.
constexpr bool is_type_code(Real code) noexcept { return code >= 50.0f && code <= 999.0f; }

// Rounded before it is split: 149.6 is of class 1, subtype 50.
constexpr ElementType element_type(Real code) noexcept {
    // NOLINTNEXTLINE(bugprone-incorrect-roundings): this is the rounding that is meant
    const auto whole = static_cast<int>(code + 0.5f);
    return {whole / 100, whole % 100};
}

// Sets of classes
constexpr unsigned solid = 1u << 1, second_kind = 1u << 2, gap = 1u << 3, translucent = 1u << 4,
                   boundary = 1u << 5, end_marker = 1u << 6, any_class = ~0u;

// A property that is a field as it stands, for elements of these classes and subtypes.
struct FieldItem {
    Integer item;
    std::size_t field;
    unsigned classes;
    int first_subtype = 0, last_subtype = 99;

    constexpr bool applies_to(ElementType type) const noexcept {
        return (classes >> type.number & 1u) != 0 && type.subtype >= first_subtype &&
               type.subtype <= last_subtype;
    }
};

constexpr FieldItem field_items[] = {
    {1, 1, any_class},
    {2, 2, solid | gap | translucent},
    {3, 3, solid | translucent},
    {4, 4, solid | gap | translucent},
    {5, 5, solid | gap | translucent},
    {6, 6, solid | gap},
    {7, 7, gap},
    {11, 3, gap},
    {12, 6, second_kind | translucent | boundary},
    {21, 2, boundary, 1, 2},
    {22, 3, boundary, 1, 2},
    {23, 4, boundary, 1, 2},
    {61, 8, gap, 1, 1},
    {62, 8, gap, 2, 2},
};

constexpr Real field(ElementRecord record, std::size_t number) noexcept {
    return record[number - 1];
}

Real chosen(std::span<const Real> values, Integer index) noexcept {
    const auto i = static_cast<std::size_t>(index);
    return index >= 0 && i < values.size() ? values[i] : undefined;
}

// Deliberate: the complements are formed of undefined fractions too, 1 - 1e20 and not 1e20.
Real optical_property(Real packed, Integer index) noexcept {
    const auto [transmittance, front, back] = unpacked_fractions(packed);
    const Real values[] = {transmittance, front, back, 1.0f - transmittance - front,
                           1.0f - transmittance - back};
    return chosen(values, index);
}

Real face_property(Real packed, Integer index) noexcept {
    const auto [first, second, unused] = unpacked_fractions(packed);
    const Real values[] = {1.0f - first, 1.0f - second, first, second};
    return chosen(values, index);
}

// Gaps keep other data in the packed fields; classes without a meaning are not shut out.
Real packed_property(ElementRecord record, ElementType type, Integer item) noexcept {
    if (((gap | end_marker) >> type.number & 1u) != 0) return undefined;
    if (item < 40) return optical_property(field(record, 9), item - 31);
    if (item < 50) return optical_property(field(record, 7), item - 41);
    return face_property(field(record, 8), item - 52);
}

}  // namespace

Real element_property(ElementRecord record, Real end_code, Integer item) noexcept {
    const Real code = field(record, 1);
    if (!is_type_code(code)) return undefined;
    const ElementType type = element_type(code);
    if (item > 30 && item < 60) return packed_property(record, type, item);
    if (item == 71) return end_code == 601.0f ? 1.0f : undefined;
    if (item == 72) return end_code == 602.0f ? 1.0f : undefined;
    for (const FieldItem& row : field_items)
        if (row.item == item) return row.applies_to(type) ? field(record, row.field) : undefined;
    return undefined;
}

}  // namespace quorvel::fabric
