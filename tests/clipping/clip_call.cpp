#include "clipping/clip_call.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <numbers>
#include <numeric>
#include <set>

#include "quorvel/geometry.h"

namespace quorvel::test {
namespace {

// An array between two bands that no call may touch.
template <class T>
class Guarded {
  public:
    explicit Guarded(int size)
        : bytes_((std::max(size, 0) + 2 * band) * sizeof(T), std::byte{0xC5}), size_(size) {}

    T* data() { return reinterpret_cast<T*>(bytes_.data()) + band; }
    T& operator[](std::size_t i) { return data()[i]; }
    int size() const { return std::max(size_, 0); }

    bool intact() const {
        const auto untouched = [](std::byte byte) { return byte == std::byte{0xC5}; };
        const std::ptrdiff_t edge = band * sizeof(T);
        return std::all_of(bytes_.begin(), bytes_.begin() + edge, untouched) &&
               std::all_of(bytes_.end() - edge, bytes_.end(), untouched);
    }

  private:
    static constexpr std::size_t band = 16;
    std::vector<std::byte> bytes_;
    int size_;
};

bool in_pool(const Piece& piece, const PlanRing& pool, bool with_bridges) {
    return std::all_of(piece.positions.begin(), piece.positions.end(), [&](int position) {
        const int place = with_bridges ? std::abs(position) : position;
        return place >= 1 && place <= static_cast<int>(pool.size());
    });
}

bool is_whole(const Piece& piece) {
    std::set<int> places;
    for (const int position : piece.positions) places.insert(std::abs(position));
    return piece.positions.size() >= 3 && places.size() == piece.positions.size();
}

// The pieces of a list, up to its closing 0; false when it has none, or names points that are not.
bool read(const std::vector<int>& list, const PlanRing& pool, bool with_bridges,
          std::vector<Piece>& pieces) {
    std::size_t at = 0;
    while (at < list.size() && list[at] != 0) {
        const auto count = static_cast<std::size_t>(list[at]);
        if (list[at] < 0 || count >= list.size() - at) return false;
        Piece piece{{list.begin() + static_cast<std::ptrdiff_t>(at) + 1,
                     list.begin() + static_cast<std::ptrdiff_t>(at + count) + 1},
                    {}};
        if (!in_pool(piece, pool, with_bridges)) return false;
        for (const int position : piece.positions)
            piece.vertices.push_back(pool[static_cast<std::size_t>(std::abs(position)) - 1]);
        piece.area = signed_area(piece.vertices);
        pieces.push_back(piece);
        at += count + 1;
    }
    return at < list.size() || list.empty();
}

std::vector<int> numbered(std::size_t count, std::size_t first) {
    std::vector<int> positions(count);
    std::iota(positions.begin(), positions.end(), static_cast<int>(first));
    return positions;
}

bool same_bits(const PlanPoint& a, const PlanPoint& b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
}

std::string fault_in(Clipped& result, const PlanRing& given, int npool, bool intact) {
    if (!intact) return "memory beside the arrays written";
    if (npool < static_cast<int>(given.size()) ||
        static_cast<std::size_t>(npool) != result.pool.size())
        return "points in use";
    if (!std::equal(given.begin(), given.end(), result.pool.begin(), same_bits))
        return "vertices written";
    if (!read(result.dif, result.pool, true, result.difference)) return "difference list";
    if (!read(result.ovl, result.pool, false, result.overlap)) return "overlap list";
    return "";
}

}  // namespace

double signed_area(const PlanRing& ring) {
    double sum = 0.0;
    for (std::size_t i = 1; i + 1 < ring.size(); ++i)
        sum += (ring[i + 1].x - ring[0].x) * (ring[i].y - ring[0].y) -
               (ring[i].x - ring[0].x) * (ring[i + 1].y - ring[0].y);
    return 0.5 * sum;
}

double perimeter(const PlanRing& ring) {
    double sum = 0.0;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const PlanPoint a = ring[i], b = ring[(i + 1) % ring.size()];
        sum += std::hypot(b.x - a.x, b.y - a.y);
    }
    return sum;
}

double diagonal(const std::vector<PlanRing>& rings) {
    PlanPoint low = rings[0][0], high = low;
    for (const PlanRing& ring : rings)
        for (const auto& [x, y] : ring) {
            low = {std::min(low.x, x), std::min(low.y, y)};
            high = {std::max(high.x, x), std::max(high.y, y)};
        }
    return std::hypot(high.x - low.x, high.y - low.y);
}

double total_area(const std::vector<Piece>& pieces) {
    return std::accumulate(pieces.begin(), pieces.end(), 0.0,
                           [](double sum, const Piece& piece) { return sum + piece.area; });
}

Clipped clip(const PlanRing& a, const PlanRing& b, const Capacities& capacities) {
    const auto [nmax, kmax, ldif, lovl] = capacities;
    const std::vector<int> ia = numbered(a.size(), 1), ib = numbered(b.size(), a.size() + 1);
    Guarded<double> x(nmax), y(nmax);
    Guarded<int> dif(ldif), ovl(lovl);
    PlanRing given = a;
    given.insert(given.end(), b.begin(), b.end());
    for (std::size_t i = 0; i < given.size(); ++i) x[i] = given[i].x, y[i] = given[i].y;

    Clipped result;
    int npool = static_cast<int>(given.size());
    lib::HOHOLEDP(x.data(), y.data(), static_cast<int>(a.size()), ia.data(),
                  static_cast<int>(b.size()), ib.data(), nmax, kmax, ldif, lovl, npool, dif.data(),
                  ovl.data(), result.ierr);
    for (int i = 0; i < std::min(npool, nmax); ++i)
        result.pool.push_back({x.data()[i], y.data()[i]});
    result.dif.assign(dif.data(), dif.data() + dif.size());
    result.ovl.assign(ovl.data(), ovl.data() + ovl.size());
    result.fault =
        fault_in(result, given, npool, x.intact() && y.intact() && dif.intact() && ovl.intact());
    for (const auto& pieces : {result.difference, result.overlap})
        result.whole = result.whole && std::all_of(pieces.begin(), pieces.end(), is_whole);
    return result;
}

PlanRing rectangle(double x0, double y0, double x1, double y1) {
    return {{x0, y0}, {x0, y1}, {x1, y1}, {x1, y0}};
}

PlanRing regular(int n, double radius, double x, double start) {
    PlanRing ring;
    for (int i = 0; i < n; ++i) {
        const double angle = -2.0 * std::numbers::pi * (i + start) / n;
        ring.push_back({x + radius * std::cos(angle), radius * std::sin(angle)});
    }
    return ring;
}

PlanRing comb(int teeth) {
    PlanRing ring{{0.0, -1.0}};
    for (int i = 0; i < teeth; ++i)
        for (const PlanPoint& p : rectangle(2.0 * i, 0.0, 2.0 * i + 1.0, 1.0)) ring.push_back(p);
    ring.push_back({2.0 * teeth, 0.0});
    ring.push_back({2.0 * teeth, -1.0});
    return ring;
}

}  // namespace quorvel::test
