// Hot routines beside their literal forms, and a whole design day of one window.
#include <benchmark/benchmark.h>

#include <array>

#include "conformance/random_arguments.h"
#include "literal/glazing.h"
#include "literal/psychro.h"
#include "psychro/saturation.h"
#include "quorvel/climate.h"
#include "quorvel/glazing.h"
#include "quorvel/psychro.h"

namespace {

// Arguments that change from call to call, so that no branch is learnt by heart.
template <std::size_t n>
class Values {
  public:
    Values(float low, float high, std::uint64_t seed) {
        quorvel::conformance::Random random(seed);
        for (float& value : values_) value = low + (high - low) * static_cast<float>(random.unit());
    }
    float operator[](std::size_t i) const { return values_[i % n]; }

  private:
    std::array<float, n> values_;
};

template <class Call>
void measure(benchmark::State& state, Call call) {
    std::size_t i = 0;
    for (auto _ : state) benchmark::DoNotOptimize(call(i++));
}

#define QUORVEL_BENCH(name, expression)                           \
    void name(benchmark::State& state) {                          \
        measure(state, [](std::size_t i) { return expression; }); \
    }                                                             \
    BENCHMARK(name)->Name("Hot/" #name)

const Values<1024> temperature(-10.0f, 45.0f, 1), humidity(5.0f, 100.0f, 2);
const Values<1024> transmittance(0.1f, 0.9f, 3), incidence(0.0f, 1.5f, 4);
const Values<1024> latitude(-1.2f, 1.2f, 5), hour(0.0f, 24.0f, 6), altitude(0.1f, 1.4f, 7),
    azimuth(0.0f, 6.2f, 8), facing(0.0f, 6.2f, 9), tilt(0.1f, 1.6f, 10);

int day(std::size_t i) { return static_cast<int>(1 + i % 365); }

std::array<float, 2> wndfgl(std::size_t i) {
    std::array<float, 2> out;
    lib::WNDFGL(transmittance[i], 0.0f, out[0], out[1]);
    return out;
}
std::array<float, 2> wndfgl_literal(std::size_t i) {
    std::array<float, 2> out;
    literal::WNDFGL(transmittance[i], 0.0f, out[0], out[1]);
    return out;
}
std::array<float, 6> wndrgl(std::size_t i) {
    std::array<float, 6> out;
    lib::WNDRGL(transmittance[i], 0.0f, incidence[i], out[0], out[1], out[2], out[3], out[4],
                out[5]);
    return out;
}
std::array<float, 5> clsnge(std::size_t i) {
    std::array<float, 5> out;
    lib::CLSNGE(latitude[i], day(i), hour[i], out[0], out[1], out[2], out[3], out[4]);
    return out;
}
std::array<float, 3> clsnsr(std::size_t i) {
    std::array<float, 3> out;
    lib::CLSNSR(altitude[i], azimuth[i], facing[i], tilt[i], out[0], out[1], out[2]);
    return out;
}
std::array<float, 3> clsord(std::size_t i) {
    std::array<float, 3> out;
    lib::CLSORD(altitude[i], azimuth[i], facing[i], tilt[i], 800.0f, 100.0f, 0.2f, 1.0f, 1.0f,
                out[0], out[1], out[2]);
    return out;
}

QUORVEL_BENCH(PSSVP, lib::PSSVP(temperature[i]));
QUORVEL_BENCH(PSSVP_inline, quorvel::psychro::saturation_pressure(temperature[i]));
QUORVEL_BENCH(PSSVP_literal, literal::PSSVP(temperature[i]));
QUORVEL_BENCH(PSTWET, lib::PSTWET(temperature[i], humidity[i], 101325.0f, 1));
QUORVEL_BENCH(PSTWET_literal, literal::PSTWET(temperature[i], humidity[i], 101325.0f, 1));
QUORVEL_BENCH(WNDFGL, wndfgl(i));
QUORVEL_BENCH(WNDFGL_literal, wndfgl_literal(i));
QUORVEL_BENCH(WNDRGL, wndrgl(i));
QUORVEL_BENCH(WNDRGL_literal, literal::WNDRGL(transmittance[i], 0.0f, incidence[i]));
QUORVEL_BENCH(CLSNGE, clsnge(i));
QUORVEL_BENCH(CLSNSR, clsnsr(i));
QUORVEL_BENCH(CLSORD, clsord(i));

// 24 hours of a south window at 51.5° N on the June design day, through the exported routines.
void design_day(benchmark::State& state) {
    constexpr float phi = 0.8988f, facing = 3.1415927f, tilt = 1.5707964f;
    for (auto _ : state) {
        float gain = 0.0f;
        for (int h = 1; h <= 24; ++h) {
            float declination, alt, azi, sunrise, sunset, normal, sky, direct, diffuse, ground,
                theta, vertical, horizontal;
            float Tp, Ap, Rp, Ts, As, Rs;
            lib::CLSNGE(phi, 172, static_cast<float>(h), declination, alt, azi, sunrise, sunset);
            lib::CLSNNR(alt, azi, 20.0f, 0, normal, sky);
            lib::CLSORD(alt, azi, facing, tilt, normal, sky, 0.2f, 1.0f, 1.0f, direct, diffuse,
                        ground);
            lib::CLSNSR(alt, azi, facing, tilt, theta, vertical, horizontal);
            lib::WNDRGL(0.83f, 0.0f, theta, Tp, Ap, Rp, Ts, As, Rs);
            gain += direct * 0.5f * (Tp + Ts);
        }
        benchmark::DoNotOptimize(gain);
    }
}
BENCHMARK(design_day)->Name("DesignDay/24_hours_of_one_window");

}  // namespace
