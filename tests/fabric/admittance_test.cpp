#include <gtest/gtest.h>

#include <complex>
#include <numbers>
#include <vector>

#include "conformance/random_arguments.h"
#include "quorvel/library.h"

namespace {

using Complex = std::complex<double>;

struct Layer {
    double thickness, conductivity, density, specific_heat;
};
using Wall = std::vector<Layer>;

// Admittance, decrement factor and surface factor as phasors: a lead turns forwards, a lag back.
struct Response {
    Complex admittance, decrement, surface;
    double U;
};

constexpr double Rsi = 0.12, Rso = 0.06;

struct Outputs {
    float Y = -1, lead = -1, f = -1, f_lag = -1, F = -1, F_lag = -1, U = -1;
};

Outputs call(const Wall& wall, int harmonic, int kind) {
    std::vector<float> d, k, rho, c;
    for (const Layer& layer : wall) {
        d.push_back(static_cast<float>(layer.thickness));
        k.push_back(static_cast<float>(layer.conductivity));
        rho.push_back(static_cast<float>(layer.density));
        c.push_back(static_cast<float>(layer.specific_heat));
    }
    Outputs o;
    lib::TPADMT(d.data(), k.data(), rho.data(), c.data(), static_cast<float>(Rsi),
                static_cast<float>(Rso), static_cast<int>(wall.size()), harmonic, kind, o.Y, o.lead,
                o.f, o.f_lag, o.F, o.F_lag, o.U);
    return o;
}

Response response(const Wall& wall, int harmonic, int kind) {
    const Outputs o = call(wall, harmonic, kind);
    const double turn = harmonic * std::numbers::pi / 12.0;  // per hour
    const double day = 24.0 / harmonic * (1.0 + 1e-6);
    for (float hours : {o.lead, o.f_lag, o.F_lag}) EXPECT_TRUE(hours >= 0.0f && hours <= day);
    return {std::polar<double>(o.Y, turn * o.lead), std::polar<double>(o.f, -turn * o.f_lag),
            std::polar<double>(o.F, -turn * o.F_lag), o.U};
}

// The same from temperature and flux followed from the far air towards the room, in double.
Response expected(const Wall& wall, int harmonic, int kind) {
    // Columns of the matrix of all layers, started behind the far surface.
    Complex t[2] = {1.0, Rso}, q[2] = {0.0, 1.0};
    double resistance = Rsi + Rso;
    for (auto layer = wall.rbegin(); layer != wall.rend(); ++layer) {
        const double R =
            layer->thickness < 0.0 ? layer->conductivity : layer->thickness / layer->conductivity;
        resistance += R;
        const double stored = layer->thickness < 0.0 ? 0.0 : layer->density * layer->specific_heat;
        const double omega = 2.0 * std::numbers::pi * harmonic / 86400.0;
        const Complex z =
            layer->thickness * std::sqrt(Complex(0.0, omega * stored / layer->conductivity));
        const Complex ratio = stored == 0.0 ? Complex(1.0) : std::sinh(z) / z;
        for (int column : {0, 1}) {
            const Complex outer = t[column];
            t[column] = std::cosh(z) * outer + R * ratio * q[column];
            q[column] = z * z * ratio / R * outer + std::cosh(z) * q[column];
        }
    }
    const Complex m12 = t[1] + Rsi * q[1], Y = (q[1] - (kind == 2 ? 1.0 : 0.0)) / m12;
    return {Y, kind == 2 ? 0.0 : resistance / m12, 1.0 - Rsi * Y, 1.0 / resistance};
}

// Relative to the size of each; a decrement factor spans many powers of ten.
double deviation(const Response& a, const Response& b) {
    return std::max({std::abs(a.admittance - b.admittance) / std::abs(b.admittance),
                     std::abs(a.decrement - b.decrement) / std::max(std::abs(b.decrement), 1e-38),
                     std::abs(a.surface - b.surface), std::abs(a.U - b.U) / b.U});
}

Wall draw_wall(quorvel::conformance::Random& random, int layers) {
    Wall wall;
    for (int i = 0; i < layers; ++i) switch (random.below(4)) {
            case 0:
                wall.push_back({-1.0, random.between(0.05, 0.3), 0.0, 0.0});
                break;
            case 1:
                wall.push_back(
                    {random.between(0.02, 0.1), random.between(0.03, 0.06), 20.0, 1000.0});
                break;
            default:
                wall.push_back({random.between(0.01, 0.15), random.between(0.3, 2.0),
                                random.between(600.0, 2400.0), random.between(700.0, 1600.0)});
        }
    return wall;
}

TEST(Admittance, AgreesWithDoublePrecision) {
    quorvel::conformance::Random random(1);
    double worst = 0.0;
    for (int i = 0; i < 20000; ++i) {
        Wall wall = draw_wall(random, random.below(20));
        if (i % 2) wall.push_back({random.between(0.5, 10.0), 1.4, 2100.0, 840.0});
        const int harmonic = 1 + random.below(6), kind = 1 + random.below(2);
        // The rounding of the phase grows with it; its square is no number of single precision long
        // before.
        if (!(std::abs(expected(wall, harmonic, 1).decrement) > 1e-25)) continue;
        worst = std::max(worst,
                         deviation(response(wall, harmonic, kind), expected(wall, harmonic, kind)));
    }
    EXPECT_LT(worst, 1e-5);
}

}  // namespace
