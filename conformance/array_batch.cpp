#include "conformance/array_batch.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "conformance/array_argument.h"
#include "conformance/canonical.h"
#include "quorvel/library.h"

namespace quorvel::conformance {
namespace {

constexpr unsigned char background = untouched & 0xff;

}  // namespace

ArrayBatch::ArrayBatch(const Routine& routine, std::size_t elements, const Oddness& oddness,
                       Random& random)
    : routine_(routine), array_routine_(quorvel_find_routine(routine.name)), elements_(elements) {
    describe(random);
    draw(oddness, random);
}

ArrayBatch::Column ArrayBatch::column(const quorvel_argument& argument, bool output,
                                      Random& random) const {
    Column c{&argument, reference_of(routine_, argument), Type::Real, 0, 0, {}, 0, {}};
    const ArgumentSet arguments(routine_);
    if (c.reference < 0) {
        c.type = routine_.result;
        c.bytes = size_of(c.type);
    } else {
        c.type = routine_.arguments[static_cast<std::size_t>(c.reference)].type;
        c.bytes = 4 * arguments.words()[static_cast<std::size_t>(c.reference)].size();
    }
    // Lists and records are read where they are, so that they are aligned as numbers are.
    const bool any_byte = array_routine_->in_place != 0;
    const std::size_t unit = any_byte ? 1 : size_of(c.type);
    const std::size_t gap = random.below(3) ? 0 : unit * static_cast<std::size_t>(random.below(9));
    const std::size_t row = c.bytes + gap;
    const bool repeated = !output && random.below(5) == 0, backwards = random.below(4) == 0;
    const std::size_t length = repeated ? c.bytes : row * elements_;
    const std::size_t before = 8 + unit * static_cast<std::size_t>(random.below(64));
    c.stride = repeated ? 0 : static_cast<std::ptrdiff_t>(row) * (backwards ? -1 : 1);
    c.first = before + (backwards && !repeated ? row * (elements_ - 1) : 0);
    c.memory.assign(before + length + 64, background);
    if (output) c.expected.resize(c.bytes * elements_);
    return c;
}

void ArrayBatch::describe(Random& random) {
    for (int k = 0; k < array_routine_->inputs; ++k)
        inputs_.push_back(column(array_routine_->arguments[k], false, random));
    for (int k = 0; k < array_routine_->outputs; ++k)
        outputs_.push_back(
            column(array_routine_->arguments[array_routine_->inputs + k], true, random));
}

// The array library refuses counts outside their range, which the routines take.
void ArrayBatch::keep_counts(ArgumentSet& arguments) {
    for (const Column& c : inputs_) {
        if (c.type != Type::Integer) continue;
        auto* const n = static_cast<std::int32_t*>(
            arguments.addresses()[static_cast<std::size_t>(c.reference)]);
        if (c.bytes == sizeof *n) *n = std::clamp(*n, c.argument->lowest, c.argument->highest);
    }
}

void ArrayBatch::draw(const Oddness& oddness, Random& random) {
    const bool exported = array_routine_->exported_name != nullptr;
    const Address function =
        exported ? reinterpret_cast<Address>(host::routine_address(routine_.name)) : nullptr;
    ArgumentSet arguments(routine_);
    for (std::size_t i = 0; i < elements_; ++i) {
        const double kind = random.unit();
        if (kind < oddness.any)
            arguments.draw_any(random);
        else
            arguments.draw_valid(random);
        if (kind > 1.0 - oddness.spoilt) arguments.spoil(random);
        keep_counts(arguments);
        for (Column& c : inputs_) {
            void* const given = arguments.addresses()[static_cast<std::size_t>(c.reference)];
            if (c.stride == 0 && i != 0)
                std::memcpy(given, c.element(0), c.bytes);
            else
                std::memcpy(c.element(i), given, c.bytes);
        }
        std::uint32_t result[2] = {};
        routine_.call(function, arguments.addresses(), result);
        for (Column& c : outputs_)
            std::memcpy(c.expected.data() + i * c.bytes,
                        c.reference < 0
                            ? static_cast<void*>(result)
                            : arguments.addresses()[static_cast<std::size_t>(c.reference)],
                        c.bytes);
    }
}

// Beyond what an element counts, its room is nobody's business.
std::size_t ArrayBatch::words_in(const Column& output, std::size_t element) {
    if (output.argument->counted_by < 0) return output.bytes / 4;
    Column& by = inputs_[static_cast<std::size_t>(output.argument->counted_by)];
    std::int32_t count = 0;
    std::memcpy(&count, by.element(element), sizeof count);
    const auto numbers = static_cast<std::size_t>(output.argument->numbers * count);
    return numbers * size_of(output.type) / 4;
}

std::string ArrayBatch::compared(Column& output) {
    std::vector<std::uint32_t> want(output.bytes / 4), got(output.bytes / 4);
    for (std::size_t i = 0; i < elements_; ++i) {
        std::memcpy(want.data(), output.expected.data() + i * output.bytes, output.bytes);
        std::memcpy(got.data(), output.element(i), output.bytes);
        std::memset(output.element(i), background, output.bytes);
        for (std::size_t j = 0; j < words_in(output, i); ++j) {
            const std::uint32_t w = canonical(output.type, want.data(), j),
                                g = canonical(output.type, got.data(), j);
            if (w == g || is_left(output.type, j, w, g)) continue;
            char text[200];
            std::snprintf(text, sizeof text, "%s of element %zu of %zu: word %zu is %08x, not %08x",
                          output.argument->name, i, elements_, j, got[j], want[j]);
            return text;
        }
    }
    const bool clean = std::all_of(output.memory.begin(), output.memory.end(),
                                   [](unsigned char byte) { return byte == background; });
    return clean ? "" : std::string(output.argument->name) + ": written beside the elements";
}

std::string ArrayBatch::difference() {
    std::vector<void*> at;
    std::vector<std::ptrdiff_t> stride;
    for (auto* columns : {&inputs_, &outputs_})
        for (Column& c : *columns) {
            at.push_back(c.element(0));
            stride.push_back(c.stride);
        }
    const std::int32_t status = quorvel_call(array_routine_, elements_, at.data(), stride.data());
    if (status != QUORVEL_OK) {
        char text[200];
        quorvel_message(array_routine_, status, text, sizeof text);
        return text;
    }
    for (Column& c : outputs_)
        if (const std::string found = compared(c); !found.empty()) return found;
    return "";
}

}  // namespace quorvel::conformance
