// The one function that GCC 12 asks of the C++ runtime and runtimes before GCC 11's have not: with
// one of its own, hidden from all others, the package also loads on systems of 2018.
#include <new>

namespace std {

[[noreturn, gnu::visibility("hidden")]] void __throw_bad_array_new_length();

void __throw_bad_array_new_length() { throw bad_array_new_length(); }

}  // namespace std
