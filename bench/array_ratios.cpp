// Nanoseconds an element of every routine, called by reference and through the array library at
// each level that this processor has; the least of interleaved runs, so that ratios hold on a busy
// machine.
//     quorvel_array_ratios [ROUTINE...]
#include <cstdio>
#include <cstring>
#include <memory>
#include <vector>

#include "conformance/random_arguments.h"
#include "least_time.h"
#include "quorvel/library.h"
#include "quorvel_arrays.h"

using namespace quorvel;
using namespace quorvel::conformance;

namespace {

constexpr int elements = 2048;  // what stays in the nearest caches
constexpr int rounds = 40;
constexpr const char* levels[] = {"scalar", "v2", "v3", "v4"};

// Valid arguments of all elements, as both kinds of calls take them.
class Work {
  public:
    explicit Work(const Routine& routine)
        : routine_(routine),
          arrays_(quorvel_find_routine(routine.name)),
          function_(reinterpret_cast<Address>(host::routine_address(routine.name))) {
        Random random(7);
        ArgumentSet drawn(routine);
        for (const auto& words : drawn.words()) blocks_.emplace_back(4 * words.size() * elements);
        results_.resize(8 * elements);
        for (std::size_t i = 0; i < elements; ++i) {
            drawn.draw_valid(random);
            for (std::size_t k = 0; k < blocks_.size(); ++k)
                std::memcpy(argument(k, i), drawn.addresses()[k], size(k));
        }
        outputs_ = blocks_;  // room of their own: what a call returns would change the next one
        for (int k = 0; k < arrays_->inputs + arrays_->outputs; ++k) place(k);
    }

    void by_reference() {
        std::vector<void*> at(blocks_.size());
        for (std::size_t i = 0; i < elements; ++i) {
            for (std::size_t k = 0; k < at.size(); ++k) at[k] = by_reference_[k] + i * size(k);
            routine_.call(function_, at.data(), results_.data() + 8 * i);
        }
    }
    void by_array() { quorvel_call(arrays_, elements, at_.data(), stride_.data()); }

  private:
    std::size_t size(std::size_t k) const { return blocks_[k].size() / elements; }
    unsigned char* argument(std::size_t k, std::size_t i) { return &blocks_[k][i * size(k)]; }

    void place(int k) {
        const std::string name = arrays_->arguments[k].name;
        const bool output = k >= arrays_->inputs;
        const std::string given = name.starts_with("new_") ? name.substr(4) : name;
        by_reference_.resize(blocks_.size());
        for (std::size_t i = 0; i < blocks_.size(); ++i) {
            const Argument& a = routine_.arguments[i];
            by_reference_[i] =
                a.direction == Direction::Out ? outputs_[i].data() : blocks_[i].data();
            if (a.name != given) continue;
            at_.push_back(output ? outputs_[i].data() : blocks_[i].data());
            stride_.push_back(static_cast<std::ptrdiff_t>(size(i)));
            return;
        }
        at_.push_back(results_.data());
        stride_.push_back(static_cast<std::ptrdiff_t>(size_of(routine_.result)));
    }

    const Routine& routine_;
    const quorvel_routine* arrays_;
    Address function_;
    std::vector<std::vector<unsigned char>> blocks_, outputs_;
    std::vector<unsigned char> results_;
    std::vector<unsigned char*> by_reference_;
    std::vector<void*> at_;
    std::vector<std::ptrdiff_t> stride_;
};

void compare(const Routine& routine) {
    Work work(routine);
    bench::LeastTime single, arrays[std::size(levels)];
    for (int round = 0; round < rounds; ++round) {
        single.of(elements, [&] { work.by_reference(); });
        for (std::size_t i = 0; i < std::size(levels); ++i)
            if (quorvel_choose_level(levels[i])) arrays[i].of(elements, [&] { work.by_array(); });
    }
    std::printf("%-10s %9.2f", routine.name, single.ns);
    for (const auto& array : arrays)
        if (array.taken()) std::printf("  %9.2f %5.2f", array.ns, single.ns / array.ns);
    std::printf("\n");
}

}  // namespace

int main(int argc, char** argv) {
    host::load_library();
    std::printf("ns an element %6s", "by ref.");
    for (const char* level : levels)
        if (quorvel_choose_level(level)) std::printf("  %9s ratio", level);
    std::printf("\n");
    for (const Routine& routine : routines())
        if (quorvel_find_routine(routine.name)->elementwise &&
            bench::asked_for(routine.name, argc - 1, argv + 1))
            compare(routine);
}
