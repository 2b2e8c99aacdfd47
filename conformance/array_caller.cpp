#include "conformance/array_caller.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

#include "conformance/array_argument.h"
#include "conformance/canonical.h"

namespace quorvel::conformance {
namespace {

// One argument of all elements.
struct Column {
    const quorvel_argument* argument;
    int reference;  // among the arguments of the call by reference; -1: the value of a function
    Type type;
    std::size_t words;  // in an element
    std::vector<std::uint32_t> memory;

    Column(const Routine& routine, const quorvel_argument& array_argument, const Case& example)
        : argument(&array_argument), reference(reference_of(routine, array_argument)) {
        const auto i = static_cast<std::size_t>(reference);
        type = reference < 0 ? routine.result : routine.arguments[i].type;
        words = reference < 0 ? size_of(type) / 4 : example.arguments.words()[i].size();
    }

    std::uint32_t* element(std::size_t i) { return memory.data() + i * words; }
    std::uint32_t* in(Case& one) const {
        if (reference < 0) return one.result;
        return static_cast<std::uint32_t*>(
            one.arguments.addresses()[static_cast<std::size_t>(reference)]);
    }
    void take(Case& one) { memory.insert(memory.end(), in(one), in(one) + words); }

    // Whether arrays take it: counts have a range.
    bool takes(Case& one) const {
        if (argument->type != QUORVEL_INTEGER || words != 1) return true;
        const auto n = static_cast<std::int32_t>(*in(one));
        return n >= argument->lowest && n <= argument->highest;
    }
};

std::vector<Column> columns(const Routine& routine, const quorvel_argument* first, int count,
                            const Case& example) {
    std::vector<Column> all;
    for (int k = 0; k < count; ++k) all.emplace_back(routine, first[k], example);
    return all;
}

bool may_be_left(const Column& output, const std::uint32_t* element) {
    for (std::size_t j = 0; j < output.words; ++j)
        if (is_left(output.type, j, untouched, canonical(output.type, element, j))) return true;
    return false;
}

// What a call of `one` by reference would have left, in place of what arrays have for nothing.
void put_back(const Routine& routine, std::vector<Column>& outputs, std::size_t element,
              Case& one) {
    const bool doubtful =
        std::ranges::any_of(outputs, [&](Column& c) { return may_be_left(c, c.element(element)); });
    if (doubtful) call_by_reference(routine, {&one, 1});
    for (Column& c : outputs) {
        const std::uint32_t* const got = c.element(element);
        std::uint32_t* const to = c.in(one);
        for (std::size_t j = 0; j < c.words; ++j)
            if (!doubtful || !is_left(c.type, j, to[j], canonical(c.type, got, j))) to[j] = got[j];
    }
}

void call(const quorvel_routine& routine, std::size_t count, std::vector<Column>& inputs,
          std::vector<Column>& outputs) {
    std::vector<void*> at;
    std::vector<std::ptrdiff_t> stride;
    for (auto* arguments : {&inputs, &outputs})
        for (Column& c : *arguments) {
            at.push_back(c.memory.data());
            stride.push_back(static_cast<std::ptrdiff_t>(4 * c.words));
        }
    const std::int32_t status = quorvel_call(&routine, count, at.data(), stride.data());
    if (status == QUORVEL_OK) return;
    char text[200];
    quorvel_message(&routine, status, text, sizeof text);
    throw std::runtime_error(text);
}

}  // namespace

void call_by_arrays(const Routine& routine, std::span<Case> cases) {
    const quorvel_routine& array_routine = *quorvel_find_routine(routine.name);
    auto inputs = columns(routine, array_routine.arguments, array_routine.inputs, cases[0]);
    auto outputs = columns(routine, array_routine.arguments + array_routine.inputs,
                           array_routine.outputs, cases[0]);
    std::vector<Case*> elements;
    for (Case& one : cases) {
        if (!std::ranges::all_of(inputs, [&](const Column& c) { return c.takes(one); })) {
            call_by_reference(routine, {&one, 1});
            continue;
        }
        elements.push_back(&one);
        for (auto* arguments : {&inputs, &outputs})
            for (Column& c : *arguments) c.take(one);
    }
    call(array_routine, elements.size(), inputs, outputs);
    for (std::size_t i = 0; i < elements.size(); ++i) put_back(routine, outputs, i, *elements[i]);
}

}  // namespace quorvel::conformance
