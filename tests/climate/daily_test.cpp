// Daily courses of temperature, sol-air temperature and long-wave loss.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "quorvel/climate.h"

namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

TEST(DailyTemperature, RunsThroughItsExtremesAndMidnight) {
    constexpr float high = 26.5f, low = 12.25f;
    const float hours[][2] = {{15.0f, 5.0f}, {5.0f, 15.0f}, {14.5f, 23.0f}, {1.0f, 13.0f}};
    for (const auto& [tx, tn] : hours) {
        const auto at = [tx = tx, tn = tn](float hour) {
            return lib::CLTAO(hour, high, low, tx, tn);
        };
        EXPECT_NEAR(at(tx), high, 1e-5f);
        EXPECT_NEAR(at(tn), low, 1e-5f);
        EXPECT_NEAR(at(0.0f), at(24.0f), 1e-5f);
        // Falling from the highest to the lowest, rising from there, in both halves alike.
        const float fall = tx < tn ? tn - tx : tn + 24.0f - tx;
        for (float share = 0.05f; share < 1.0f; share += 0.05f) {
            const auto hour = [&](float from, float length) {
                return std::fmod(from + share * length, 24.0f);
            };
            const double wave = std::cos(share * 3.14159265);
            EXPECT_NEAR(at(hour(tx, fall)), 19.375 + 7.125 * wave, 5e-5) << tx << ' ' << share;
            EXPECT_NEAR(at(hour(tn, 24.0f - fall)), 19.375 - 7.125 * wave, 5e-5) << tn;
        }
    }
    for (const float hour : {0.0f, 8.0f, 24.0f})
        EXPECT_EQ(lib::CLTAO(hour, high, low, 8.0f, 8.0f), 19.375f);
}

TEST(DailyTemperature, IsAValueSwingingAboutItsMean) {
    for (float hour = 0.0f; hour <= 24.0f; hour += 0.25f) {
        EXPECT_EQ(lib::CLTAOX(hour, 20.0f, 3.0f, 6.0f, 17.0f, 2.0f),
                  lib::CLTAO(hour, 26.0f, 14.0f, 6.0f, 17.0f));
        EXPECT_FLOAT_EQ(lib::CLTAOX(hour, 20.0f, 3.0f, 5.0f, 15.0f, -2.0f),
                        lib::CLTAO(hour, 26.0f, 14.0f, 15.0f, 5.0f));
    }
}

TEST(SolAir, RaisesTheTemperatureByTheNetGain) {
    // A dark roof in summer: (0.9 x 800 - 0.9 x 100) W/m² through 20 W/m²K.
    EXPECT_FLOAT_EQ(lib::CLTEO(25.0f, 20.0f, 0.9f, kNaN, kNaN, 800.0f, 100.0f), 56.5f);
    EXPECT_EQ(lib::CLTEO(25.0f, 20.0f, 0.9f, kNaN, kNaN, 100.0f, 100.0f), 25.0f);
}

TEST(LongWaveLoss, AgreesWithPrintedLossesAndIsNeverAGain) {
    constexpr float horizontal = 0.0f, vertical = 1.5707964f;
    for (float cloud = 0.0f; cloud <= 1.0f; cloud += 0.125f) {
        EXPECT_NEAR(lib::CLRERD(horizontal, cloud), 93.0f - 79.0f * cloud, 1e-4f);
        EXPECT_NEAR(lib::CLRERD(vertical, cloud), 21.0f - 17.0f * cloud, 1e-4f);
    }
    EXPECT_EQ(lib::CLRERD(horizontal, 1.2f), 0.0f);
}

}  // namespace
