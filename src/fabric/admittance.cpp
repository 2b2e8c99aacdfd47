#include "fabric/admittance.h"

namespace quorvel::fabric {
namespace {

constexpr Real hours_per_radian = 3.81972f;  // of the daily cycle
// The float nearest to a full turn, which twice the library's pi is not.
constexpr Real full_turn = 6.2831855f;

// Hours by which z runs ahead, 0 to a whole cycle.
Real lead(Complex z, Real cycles) noexcept {
    Real angle = phase(z);
    if (angle < 0.0f) angle += full_turn;
    return angle * hours_per_radian / cycles;
}

// Hours by which z trails, 0 to a whole cycle.
Real lag(Complex z, Real cycles) noexcept {
    Real angle = phase(z);
    if (angle > 0.0f) angle -= full_turn;
    return angle * hours_per_radian / -cycles;
}

}  // namespace

CyclicResponse response_of(const TransmissionMatrix& matrix, Real Rsi, Real U, Integer harmonic,
                           Integer kind) noexcept {
    constexpr Complex one{1.0f, 0.0f};
    const bool inside = kind == partition;
    const Real cycles = static_cast<Real>(harmonic);
    const Complex admittance = (inside ? matrix.m22 - one : matrix.m22) / matrix.m12;
    const Complex decrement = inside ? Complex{0.0f, 0.0f} : one / (U * matrix.m12);
    const Complex surface = one - Rsi * admittance;
    return {modulus(admittance),
            lead(admittance, cycles),
            modulus(decrement),
            inside ? 0.0f : lag(decrement, cycles),
            modulus(surface),
            lag(surface, cycles),
            U};
}

}  // namespace quorvel::fabric
