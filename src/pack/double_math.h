#pragma once
#include "pack/pack.h"
#include "math/math.h"
namespace quorvel::math { using pack::DoubleReals;
template <class R> struct SinCosTmp { R sin, cos; };
#define ONE(f) inline DoubleReals f(DoubleReals x) noexcept { double v[pack::width]; pack::store(x,v); for (auto& a: v) a=math::f(a); return pack::load<DoubleReals>(v); }
ONE(sin) ONE(cos) ONE(tan) ONE(asin) ONE(acos) ONE(atan) ONE(exp) ONE(log)
#undef ONE
inline SinCosTmp<DoubleReals> sincos(DoubleReals x) noexcept { return {sin(x),cos(x)}; }
}
