// Correctly rounded values of the elementary functions: the platform's double function where it is
// far enough from a rounding boundary, MPFR where it is not.
#pragma once

#include <mpfr.h>

#include <string_view>

namespace verify {

using Unary = double (*)(double);
using Binary = double (*)(double, double);
using MpfrUnary = int (*)(mpfr_ptr, mpfr_srcptr, mpfr_rnd_t);
using MpfrBinary = int (*)(mpfr_ptr, mpfr_srcptr, mpfr_srcptr, mpfr_rnd_t);

// One function of one or of two arguments; the other group of members is null.
struct Function {
    std::string_view name;
    Unary platform1;
    MpfrUnary mpfr1;
    Binary platform2 = nullptr;
    MpfrBinary mpfr2 = nullptr;
};

// For one thread
class Reference {
  public:
    explicit Reference(const Function& function);
    ~Reference();
    Reference(const Reference&) = delete;
    Reference& operator=(const Reference&) = delete;

    float rounded(float x);
    float rounded(float x, float y);
    // |computed - exact| in units of the last place of a double at the exact value
    double ulp_error(double x, double computed);
    double ulp_error(double x, double y, double computed);

  private:
    float exactly_rounded(int inexact);
    double distance(double computed);

    const Function& function_;
    mpfr_t x_, y_, result_, difference_;
};

}  // namespace verify
