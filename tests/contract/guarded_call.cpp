#include "contract/guarded_call.h"

#include <cstring>

namespace quorvel::test {

GuardedCall::GuardedCall(const Routine& routine, Address function, const ArgumentSet& largest)
    : routine_(routine), function_(function) {
    for (const auto& block : largest.words()) memory_.emplace_back(4 * block.size());
}

Outcome GuardedCall::operator()(const ArgumentSet& arguments, Against page) {
    const Words& words = arguments.words();
    std::vector<void*> addresses;
    for (std::size_t i = 0; i < memory_.size(); ++i) {
        const std::size_t bytes = named_bytes(routine_, i, words);
        addresses.push_back(memory_[i].place(bytes, page));
        memory_[i].allow_writing(true);
        if (bytes) std::memcpy(addresses[i], words[i].data(), bytes);
        memory_[i].allow_writing(routine_.arguments[i].direction != Direction::In);
    }
    return call(routine_, function_, words, addresses);
}

}  // namespace quorvel::test
