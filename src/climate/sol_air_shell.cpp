#include "climate/sol_air.h"
#include "entry/entry.h"

using namespace quorvel;

Real CLTEO(const Real* base, const Real* coefficient, const Real* absorptance, const Real*,
           const Real*, const Real* gain, const Real* loss) {
    return climate::sol_air_temperature(*base, *coefficient, *absorptance, *gain, *loss);
}

Real CLRERD(const Real* tilt, const Real* cloud) { return climate::long_wave_loss(*tilt, *cloud); }
