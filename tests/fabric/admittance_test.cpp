#include <gtest/gtest.h>

#include <array>
#include <complex>
#include <numbers>
#include <vector>

#include "conformance/random_arguments.h"
#include "quorvel/fabric.h"
#include "support/results.h"

namespace {

using quorvel::conformance::Random;
using Complex = std::complex<double>;

struct Wall {
    std::vector<float> thickness, conductivity, density, specific_heat;

    struct Layer {
        float d, k, rho, c;
    };
    void add(const Layer& layer) {
        thickness.push_back(layer.d);
        conductivity.push_back(layer.k);
        density.push_back(layer.rho);
        specific_heat.push_back(layer.c);
    }
};

// Admittance, decrement factor and surface factor as phasors, of which a lead turns forwards, a lag
// back; U-value.
using Response = std::array<Complex, 4>;

constexpr float Rsi = 0.12f, Rso = 0.06f;

Response response(const Wall& wall, int harmonic, int kind) {
    const int n = static_cast<int>(wall.thickness.size());
    const auto [Y, lead, f, f_lag, F, F_lag, U] = quorvel::test::results<7>(
        lib::TPADMT, wall.thickness.data(), wall.conductivity.data(), wall.density.data(),
        wall.specific_heat.data(), Rsi, Rso, n, harmonic, kind);
    const double turn = harmonic * std::numbers::pi / 12.0;  // per hour
    for (float hours : {lead, f_lag, F_lag})
        EXPECT_TRUE(hours >= 0.0f && turn * hours <= 2.0 * std::numbers::pi * (1.0 + 1e-6));
    return {std::polar<double>(Y, turn * lead), std::polar<double>(f, -turn * f_lag),
            std::polar<double>(F, -turn * F_lag), U};
}

// The same from temperature and flux followed from the far air towards the room, in double.
Response expected(const Wall& wall, int harmonic, int kind) {
    // Columns of the matrix of all layers, started behind the far surface.
    Complex t[2] = {1.0, Rso}, q[2] = {0.0, 1.0};
    double resistance = double{Rsi} + Rso;
    for (std::size_t i = wall.thickness.size(); i-- > 0;) {
        const double d = wall.thickness[i], k = wall.conductivity[i];
        if (d == 0.0) continue;
        const double R = d < 0.0 ? k : d / k;
        resistance += R;
        const double stored = d < 0.0 ? 0.0 : double{wall.density[i]} * wall.specific_heat[i];
        const double omega = 2.0 * std::numbers::pi * harmonic / 86400.0;
        const Complex z = d * std::sqrt(Complex(0.0, omega * stored / k));
        const Complex ratio = stored == 0.0 ? Complex(1.0) : std::sinh(z) / z;
        for (int column : {0, 1}) {
            const Complex outer = t[column];
            t[column] = std::cosh(z) * outer + R * ratio * q[column];
            q[column] = z * z * ratio / R * outer + std::cosh(z) * q[column];
        }
    }
    const double inner = Rsi;
    const Complex m12 = t[1] + inner * q[1], Y = (q[1] - (kind == 2 ? 1.0 : 0.0)) / m12;
    return {Y, kind == 2 ? 0.0 : resistance / m12, 1.0 - inner * Y, 1.0 / resistance};
}

// Air gaps, missing layers, foils without heat capacity, insulation and masonry.
Wall draw_wall(Random& random, int layers) {
    Wall wall;
    while (layers-- > 0) switch (random.below(6)) {
            case 0:
                wall.add({-1.0f, random.real(0.05, 0.3), 0.0f, 0.0f});
                break;
            case 1:
                wall.add({random.below(2) ? 0.0f : 0.01f, 0.3f, 0.0f, 1500.0f});
                break;
            case 2:
                wall.add({random.real(0.02, 0.1), random.real(0.03, 0.06), 20.0f, 1000.0f});
                break;
            default:
                wall.add({random.real(0.01, 0.15), random.real(0.3, 2.0),
                          random.real(600.0, 2400.0), random.real(700.0, 1600.0)});
        }
    return wall;
}

TEST(Admittance, AgreesWithDoublePrecision) {
    Random random(1);
    double worst = 0.0;
    for (int i = 0; i < 20000; ++i) {
        const Wall wall = draw_wall(random, random.below(21));
        const int harmonic = 1 + random.below(4), kind = 1 + random.below(2);
        const Response ours = response(wall, harmonic, kind);
        // Beyond that the square of the decrement factor is no normal number in single precision.
        const Response exact = expected(wall, harmonic, kind);
        if (kind == 1 && std::abs(exact[1]) < 1e-18) continue;
        constexpr double least[] = {0.0, 1e-30, 1.0, 0.0};  // relative but for the surface factor
        for (std::size_t k = 0; k < 4; ++k)
            worst = std::max(worst,
                             std::abs(ours[k] - exact[k]) / std::max(std::abs(exact[k]), least[k]));
    }
    EXPECT_LT(worst, 1e-5);
}

}  // namespace
