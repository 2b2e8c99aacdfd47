// For what is compiled once for each level, with another name for the namespace quorvel each time.
// Nothing outside it may be anything but inlined: the linker would keep one level's code for all.
#pragma once

#include "pack/pack.h"
#include "pack_loops.h"

namespace quorvel {

template <class N, class F>
void for_each(F f, const typename N::Scalar* x, typename N::Scalar* result, std::size_t count) {
    for (std::size_t i = 0; i < count; i += pack::width)
        pack::store(f(pack::load<N>(x + i)), result + i);
}

}  // namespace quorvel
