#include "check.h"

#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <bit>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <tuple>
#include <vector>

#include "samples.h"

namespace verify {

namespace {

constexpr std::uint64_t kBlock = 1 << 13;

class Progress {
  public:
    Progress(std::string_view name, std::uint64_t count) : name_(name), count_(count) {}
    ~Progress() {
        if (kTerminal) std::fprintf(stderr, "\r%*s\r", 24, "");
    }
    void show(std::uint64_t done) const {
        if (kTerminal)
            std::fprintf(stderr, "\r%-14s %3d %%", name_.c_str(),
                         static_cast<int>(100 * done / count_));
    }

  private:
    static inline const bool kTerminal = isatty(STDERR_FILENO) != 0;
    std::string name_;
    std::uint64_t count_;
};

// The part of an outcome that one thread finds
class Findings {
  public:
    explicit Findings(const Function& function) : reference(function), name_(function.name) {}

    template <class... T>
    void rounding(float computed, float exact, T... arguments) {
        ++outcome.inputs;
        const bool both_nan = std::isnan(computed) && std::isnan(exact);
        if (both_nan ||
            std::bit_cast<std::uint32_t>(computed) == std::bit_cast<std::uint32_t>(exact))
            return;
        if (++outcome.misrounded <= 5)
            std::fprintf(stderr, "%s(%s) = %a, correctly rounded %a\n", name_.c_str(),
                         list(arguments...).c_str(), static_cast<double>(computed),
                         static_cast<double>(exact));
    }

    // a pack's results against single ones, `arguments` of which are pointers
    template <class... T>
    void same(const pack_loops::Level& level, const float* packs, const float* single,
              std::size_t count, const T*... arguments) {
        if (std::memcmp(packs, single, count * sizeof *packs) == 0) {
            outcome.inputs += count;
            return;
        }
        const std::uint64_t before = outcome.misrounded;
        for (std::size_t i = 0; i < count; ++i) rounding(packs[i], single[i], arguments[i]...);
        if (before == 0 && outcome.misrounded != 0)
            std::fprintf(stderr, "%s: that was level %s\n", name_.c_str(), level.name);
    }

    template <class... T>
    void error(double ulps, T... arguments) {
        ++outcome.inputs;
        if (ulps <= outcome.error) return;
        outcome.error = ulps;
        worst_ = list(arguments...);
    }

    void add_to(Outcome& total, std::string& worst) const {
        total.inputs += outcome.inputs;
        total.misrounded += outcome.misrounded;
        if (!(outcome.error > total.error)) return;
        total.error = outcome.error;
        worst = worst_;
    }

    Reference reference;
    Outcome outcome;

  private:
    template <class... T>
    static std::string list(T... arguments) {
        std::string text;
        char number[40];
        for (const double argument : {static_cast<double>(arguments)...}) {
            std::snprintf(number, sizeof number, text.empty() ? "%a" : ", %a", argument);
            text += number;
        }
        return text;
    }

    std::string name_, worst_;
};

// Calls block(first, last, findings) for all blocks of indices below `count`.
Outcome in_parallel(const Function& function, std::uint64_t count,
                    const std::function<void(std::uint64_t, std::uint64_t, Findings&)>& block) {
    const Progress progress(function.name, count);
    std::atomic<std::uint64_t> next = 0;
    std::mutex mutex;
    Outcome total;
    std::string worst;
    const auto work = [&] {
        Findings findings(function);
        for (std::uint64_t first; (first = next.fetch_add(kBlock)) < count;) {
            block(first, std::min(first + kBlock, count), findings);
            progress.show(first);
        }
        const std::lock_guard lock(mutex);
        findings.add_to(total, worst);
    };
    std::vector<std::thread> threads(std::max(1u, std::thread::hardware_concurrency()));
    for (std::thread& thread : threads) thread = std::thread(work);
    for (std::thread& thread : threads) thread.join();
    if (!worst.empty())
        std::fprintf(stderr, "%-6s errs most at %s\n", std::string(function.name).c_str(),
                     worst.c_str());
    return total;
}

// Hard cases, then samples
class FloatPairs {
  public:
    FloatPairs(const FloatPairFunction& function, std::uint64_t count)
        : is_pow_(function.reference.name == "pow") {
        const std::uint64_t hard_count = std::min(count / 16, std::uint64_t{1} << 22);
        hard_ = is_pow_ ? pow_hard_cases(hard_count) : atan2_hard_cases(hard_count);
    }
    std::pair<float, float> operator[](std::uint64_t i) const {
        return i < hard_.size() ? hard_[i] : is_pow_ ? pow_sample(i) : atan2_sample(i);
    }

  private:
    bool is_pow_;
    std::vector<std::pair<float, float>> hard_;
};

std::size_t whole_packs(std::size_t n) {
    return (n + pack_loops::kCountUnit - 1) / pack_loops::kCountUnit * pack_loops::kCountUnit;
}

// The samples of pairs take turns in kind, eight at most: a block's indices in another order
std::size_t sorted_by_kind(std::size_t i) { return i % (kBlock / 8) * 8 + i / (kBlock / 8); }

}  // namespace

Outcome check(const FloatFunction& function, std::uint64_t count) {
    return in_parallel(function.reference, count,
                       [&](std::uint64_t first, std::uint64_t last, Findings& findings) {
                           const std::size_t n = last - first;
                           std::vector<float> x(n), computed(n);
                           for (std::size_t i = 0; i < n; ++i)
                               x[i] = float_sample(first + i, count);
                           function.scalar(x.data(), computed.data(), n);
                           for (std::size_t i = 0; i < n; ++i)
                               findings.rounding(computed[i], findings.reference.rounded(x[i]),
                                                 x[i]);
                       });
}

Outcome check(const FloatPairFunction& function, std::uint64_t count) {
    const FloatPairs pairs(function, count);
    return in_parallel(function.reference, count,
                       [&](std::uint64_t first, std::uint64_t last, Findings& findings) {
                           const std::size_t n = last - first;
                           std::vector<float> x(n), y(n), computed(n);
                           for (std::size_t i = 0; i < n; ++i)
                               std::tie(x[i], y[i]) = pairs[first + i];
                           function.scalar(x.data(), y.data(), computed.data(), n);
                           for (std::size_t i = 0; i < n; ++i)
                               findings.rounding(
                                   computed[i], findings.reference.rounded(x[i], y[i]), x[i], y[i]);
                       });
}

Outcome check_packs(const FloatFunction& function, Levels levels, std::uint64_t count) {
    const std::uint64_t mixed = std::min(count, std::uint64_t{1} << 26);
    return in_parallel(function.reference, count + mixed,
                       [&](std::uint64_t first, std::uint64_t last, Findings& findings) {
                           const std::size_t n = last - first;
                           std::vector<float> x(whole_packs(n)), single(n), packs(x.size());
                           for (std::size_t i = 0; i < n; ++i)
                               x[i] = first + i < count ? float_sample(first + i, count)
                                                        : any_float_sample(first + i);
                           function.scalar(x.data(), single.data(), n);
                           for (const pack_loops::Level& level : levels) {
                               const auto evaluate = level.functions->*function.packs;
                               evaluate(x.data(), packs.data(), x.size());
                               findings.same(level, packs.data(), single.data(), n, x.data());
                           }
                       });
}

Outcome check_packs(const FloatPairFunction& function, Levels levels, std::uint64_t count) {
    const FloatPairs pairs(function, count);
    return in_parallel(
        function.reference, count,
        [&](std::uint64_t first, std::uint64_t last, Findings& findings) {
            const std::size_t n = last - first;
            const bool sorted = first / kBlock % 2 != 0 && n == kBlock;
            std::vector<float> x(whole_packs(n)), y(x.size()), single(n), packs(x.size());
            for (std::size_t i = 0; i < n; ++i)
                std::tie(x[i], y[i]) = pairs[first + (sorted ? sorted_by_kind(i) : i)];
            function.scalar(x.data(), y.data(), single.data(), n);
            for (const pack_loops::Level& level : levels) {
                const auto evaluate = level.functions->*function.packs;
                evaluate(x.data(), y.data(), packs.data(), x.size());
                findings.same(level, packs.data(), single.data(), n, x.data(), y.data());
            }
        });
}

Outcome check(const DoubleFunction& function, std::uint64_t count) {
    return in_parallel(function.reference, count,
                       [&](std::uint64_t first, std::uint64_t last, Findings& findings) {
                           for (std::uint64_t i = first; i < last; ++i) {
                               const double x = double_sample(function, i);
                               findings.error(findings.reference.ulp_error(x, function.evaluate(x)),
                                              x);
                           }
                       });
}

Outcome check(const DoublePairFunction& function, std::uint64_t count) {
    return in_parallel(
        function.reference, count,
        [&](std::uint64_t first, std::uint64_t last, Findings& findings) {
            for (std::uint64_t i = first; i < last; ++i) {
                const auto [x, y] = double_pair_sample(function.reference.name, i);
                findings.error(findings.reference.ulp_error(x, y, function.evaluate(x, y)), x, y);
            }
        });
}

}  // namespace verify
