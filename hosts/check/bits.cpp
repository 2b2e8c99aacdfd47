#include "check/bits.h"

#include <map>
#include <sstream>

#include "common/library.h"
#include "common/progress.h"
#include "support/climate_file.h"
#include "support/corpus.h"

namespace quorvel::check {
namespace {

constexpr const char* hashes_table =
#include "corpus_hashes.inc"
    ;

std::map<std::string, std::string> committed_hashes() {
    std::map<std::string, std::string> hashes;
    std::istringstream stream(hashes_table);
    for (std::string name, hash; stream >> name >> hash;) hashes[name] = hash;
    return hashes;
}

}  // namespace

Bits compare_bits() {
    const test::ExampleFolder folder;
    const auto committed = committed_hashes();
    Bits bits{test::routines().size(), 0, {}};
    host::Progress progress("Comparing bits", bits.routines);
    for (const test::Routine& routine : test::routines()) {
        const auto found = committed.find(routine.name);
        if (found == committed.end() || found->second != test::corpus_hash(routine))
            bits.differing.push_back(routine.name);
        bits.calls += test::corpus_cases;
        progress.advance();
    }
    return bits;
}

}  // namespace quorvel::check
