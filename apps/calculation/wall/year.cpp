#include "calculation/wall/year.h"

#include <algorithm>
#include <numeric>
#include <optional>

namespace quorvel::wall {
namespace {

bool condenses(const Profile& profile, double days) {
    double gain = 0;
    for (const double at : profile.gain) gain += std::max(at, 0.0);
    return gain * days >= least_water;
}

std::vector<bool> wet_places(const std::vector<double>& content) {
    std::vector<bool> wet;
    for (const double water : content) wet.push_back(water > 0);
    return wet;
}

// Until the first place is dry, at most so many days.
double steady_time(const Profile& profile, const std::vector<double>& content, double longest) {
    double time = longest;
    for (std::size_t i = 0; i < content.size(); ++i)
        if (content[i] > 0 && profile.gain[i] < 0)
            time = std::min(time, content[i] / -profile.gain[i]);
    return time;
}

void advance(MonthOfYear& month, const Profile& profile, std::vector<double>& content,
             double time) {
    for (std::size_t i = 0; i < content.size(); ++i) {
        const double gain = profile.gain[i] * time;
        const bool dried = gain < 0 && gain <= -content[i] * (1 - 1e-12);
        (gain > 0 ? month.condensed : month.evaporated) += gain > 0 ? gain
                                                           : dried  ? content[i]
                                                                    : -gain;
        content[i] = dried ? 0 : content[i] + gain;
    }
}

MonthOfYear pass_month(const Path& path, const Climate& climate, std::size_t number,
                       std::vector<double>& content) {
    MonthOfYear month{number, profile(path, climate, wet_places(content)), 0, 0, 0};
    Profile now = month.profile;
    // A place dries at most once, so that this ends.
    for (double rest = host::days_of_month[number]; rest > 0;) {
        const double time = steady_time(now, content, rest);
        advance(month, now, content, time);
        rest -= time;
        if (rest > 0) settle(now, path, wet_places(content));
    }
    month.content = std::accumulate(content.begin(), content.end(), 0.0);
    return month;
}

// Of a place, the deposit to which it belongs.
Deposit& deposit_of(const Place& place, std::vector<Deposit>& deposits) {
    const auto found = std::ranges::find_if(deposits, [&](const Deposit& d) {
        return d.index == place.index && d.within == place.within;
    });
    if (found != deposits.end()) return *found;
    return deposits.emplace_back(Deposit{place.index, place.within, {}, {}});
}

void keep(std::vector<Deposit>& deposits, const Path& path, const std::vector<double>& content,
          std::size_t m) {
    for (std::size_t i = 0; i < content.size(); ++i)
        deposit_of(path.places[i], deposits).content[m] += content[i];
}

void finish(Year& year) {
    for (Deposit& deposit : year.deposits)
        std::adjacent_difference(deposit.content.begin(), deposit.content.end(),
                                 deposit.gain.begin());
    std::erase_if(year.deposits,
                  [](const Deposit& deposit) { return deposit.peak() < least_water; });
    const auto most = std::ranges::max_element(year.months, {}, &MonthOfYear::content);
    year.wettest = static_cast<std::size_t>(most - year.months.begin());
    const auto wet =
        std::find_if(year.months.rbegin(), year.months.rend(),
                     [](const MonthOfYear& month) { return month.content >= least_water; });
    year.dry_from = static_cast<std::size_t>(year.months.rend() - wet);
}

Year year_from(std::size_t first, const Path& path, std::span<const Climate> climates) {
    Year year{};
    std::vector<double> content(path.places.size());
    for (std::size_t m = 0; m < months_of_year; ++m) {
        const std::size_t month = (first + m) % months_of_year;
        year.months.push_back(pass_month(path, climates[month], month, content));
        keep(year.deposits, path, content, m);
    }
    finish(year);
    return year;
}

}  // namespace

double Deposit::peak() const { return *std::ranges::max_element(content); }

const MonthOfYear& Year::of(std::size_t month) const {
    return months[(month + months_of_year - months.front().month) % months_of_year];
}

Year year(const Path& path, std::span<const Climate> months) {
    std::array<bool, months_of_year> wet;
    for (std::size_t m = 0; m < months_of_year; ++m)
        wet[m] = condenses(profile(path, months[m]), host::days_of_month[m]);
    std::optional<Year> best;
    for (std::size_t m = 0; m < months_of_year; ++m) {
        if (!wet[m] || wet[(m + months_of_year - 1) % months_of_year]) continue;
        Year candidate = year_from(m, path, months);
        if (!best || candidate.left() < best->left()) best = std::move(candidate);
    }
    return best ? *best : year_from(0, path, months);  // never wet, or all the year round
}

}  // namespace quorvel::wall
