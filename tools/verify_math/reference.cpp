#include "reference.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace verify {

namespace {

constexpr mpfr_prec_t kPrecision = 200;
// The platform's double functions err by less than 16 ulp.
constexpr double kMargin = 0x1p-48;

// Whether every value within kMargin of `value` rounds to the same float.
bool safe(double value) {
    const double margin = std::abs(value) * kMargin;
    return static_cast<float>(value - margin) == static_cast<float>(value + margin) ||
           std::isnan(value) || std::isinf(value);
}

}  // namespace

Reference::Reference(const Function& function) : function_(function) {
    mpfr_inits2(kPrecision, x_, y_, result_, difference_, nullptr);
}

Reference::~Reference() { mpfr_clears(x_, y_, result_, difference_, nullptr); }

// result_ was rounded toward zero. If inexact, two bits more put it strictly between the neighbours
// of the exact value, so that it is no tie unless the exact value is one.
float Reference::exactly_rounded(int inexact) {
    if (inexact != 0 && mpfr_regular_p(result_)) {
        mpfr_prec_round(result_, kPrecision + 2, MPFR_RNDZ);
        if (mpfr_signbit(result_))
            mpfr_nextbelow(result_);
        else
            mpfr_nextabove(result_);
    }
    const float value = mpfr_get_flt(result_, MPFR_RNDN);
    mpfr_set_prec(result_, kPrecision);
    return value;
}

float Reference::rounded(float x) {
    const double value = function_.platform1(static_cast<double>(x));
    if (safe(value)) return static_cast<float>(value);
    mpfr_set_flt(x_, x, MPFR_RNDN);
    return exactly_rounded(function_.mpfr1(result_, x_, MPFR_RNDZ));
}

float Reference::rounded(float x, float y) {
    const double value = function_.platform2(static_cast<double>(x), static_cast<double>(y));
    if (safe(value)) return static_cast<float>(value);
    mpfr_set_flt(x_, x, MPFR_RNDN);
    mpfr_set_flt(y_, y, MPFR_RNDN);
    return exactly_rounded(function_.mpfr2(result_, x_, y_, MPFR_RNDZ));
}

double Reference::distance(double computed) {
    const double nearest = mpfr_get_d(result_, MPFR_RNDN);
    if (nearest == computed || (std::isnan(nearest) && std::isnan(computed))) {
        if (!std::isfinite(computed)) return 0.0;
    } else if (!std::isfinite(nearest) || !std::isfinite(computed)) {
        return std::numeric_limits<double>::infinity();
    }
    const int exponent = mpfr_zero_p(result_)
                             ? -1073
                             : std::max<int>(static_cast<int>(mpfr_get_exp(result_)), -1021);
    mpfr_sub_d(difference_, result_, computed, MPFR_RNDN);
    mpfr_mul_2si(difference_, difference_, 53 - exponent, MPFR_RNDN);
    return std::abs(mpfr_get_d(difference_, MPFR_RNDN));
}

double Reference::ulp_error(double x, double computed) {
    mpfr_set_d(x_, x, MPFR_RNDN);
    function_.mpfr1(result_, x_, MPFR_RNDN);
    return distance(computed);
}

double Reference::ulp_error(double x, double y, double computed) {
    mpfr_set_d(x_, x, MPFR_RNDN);
    mpfr_set_d(y_, y, MPFR_RNDN);
    function_.mpfr2(result_, x_, y_, MPFR_RNDN);
    return distance(computed);
}

}  // namespace verify
