// One 64-bit hash per exported routine over a fixed corpus of arguments: equal hashes mean equal
// bits.
//
//     quorvel_corpus              prints "NAME HASH" for every routine
//     quorvel_corpus NAME         prints every case of one routine: arguments before, results after
//
// The library under test is the one that library.h loads (QUORVEL_LIBRARY names another one).
#include <cinttypes>
#include <cstdio>
#include <cstring>
#include <exception>
#include <string_view>

#include "common/library.h"
#include "support/random_arguments.h"

using namespace quorvel::test;

namespace {

constexpr int cases = 100000;

// FNV-1a, word by word.
class Hash {
  public:
    void add(std::uint32_t word) { value_ = (value_ ^ word) * 0x100000001b3u; }
    std::uint64_t value() const { return value_; }

  private:
    std::uint64_t value_ = 0xcbf29ce484222325u;
};

// Which not-a-number comes out is the hardware's business; that one comes out is ours.
std::uint32_t canonical(Type type, const std::uint32_t* words, std::size_t index) {
    const std::uint32_t word = words[index];
    if (type == Type::Real && (word & 0x7fffffffu) > 0x7f800000u) return 0x7fc00000u;
    if (type == Type::DoubleReal) {
        const std::uint32_t low = words[index & ~std::size_t{1}], high = words[index | 1];
        const std::uint64_t magnitude = (std::uint64_t{high & 0x7fffffffu} << 32) | low;
        if (magnitude > 0x7ff0000000000000u) return index & 1 ? 0x7ff80000u : 0u;
    }
    return word;
}

template <class Use>
void each_word(const Routine& routine, const ArgumentSet& arguments, Direction left_out, Use use) {
    for (std::size_t i = 0; i < routine.arguments.size(); ++i) {
        const auto& block = arguments.words()[i];
        if (routine.arguments[i].direction == left_out) continue;
        for (std::size_t j = 0; j < block.size(); ++j)
            use(canonical(routine.arguments[i].type, block.data(), j));
    }
}

template <class Before, class After>
void run(const Routine& routine, Before before, After after) {
    const auto function = reinterpret_cast<Address>(quorvel::host::routine_address(routine.name));
    Hash name;
    for (const char* c = routine.name; *c; ++c) name.add(static_cast<unsigned char>(*c));
    Random random(name.value());
    ArgumentSet arguments(routine);
    for (int i = 0; i < cases; ++i) {
        arguments.draw_any(random);
        each_word(routine, arguments, Direction::Out, before);
        std::uint32_t result[2] = {};
        routine.call(function, arguments.addresses(), result);
        if (routine.result != Type::None)
            for (std::size_t j = 0; j < size_of(routine.result) / 4; ++j)
                after(canonical(routine.result, result, j));
        each_word(routine, arguments, Direction::In, after);
    }
}

void print_hash(const Routine& routine) {
    Hash hash;
    run(
        routine, [](std::uint32_t) {}, [&](std::uint32_t word) { hash.add(word); });
    std::printf("%s %016" PRIx64 "\n", routine.name, hash.value());
}

void print_cases(const Routine& routine) {
    bool given = false;
    const auto print = [&](const char* separator, std::uint32_t word) {
        std::fputs(separator, stdout);
        std::printf(" %08" PRIx32, word);
    };
    run(
        routine,
        [&](std::uint32_t word) {
            print(given ? "" : "\n", word);
            given = true;
        },
        [&](std::uint32_t word) {
            print(given ? " :" : "", word);
            given = false;
        });
    std::puts("");
}

}  // namespace

int main(int argc, char** argv) try {
    bool known = argc < 2;
    for (const Routine& routine : routines()) {
        if (argc < 2) print_hash(routine);
        if (argc > 1 && std::string_view(argv[1]) == routine.name) {
            print_cases(routine);
            known = true;
        }
    }
    if (!known) std::fprintf(stderr, "no exported routine is called %s\n", argv[1]);
    return known ? 0 : 2;
} catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 2;
}
