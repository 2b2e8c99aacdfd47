// Polygons in plan: their difference and overlap, for a pair or for many.
#pragma once

#include <quorvel.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <numeric>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

#include "quorvel/call.hpp"
#include "quorvel/clipping_status.hpp"
#include "quorvel/input.hpp"

namespace quorvel::geometry {
inline namespace v0 {

struct PlanPoint {
    double x, y;  ///< m

    friend bool operator==(const PlanPoint&, const PlanPoint&) = default;
};

/// Vertices one after the other, either way round. It must not cross itself.
using Polygon = std::vector<PlanPoint>;

/// m², positive for clockwise vertices.
inline double signed_area(const Polygon& polygon) {
    double twice = 0.0;
    for (std::size_t i = 2; i < polygon.size(); ++i) {
        const PlanPoint o = polygon[0], p = polygon[i - 1], q = polygon[i];
        twice += (q.x - o.x) * (p.y - o.y) - (p.x - o.x) * (q.y - o.y);
    }
    return 0.5 * twice;
}

/// m², whichever way round.
inline double area(const Polygon& polygon) { return std::fabs(signed_area(polygon)); }

/// m², of pieces that do not overlap.
inline double total_area(std::span<const Polygon> pieces) {
    return std::accumulate(pieces.begin(), pieces.end(), 0.0,
                           [](double sum, const Polygon& piece) { return sum + area(piece); });
}

/// A - B and the overlap of A and B. The pieces run in the sense of A. Where B lies within A the
/// difference is two pieces, which touch along level bridges from B to A.
struct Clipped {
    std::vector<Polygon> difference, overlap;
    std::int32_t status = 0;  ///< other than 0: it failed, and there are no pieces
};

class ClippingError : public std::runtime_error {
  public:
    explicit ClippingError(std::int32_t status)
        : std::runtime_error(std::string("clip: ") + clipping_fault(status)), status_(status) {}

    std::int32_t status() const { return status_; }

  private:
    std::int32_t status_;
};

/// Clips one pair after the other in storage that is kept and grows as far as pairs need it. One
/// thread at a time may use it. (HOHOLEDP of quorvel.h says how exact the pieces are.)
class Clipper {
  public:
    void clip(const Polygon& a, const Polygon& b, Clipped& clipped) {
        load(a, b);
        std::int32_t status = attempt(a.size(), b.size());
        while (is_short_of_room(status) && room_ < most_room) {
            room_ *= 2;
            status = attempt(a.size(), b.size());
        }
        clipped.status = status;
        store(difference_, status, clipped.difference);
        store(overlap_, status, clipped.overlap);
    }

  private:
    static constexpr std::size_t first_room = 64, most_room = std::size_t{1} << 24;
    static constexpr std::int32_t most_crossings = 1024;

    void load(const Polygon& a, const Polygon& b) {
        x_.clear();
        y_.clear();
        for (const Polygon* polygon : {&a, &b})
            for (const PlanPoint& point : *polygon) {
                x_.push_back(point.x);
                y_.push_back(point.y);
            }
        positions_.resize(x_.size());
        std::iota(positions_.begin(), positions_.end(), 1);
    }

    std::int32_t attempt(std::size_t size_a, std::size_t size_b) {
        const std::size_t given = size_a + size_b;
        x_.resize(given + room_);
        y_.resize(given + room_);
        difference_.resize(given + room_);
        overlap_.resize(given + room_);
        const auto vertices_a = static_cast<std::int32_t>(size_a),
                   vertices_b = static_cast<std::int32_t>(size_b),
                   capacity = static_cast<std::int32_t>(given + room_);
        auto used = static_cast<std::int32_t>(given);
        std::int32_t status = 0;
        HOHOLEDP(x_.data(), y_.data(), &vertices_a, positions_.data(), &vertices_b,
                 positions_.data() + size_a, &capacity, &most_crossings, &capacity, &capacity,
                 &used, difference_.data(), overlap_.data(), &status);
        return status;
    }

    // A list has the number of vertices of each piece, their positions from 1, negative where a
    // bridge begins, and a 0 at last.
    void store(const std::vector<std::int32_t>& list, std::int32_t status,
               std::vector<Polygon>& pieces) const {
        std::size_t count = 0;
        for (std::size_t at = 0; status == 0 && list[at] != 0; ++count) {
            if (count == pieces.size()) pieces.emplace_back();
            Polygon& piece = pieces[count];
            piece.clear();
            const std::size_t end = at + 1 + static_cast<std::size_t>(list[at]);
            for (++at; at < end; ++at) {
                const auto place = static_cast<std::size_t>(std::abs(list[at]) - 1);
                piece.push_back({x_[place], y_[place]});
            }
        }
        pieces.resize(count);
    }

    std::vector<double> x_, y_;
    std::vector<std::int32_t> positions_, difference_, overlap_;
    std::size_t room_ = first_room;
};

/// Throws ClippingError.
inline Clipped clip(const Polygon& a, const Polygon& b) {
    Clipped clipped;
    Clipper().clip(a, b, clipped);
    if (clipped.status != 0) throw ClippingError(clipped.status);
    return clipped;
}

/// m². Throws ClippingError.
inline double overlap_area(const Polygon& a, const Polygon& b) {
    return total_area(clip(a, b).overlap);
}

/// Of each a with its b, or of one polygon with each of the others. A pair that fails has its
/// status. What vectors of the results hold already is used again.
inline void clip(const Input<Polygon>& a, const Input<Polygon>& b, std::span<Clipped> results) {
    detail::check_elements("clip", results.size(), "a", a.size());
    detail::check_elements("clip", results.size(), "b", b.size());
    Clipper clipper;
    for (std::size_t i = 0; i < results.size(); ++i) clipper.clip(a[i], b[i], results[i]);
}

/// m², likewise; not a number for a pair that fails.
inline void overlap_areas(const Input<Polygon>& a, const Input<Polygon>& b,
                          std::span<double> areas) {
    detail::check_elements("overlap_areas", areas.size(), "a", a.size());
    detail::check_elements("overlap_areas", areas.size(), "b", b.size());
    Clipper clipper;
    Clipped clipped;
    for (std::size_t i = 0; i < areas.size(); ++i) {
        clipper.clip(a[i], b[i], clipped);
        areas[i] = clipped.status == 0 ? total_area(clipped.overlap)
                                       : std::numeric_limits<double>::quiet_NaN();
    }
}

}  // namespace v0
}  // namespace quorvel::geometry
