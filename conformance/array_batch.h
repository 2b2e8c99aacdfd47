// A routine through the array library and, element by element, by reference: the same bits.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "conformance/random_arguments.h"
#include "quorvel_arrays.h"

namespace quorvel::conformance {

// How odd the arguments of a batch are.
struct Oddness {
    double any, spoilt;  // the share of elements with edges and wild bits, with extreme values
};

// Elements of one routine in arrays that lie in memory in any way that callers may choose: one
// number after the other or further apart, backwards, from any byte on, or one for all elements.
// What is between and around the elements of outputs is watched.
class ArrayBatch {
  public:
    ArrayBatch(const Routine& routine, std::size_t elements, const Oddness& oddness,
               Random& random);

    // What differs from the calls by reference, with the level in use: "" for nothing.
    std::string difference();

  private:
    // An argument's arrays: where it stands among those of the call by reference (-1: the value of
    // a function), and how its elements lie.
    struct Column {
        const quorvel_argument* argument;
        int reference;
        Type type;
        std::size_t bytes;  // of an element
        std::ptrdiff_t stride;
        std::vector<unsigned char> memory;
        std::size_t first;                    // of the first element in memory
        std::vector<unsigned char> expected;  // of an output: all its elements

        unsigned char* element(std::size_t i) {
            return memory.data() + static_cast<std::ptrdiff_t>(first) +
                   static_cast<std::ptrdiff_t>(i) * stride;
        }
    };

    void describe(Random& random);
    Column column(const quorvel_argument& argument, bool output, Random& random) const;
    void draw(const Oddness& oddness, Random& random);
    void keep_counts(ArgumentSet& arguments);
    std::size_t words_in(const Column& output, std::size_t element);
    std::string compared(Column& output);

    const Routine& routine_;
    const quorvel_routine* array_routine_;
    std::size_t elements_;
    std::vector<Column> inputs_, outputs_;
};

}  // namespace quorvel::conformance
