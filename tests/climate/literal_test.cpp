// The anisotropic sky gives the very bits of its literal form.
#include "literal/compare.h"
#include "literal/sky.h"
#include "quorvel/climate.h"

using namespace quorvel::conformance;
using namespace quorvel::test;

namespace {

TEST(LiteralForm, AnisotropicSky) {
    Random random(3);
    for (int i = 0; i < 200000; ++i) {
        const float altitude = random.real(i % 8 ? 0.0f : -4.0f, i % 8 ? 1.5708f : 4.0f);
        const float tilt = random.real(i % 8 ? 0.0f : -7.0f, i % 8 ? 3.1416f : 7.0f);
        const float incidence = random.real(0.0f, 3.1416f);
        const float beam = random.below(8) ? random.real(0.0f, 1000.0f) : 0.0f;
        const float diffuse = random.real(1.0f, 600.0f);
        const float normal = random.real(1320.0f, 1415.0f);
        float ours;
        lib::CLPERSKY(altitude, tilt, beam, diffuse, ours, incidence, normal);
        ASSERT_TRUE(same_bits<1>(
            {ours}, {literal::CLPERSKY(altitude, tilt, beam, diffuse, incidence, normal)}))
            << altitude << ' ' << tilt << ' ' << beam << ' ' << diffuse << ' ' << incidence;
    }
}

}  // namespace
