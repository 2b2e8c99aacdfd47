// The climate data file as the library reads it: any calls on files that change between them do
// what a single record buffer does. The input is a line of steps, as in climate/file_session.h, and
// on a new line the bytes of the file, repeated up to its length.
#include "climate/file_session.h"
#include "fuzz/input_file.h"
#include "quorvel/climate.h"

namespace {

using namespace quorvel;

constexpr const char* name = "fuzzed.climate";
constexpr int most_steps = 30;

// The exported routines, in the form of their literal form.
struct Library {
    decltype((lib::CLBNF0)) CLBNF0 = lib::CLBNF0;
    decltype((lib::CLBNFI)) CLBNFI = lib::CLBNFI;
    decltype((lib::CLBNF1)) CLBNF1 = lib::CLBNF1;
    decltype((lib::CLBNF2)) CLBNF2 = lib::CLBNF2;
    decltype((lib::CLBNF3)) CLBNF3 = lib::CLBNF3;
};

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::enter_folder();
    fuzz::forget_climate_file();
    fuzz::Bytes bytes(data, size), script(bytes.line());
    test::FileSession<Library> session(name, bytes.rest());
    for (int steps = 0; steps < most_steps && !script.empty(); ++steps)
        fuzz::require(session.step(script), "one record buffer serves all");
    std::remove(name);
    return 0;
}
