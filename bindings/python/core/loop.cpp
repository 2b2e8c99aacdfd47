#include "loop.h"

#include <algorithm>
#include <memory>
#include <new>

#include "column.h"
#include "floating_point.h"
#include "range.h"

namespace quorvel::python {
namespace {

// Of the largest operand in a block, where elements are gathered.
constexpr std::ptrdiff_t block_numbers = 512;

std::size_t size_of(Kind kind) noexcept {
    return kind == Kind::DoubleReal ? sizeof(double) : sizeof(float);
}

// One call of the inner loop.
class Run {
  public:
    Run(const LoopData& data, char** at, const Py_ssize_t* dimensions,
        const Py_ssize_t* steps) noexcept
        : target_(*data.target),
          wide_(data.inputs == Inputs::Wide),
          elements_(dimensions[0]),
          policy_(policy()) {
        const Py_ssize_t* core_step = steps + routine().count();
        for (int j = 0; j < routine().count(); ++j)
            columns_[j] = column(j, at[j], steps[j], dimensions + 1, core_step);
        for (std::size_t c = 0; c < target_.counts.size(); ++c)
            counts_[c] =
                converted<std::int32_t>(std::int64_t{dimensions[1 + target_.counts[c].dimension]});
    }

    void operator()() noexcept {
        const std::ptrdiff_t block = block_size();
        if (!find_room(block)) return fail([] { PyErr_NoMemory(); });
        for (std::ptrdiff_t first = 0; first < elements_ && going_on_; first += block)
            run_block(first, std::min(block, elements_ - first));
        if (going_on_ && outside_.elements > 0 && policy_ == Policy::Warn) fail_of_range();
    }

  private:
    const Routine& routine() const noexcept { return target_.routine; }
    const Operand& operand(int j) const noexcept { return routine().operands[j]; }
    bool is_input(int j) const noexcept { return j < routine().inputs; }

    // Takes the steps of its core dimensions from `core_step`.
    Column column(int j, char* at, Py_ssize_t step, const Py_ssize_t* extents,
                  const Py_ssize_t*& core_step) const noexcept {
        Column made{at, step};
        const Operand& shape = operand(j);
        const int last = 2 - shape.axis_count;
        for (int a = 0; a < shape.axis_count; ++a) {
            made.extent[last + a] = extents[target_.dimension[j][a]];
            made.stride[last + a] = *core_step++;
        }
        made.numbers = made.extent[0] * made.extent[1];
        const auto size = static_cast<std::ptrdiff_t>(size_of(shape.kind));
        const bool converted =
            is_input(j) ? wide_ && shape.kind != Kind::DoubleReal : shape.kind == Kind::Logical;
        const bool in_line =
            made.numbers == 1 || ((made.extent[1] == 1 || made.stride[1] == size) &&
                                  (made.extent[0] == 1 || made.stride[0] == size * made.extent[1]));
        made.direct = in_line && !converted;
        return made;
    }

    std::ptrdiff_t block_size() const noexcept {
        std::ptrdiff_t largest = 0;
        for (int j = 0; j < routine().count(); ++j)
            if (!columns_[j].direct) largest = std::max(largest, columns_[j].numbers);
        if (largest == 0 && policy_ == Policy::Ignore)
            return std::max<std::ptrdiff_t>(elements_, 1);
        return std::clamp<std::ptrdiff_t>(block_numbers / std::max<std::ptrdiff_t>(largest, 1), 1,
                                          std::max<std::ptrdiff_t>(elements_, 1));
    }

    bool find_room(std::ptrdiff_t block) noexcept {
        std::size_t size = policy_ == Policy::Ignore ? 0 : static_cast<std::size_t>(block);
        const auto bytes = [&](int j) {
            return columns_[j].direct
                       ? 0
                       : static_cast<std::size_t>(block * columns_[j].numbers) * sizeof(double);
        };
        for (int j = 0; j < routine().count(); ++j) size += bytes(j);
        if (size > sizeof few_) {
            many_.reset(new (std::nothrow) double[size / sizeof(double) + 1]);
            if (!many_) return false;
        }
        char* next = reinterpret_cast<char*>(many_ ? many_.get() : few_);
        for (int j = 0; j < routine().count(); ++j) room_[j] = next, next += bytes(j);
        marks_ = {reinterpret_cast<unsigned char*>(next),
                  policy_ == Policy::Ignore ? 0 : static_cast<std::size_t>(block)};
        return true;
    }

    void run_block(std::ptrdiff_t first, std::ptrdiff_t count) noexcept {
        std::array<Values, most_operands> values;
        for (int j = 0; j < routine().count(); ++j)
            values[j] = is_input(j) ? taken(j, first, count) : place(j, first);
        const std::span marks =
            marks_.first(std::min(marks_.size(), static_cast<std::size_t>(count)));
        if (policy_ != Policy::Ignore && !within_range(values, marks)) return fail_of_range();
        for (int j = routine().inputs; j < routine().count(); ++j)
            if (is_part_written(j)) fill(operand(j), values[j], count);
        if (const std::int32_t status = call(values, count); status != QUORVEL_OK)
            return fail(
                [&] { PyErr_SetString(PyExc_ValueError, message(target_, status).data()); });
        for (int j = routine().inputs; j < routine().count(); ++j) {
            if (policy_ == Policy::Nan) blank(operand(j), values[j], marks);
            if (!columns_[j].direct) give(j, first, count);
        }
    }

    Values place(int j, std::ptrdiff_t first) const noexcept {
        const Column& column = columns_[j];
        if (column.direct) return {column.at + first * column.step, column.step, column.numbers};
        return {room_[j], static_cast<Py_ssize_t>(size_of(operand(j).kind)) * column.numbers,
                column.numbers};
    }

    // An input as the array library takes it. What is repeated is gathered once.
    Values taken(int j, std::ptrdiff_t first, std::ptrdiff_t count) const noexcept {
        Values values = place(j, first);
        const Column& column = columns_[j];
        if (column.direct) return values;
        const bool repeated = column.step == 0;
        if (!repeated || first == 0) gather(j, first, repeated ? 1 : count);
        if (repeated) values.step = 0;
        return values;
    }

    void gather(int j, std::ptrdiff_t first, std::ptrdiff_t count) const noexcept {
        const Column& from = columns_[j];
        char* to = room_[j];
        const auto as = [&]<class From, class To>(From, To) {
            python::gather<From>(from, first, count, reinterpret_cast<To*>(to));
        };
        switch (operand(j).kind) {
            case Kind::Real:
                return wide_ ? as(0.0, 0.0f) : as(0.0f, 0.0f);
            case Kind::DoubleReal:
                return as(0.0, 0.0);
            default:
                return wide_ ? as(std::int64_t{}, std::int32_t{})
                             : as(std::int32_t{}, std::int32_t{});
        }
    }

    void give(int j, std::ptrdiff_t first, std::ptrdiff_t count) const noexcept {
        const Column& to = columns_[j];
        const auto as = [&]<class From, class To>(From, To) {
            scatter<To>(to, first, count, reinterpret_cast<const From*>(room_[j]));
        };
        switch (operand(j).kind) {
            case Kind::Real:
                return as(0.0f, 0.0f);
            case Kind::DoubleReal:
                return as(0.0, 0.0);
            case Kind::Integer:
                return as(std::int32_t{}, std::int32_t{});
            case Kind::Logical:
                return as(std::int32_t{}, bool{});
        }
    }

    bool within_range(const std::array<Values, most_operands>& values,
                      std::span<unsigned char> marks) noexcept {
        std::fill(marks.begin(), marks.end(), 0);
        for (int j = 0; j < routine().inputs; ++j) mark(operand(j), values[j], marks, outside_);
        return outside_.elements == 0 || policy_ != Policy::Raise;
    }

    // An output with room for more than is counted.
    bool is_part_written(int j) const noexcept {
        return target_.called->arguments[target_.argument[j]].counted_by >= 0 &&
               operand(j).axes[0].extent > 0;
    }

    static void fill(const Operand& operand, const Values& values, std::ptrdiff_t count) noexcept {
        static constexpr std::array<unsigned char, block_numbers> all = [] {
            std::array<unsigned char, block_numbers> ones{};
            ones.fill(1);
            return ones;
        }();
        for (std::ptrdiff_t i = 0; i < count; i += block_numbers) {
            const auto some = static_cast<std::size_t>(std::min(block_numbers, count - i));
            blank(operand, {values.at + i * values.step, values.step, values.numbers},
                  std::span(all).first(some));
        }
    }

    std::int32_t call(const std::array<Values, most_operands>& values,
                      std::ptrdiff_t count) noexcept {
        std::array<void*, most_operands> at;
        std::array<std::ptrdiff_t, most_operands> step{};
        for (int j = 0; j < routine().count(); ++j) {
            at[target_.argument[j]] = values[j].at;
            step[target_.argument[j]] = values[j].step;
        }
        for (std::size_t c = 0; c < target_.counts.size(); ++c)
            at[target_.counts[c].argument] = &counts_[c];
        return quorvel_call(target_.called, static_cast<std::size_t>(count), at.data(),
                            step.data());
    }

    template <class Raise>
    void fail(Raise raise) noexcept {
        const Interpreter held;
        if (!PyErr_Occurred()) raise();
        going_on_ = false;
    }

    void fail_of_range() noexcept {
        fail([&] { report(routine(), outside_, policy_); });
    }

    const Target& target_;
    const bool wide_;
    const std::ptrdiff_t elements_;
    const Policy policy_;
    std::array<Column, most_operands> columns_;
    std::array<std::int32_t, most_operands> counts_;
    std::array<char*, most_operands> room_;
    std::span<unsigned char> marks_;
    double few_[32];
    std::unique_ptr<double[]> many_;
    Outside outside_;
    bool going_on_ = true;
};

}  // namespace

numpy::TypeNumber type_of(Kind kind, Inputs inputs) noexcept {
    const bool wide = inputs == Inputs::Wide;
    switch (kind) {
        case Kind::Real:
            return wide ? numpy::float64 : numpy::float32;
        case Kind::DoubleReal:
            return numpy::float64;
        case Kind::Integer:
            return wide ? numpy::int64 : numpy::int32;
        case Kind::Logical:
            return numpy::boolean;
    }
    return numpy::float32;
}

void run(char** at, const Py_ssize_t* dimensions, const Py_ssize_t* steps, void* data) {
    // Both sides of a branch are tried in a pack: what the processor notes of that says nothing
    // about results.
    const KeptFlags kept;
    Run(*static_cast<const LoopData*>(data), at, dimensions, steps)();
}

}  // namespace quorvel::python
