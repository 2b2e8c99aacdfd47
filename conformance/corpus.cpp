#include "conformance/corpus.h"

#include <cinttypes>
#include <cstdio>

#include "conformance/canonical.h"
#include "conformance/climate_file.h"
#include "quorvel/library.h"

namespace quorvel::conformance {
namespace {

// FNV-1a, word by word.
class Hash {
  public:
    void add(std::uint32_t word) { value_ = (value_ ^ word) * 0x100000001b3u; }
    std::uint64_t value() const { return value_; }

  private:
    std::uint64_t value_ = 0xcbf29ce484222325u;
};

std::uint64_t seed_of(const Routine& routine) {
    Hash name;
    for (const char* c = routine.name; *c; ++c) name.add(static_cast<unsigned char>(*c));
    return name.value();
}

void each_argument(const Routine& routine, const ArgumentSet& arguments, Direction left_out,
                   const std::function<void(std::uint32_t)>& use) {
    for (std::size_t i = 0; i < routine.arguments.size(); ++i) {
        if (routine.arguments[i].direction == left_out) continue;
        const auto& block = arguments.words()[i];
        for (std::size_t j = 0; j < block.size(); ++j)
            use(canonical(routine.arguments[i].type, block.data(), j));
    }
}

void each_result(const Routine& routine, const Case& made,
                 const std::function<void(std::uint32_t)>& use) {
    if (routine.result != Type::None)
        for (std::size_t j = 0; j < size_of(routine.result) / 4; ++j)
            use(canonical(routine.result, made.result, j));
    each_argument(routine, made.arguments, Direction::In, use);
}

}  // namespace

void call_by_reference(const Routine& routine, std::span<Case> cases) {
    const auto function = reinterpret_cast<Address>(host::routine_address(routine.name));
    for (Case& one : cases) routine.call(function, one.arguments.addresses(), one.result);
}

void run_corpus(const Routine& routine, const std::function<void(std::uint32_t)>& given,
                const std::function<void(std::uint32_t)>& left, const Caller& caller, int count) {
    open_example();
    Random random(seed_of(routine));
    std::vector<Case> cases;
    for (int i = 0; i < caller.at_once; ++i) cases.push_back({ArgumentSet(routine)});
    for (int done = 0; done < count; done += caller.at_once) {
        for (Case& one : cases) {
            one.arguments.draw_any(random);
            each_argument(routine, one.arguments, Direction::Out, given);
        }
        caller.call(routine, cases);
        for (const Case& one : cases) each_result(routine, one, left);
    }
}

std::string corpus_hash(const Routine& routine, const Caller& caller) {
    Hash hash;
    run_corpus(
        routine, [](std::uint32_t) {}, [&](std::uint32_t word) { hash.add(word); }, caller);
    char digits[17];
    std::snprintf(digits, sizeof digits, "%016" PRIx64, hash.value());
    return digits;
}

}  // namespace quorvel::conformance
