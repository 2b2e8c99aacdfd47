// Difference and overlap of polygons. The input is text:
//     g 4 00 04 44 40  4 22 26 66 62
// is a square and another one over its corner, a digit for each coordinate, so that vertices and
// edges often coincide; n in place of g has coordinates that are written out, of any size. There
// may follow KMAX LDIF LOVL, the room that is left in the pool, how many points more than there are
// npool tells, and digits that replace the positions of the vertices in turn.
#include <algorithm>
#include <bit>
#include <cstring>
#include <vector>

#include "contract/steps.h"
#include "fuzz/bytes.h"
#include "quorvel/geometry.h"

namespace {

using namespace quorvel;
using fuzz::require;

constexpr int most_vertices = 40, most_entries = 500;

struct Ring {
    int count;
    std::vector<std::int32_t> positions;
    std::vector<float> x, y;
};

struct Polygons {
    std::vector<double> x, y;
    Ring a, b;
    int kmax = 200, ldif = most_entries, lovl = most_entries, room = most_entries, further = 0;
};

Ring read_ring(fuzz::Bytes& bytes, bool on_grid, Polygons& pool) {
    Ring ring{std::clamp(bytes.digit(), -1, most_vertices), {}, {}, {}};
    const auto coordinate = [&](std::vector<double>& all, std::vector<float>& own) {
        all.push_back(on_grid ? bytes.digit() : bytes.real());
        own.push_back(static_cast<float>(all.back()));
    };
    for (int i = 0; i < ring.count; ++i) {
        coordinate(pool.x, ring.x);
        coordinate(pool.y, ring.y);
        ring.positions.push_back(static_cast<int>(pool.x.size()));
    }
    return ring;
}

Polygons read_polygons(fuzz::Bytes bytes) {
    Polygons polygons;
    const bool on_grid = bytes.letter() != 'n';
    polygons.a = read_ring(bytes, on_grid, polygons);
    polygons.b = read_ring(bytes, on_grid, polygons);
    if (bytes.empty()) return polygons;
    polygons.kmax = bytes.integer();
    polygons.ldif = bytes.integer(-1, most_entries);
    polygons.lovl = bytes.integer(-1, most_entries);
    polygons.room = bytes.integer(-most_vertices, most_entries);
    polygons.further = bytes.integer();
    for (Ring* const ring : {&polygons.a, &polygons.b})
        for (std::int32_t& position : ring->positions)
            if (!bytes.empty()) position = bytes.digit();
    return polygons;
}

// As long as the count says, so that the address sanitizer watches both ends.
template <class T>
std::vector<T> exactly(int count, const std::vector<T>& values = {}) {
    std::vector<T> array(static_cast<std::size_t>(std::max(count, 0)));
    std::copy_n(values.begin(), std::min(values.size(), array.size()), array.begin());
    return array;
}

template <class T>
bool same_bits(const std::vector<T>& a, const std::vector<T>& b, std::size_t count) {
    return count == 0 || std::memcmp(a.data(), b.data(), count * sizeof(T)) == 0;
}

void require_pieces(const std::vector<std::int32_t>& list, int points, bool with_bridges) {
    std::size_t at = 0;
    while (at < list.size() && list[at] != 0) {
        require(list[at] > 0, "pieces have vertices");
        const std::size_t end = at + 1 + static_cast<std::size_t>(list[at]);
        require(end < list.size(), "pieces end within the list");
        for (++at; at < end; ++at) {
            const int position = with_bridges ? std::abs(list[at]) : list[at];
            require(1 <= position && position <= points, "vertices of pieces are in the pool");
        }
    }
    require(at < list.size() || list.empty(), "a list ends with 0");
}

void require_little_work(std::uint64_t before) {
    require(test::steps_taken() - before <= test::most_steps, "no call takes long");
}

void clip(const Polygons& given) {
    const auto points = static_cast<std::int64_t>(given.x.size());
    const int nmax = static_cast<int>(points) + given.room;
    const auto told =
        static_cast<int>(std::clamp<std::int64_t>(points + given.further, INT32_MIN, INT32_MAX));
    const auto x0 = exactly(nmax, given.x), y0 = exactly(nmax, given.y);
    auto x = x0, y = y0;
    auto dif = exactly<std::int32_t>(given.ldif), ovl = exactly<std::int32_t>(given.lovl);
    int npool = told, ierr = -1;
    const std::uint64_t before = test::steps_taken();
    lib::HOHOLEDP(x.data(), y.data(), given.a.count, given.a.positions.data(), given.b.count,
                  given.b.positions.data(), nmax, given.kmax, given.ldif, given.lovl, npool,
                  dif.data(), ovl.data(), ierr);
    require_little_work(before);
    require((0 <= ierr && ierr <= 11) || ierr == 105 || ierr == 106 || ierr == 109,
            "the status is one that is described");
    require(npool == told || (npool > told && npool <= nmax), "the pool grows within its capacity");
    const auto kept = static_cast<std::size_t>(std::clamp(told, 0, std::max(nmax, 0)));
    require(same_bits(x, x0, kept) && same_bits(y, y0, kept), "points of the pool stay");
    require_pieces(dif, std::min(npool, nmax), true);
    require_pieces(ovl, std::min(npool, nmax), false);
}

struct Overlap {
    std::vector<float> x = exactly<float>(25 * 5), y = x;
    std::vector<std::int32_t> count = exactly<std::int32_t>(5);
    float area = -1;
};

template <class Routine>
Overlap overlap(const Routine& routine, const Ring& a, const Ring& b) {
    Overlap o;
    const std::uint64_t before = test::steps_taken();
    routine(a.x.data(), a.y.data(), a.count, b.x.data(), b.y.data(), b.count, o.x.data(),
            o.y.data(), o.count.data(), o.area);
    require_little_work(before);
    return o;
}

void require_overlap(const Overlap& o) {
    bool more = true;
    for (std::size_t piece = 0; piece < o.count.size(); ++piece) {
        const int count = o.count[piece];
        require(count == 0 || (more && 0 < count && count <= 24), "pieces stand first");
        more = count != 0;
        for (auto i = static_cast<std::size_t>(count); i < 25; ++i)
            require(o.x[25 * piece + i] == 0 && o.y[25 * piece + i] == 0, "the rest is 0");
    }
    require(o.count[0] != 0 || o.area == 0, "without pieces there is no area");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Polygons polygons = read_polygons({data, size});
    clip(polygons);
    const Overlap o = overlap(lib::GEOVER, polygons.a, polygons.b),
                  alias = overlap(lib::GEHOLE, polygons.a, polygons.b);
    require_overlap(o);
    require(same_bits(o.x, alias.x, o.x.size()) && same_bits(o.y, alias.y, o.y.size()) &&
                o.count == alias.count &&
                std::bit_cast<std::uint32_t>(o.area) == std::bit_cast<std::uint32_t>(alias.area),
            "GEHOLE is GEOVER");
    return 0;
}
