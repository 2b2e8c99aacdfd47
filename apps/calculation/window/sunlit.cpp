#include "calculation/window/sunlit.h"

#include <cmath>
#include <cstdlib>
#include <stdexcept>
#include <string>

#include "quorvel/geometry.h"

namespace quorvel::window {
namespace {

// HOHOLEDP takes points for one that are nearer to each other than this part of the size of its
// polygons. What is as thin, or makes as little of the area, comes from that.
constexpr double tolerance = 1e-4;
constexpr double thin = 2 * tolerance;
constexpr double speck = (6 * tolerance) * (6 * tolerance);

// Of the square of the size: an error of an area that the tolerance does not account for.
constexpr double doubtful = 10 * tolerance;

constexpr int most_halvings = 6;

// What HOHOLEDP makes of a piece of the window and a shadow.
class Clip {
  public:
    Clip(const Polygon& piece, const Polygon& shadow) {
        for (const Polygon* polygon : {&piece, &shadow}) {
            for (const Vector& corner : *polygon) {
                x_.push_back(corner[0]);
                y_.push_back(corner[1]);
                positions_.push_back(static_cast<int>(x_.size()));
            }
        }
        int used = static_cast<int>(x_.size());
        const int a = static_cast<int>(piece.size()), b = used - a, room = 8 * used;
        for (auto* coordinates : {&x_, &y_}) coordinates->resize(static_cast<std::size_t>(room));
        for (auto* list : {&difference_, &overlap_}) list->resize(x_.size());
        lib::HOHOLEDP(x_.data(), y_.data(), a, positions_.data(), b, positions_.data() + a, room,
                      room, room, room, used, difference_.data(), overlap_.data(), status_);
    }

    int status() const { return status_; }
    std::vector<Polygon> lit() const { return pieces(difference_); }
    std::vector<Polygon> shaded() const { return pieces(overlap_); }

  private:
    // Of a list of counts and positions, ended by a count of 0. A negative position begins a bridge
    // to another part of the boundary.
    std::vector<Polygon> pieces(const std::vector<int>& list) const {
        std::vector<Polygon> result;
        for (const int* entry = list.data(); int count = *entry++;) {
            Polygon& piece = result.emplace_back();
            for (; count > 0; --count) {
                const auto at = static_cast<std::size_t>(std::abs(*entry++) - 1);
                piece.push_back(vector(x_[at], y_[at], 0));
            }
        }
        return result;
    }

    std::vector<double> x_, y_;  // the pool, with room for the points that the clip adds
    std::vector<int> positions_, difference_, overlap_;
    int status_;
};

// What a shadow covers of a piece, in a way of its own: it is convex.
double covered_area(Polygon piece, const Polygon& shadow) {
    const Vector inwards = signed_area(shadow) > 0 ? outwards : Vector{0, 0, -1};
    for (std::size_t i = 0; i < shadow.size(); ++i) {
        const Vector &here = shadow[i], &next = shadow[(i + 1) % shadow.size()];
        const Vector edge{next[0] - here[0], next[1] - here[1], 0};
        piece = part_before({here, cross(edge, inwards)}, piece);
    }
    return area(piece);
}

// Without spikes, and corners in a straight line.
Polygon tidied(Polygon piece, double thickness) {
    for (std::size_t i = 0; i < piece.size();) {
        const std::size_t n = piece.size();
        const Polygon corner{piece[(i + n - 1) % n], piece[i], piece[(i + 1) % n]};
        const bool is_thin = 2 * area(corner) <= thickness * box_around(corner).diagonal();
        if (is_thin) piece.erase(piece.begin() + static_cast<std::ptrdiff_t>(i));
        i = is_thin ? 0 : i + 1;
    }
    return piece;
}

// They overlap a little, so that no edge of the one falls on an edge of the other.
std::vector<Polygon> halves(const Polygon& shadow, double size) {
    const Rectangle box = box_around(shadow);
    const bool wide = box.right - box.left > box.top - box.bottom;
    const double x = (box.left + box.right) / 2, y = (box.bottom + box.top) / 2;
    const double more = 10 * tolerance * size;
    if (wide)
        return {part_before({vector(x + more, y, 0), {-1, 0, 0}}, shadow),
                part_before({vector(x - more, y, 0), across}, shadow)};
    return {part_before({vector(x, y + more, 0), {0, -1, 0}}, shadow),
            part_before({vector(x, y - more, 0), up}, shadow)};
}

class Cutter {
  public:
    explicit Cutter(double size) : size_(size) {}

    std::vector<Polygon> without(const Polygon& shadow, const std::vector<Polygon>& pieces,
                                 int halvings = most_halvings) const {
        std::vector<Polygon> rest;
        for (const Polygon& piece : pieces) {
            for (const Polygon& part : without(shadow, piece, halvings)) {
                Polygon tidy = tidied(part, thin * size_);
                if (area(tidy) > speck * size_ * size_) rest.push_back(std::move(tidy));
            }
        }
        return rest;
    }

  private:
    // A clip that fails, or is in doubt, is tried again with the halves of the shadow: they have
    // fewer crossings, and their contacts are not those of the whole.
    std::vector<Polygon> without(const Polygon& shadow, const Polygon& piece, int halvings) const {
        const Clip clip(piece, shadow);
        if (clip.status() == 0 && is_credible(clip, piece, shadow)) return clip.lit();
        if (halvings == 0)
            throw std::runtime_error("a shadow cannot be taken out of the window (status " +
                                     std::to_string(clip.status()) + " of HOHOLEDP)");
        std::vector<Polygon> rest{piece};
        for (const Polygon& half : halves(shadow, size_)) rest = without(half, rest, halvings - 1);
        return rest;
    }

    bool is_credible(const Clip& clip, const Polygon& piece, const Polygon& shadow) const {
        const double error = area(clip.shaded()) - covered_area(piece, shadow);
        return std::fabs(error) < doubtful * size_ * size_;
    }

    double size_;  // of the window and the shadows, m
};

}  // namespace

std::vector<Polygon> without(const std::vector<Polygon>& shadows, const Polygon& window) {
    const Cutter cutter(box_around(window).diagonal());
    std::vector<Polygon> lit{window};
    for (const Polygon& shadow : shadows) lit = cutter.without(shadow, lit);
    return lit;
}

}  // namespace quorvel::window
