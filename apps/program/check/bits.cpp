#include "program/check/bits.h"

#include <map>
#include <sstream>

#include "conformance/climate_file.h"
#include "conformance/corpus.h"
#include "telling/progress.h"

namespace quorvel::program {
namespace {

constexpr const char* hashes_table =
#include "hashes_txt.inc"
    ;

std::map<std::string, std::string> committed_hashes() {
    std::map<std::string, std::string> hashes;
    std::istringstream stream(hashes_table);
    for (std::string name, hash; stream >> name >> hash;) hashes[name] = hash;
    return hashes;
}

}  // namespace

Bits compare_bits() {
    const conformance::ExampleFolder folder;
    const auto committed = committed_hashes();
    Bits bits{conformance::routines().size(), 0, {}};
    host::Progress progress("Comparing bits", bits.routines);
    for (const conformance::Routine& routine : conformance::routines()) {
        const auto found = committed.find(routine.name);
        if (found == committed.end() || found->second != conformance::corpus_hash(routine))
            bits.differing.push_back(routine.name);
        bits.calls += conformance::corpus_cases;
        progress.advance();
    }
    return bits;
}

}  // namespace quorvel::program
