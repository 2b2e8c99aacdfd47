#include "routine.h"

#include <algorithm>
#include <cstring>
#include <string>

namespace quorvel::python {
namespace {

const Routine table[] = {
#include "python_routines.inc"
};

int place(const quorvel_routine& called, const char* name, int from, int to) noexcept {
    for (int k = from; k < to; ++k)
        if (std::strcmp(called.arguments[k].name, name) == 0) return k;
    return -1;
}

// Core dimensions in NumPy's order, that in which the signature names them.
class Dimensions {
  public:
    int number(const Axis& axis) {
        const std::string name = axis.counted_by ? axis.counted_by : std::to_string(axis.extent);
        const auto found = std::find(names_.begin(), names_.end(), name);
        if (found == names_.end())
            return names_.push_back(name), static_cast<int>(names_.size()) - 1;
        return static_cast<int>(found - names_.begin());
    }

  private:
    std::vector<std::string> names_;
};

}  // namespace

std::span<const Routine> routines() noexcept { return table; }

Target::Target(const Routine& from) : routine(from), called(quorvel_find_routine(from.name)) {
    Dimensions dimensions;
    const int inputs = called->inputs, all = called->inputs + called->outputs;
    for (int j = 0; j < from.count(); ++j) {
        const Operand& operand = from.operands[j];
        const bool given = j < from.inputs;
        argument.push_back(place(*called, operand.name, given ? 0 : inputs, given ? inputs : all));
        std::array<int, 2>& numbers = dimension.emplace_back();
        for (int a = 0; a < operand.axis_count; ++a) {
            numbers[a] = dimensions.number(operand.axes[a]);
            const char* count = operand.axes[a].counted_by;
            const int counting = count ? place(*called, count, 0, inputs) : -1;
            const bool known = std::any_of(counts.begin(), counts.end(),
                                           [&](const Count& c) { return c.argument == counting; });
            if (counting >= 0 && !known) counts.push_back({counting, numbers[a]});
        }
    }
}

std::array<char, 300> message(const Target& target, std::int32_t status) noexcept {
    std::array<char, 300> text;
    quorvel_message(target.called, status, text.data(), text.size());
    return text;
}

}  // namespace quorvel::python
