// Literal form of the anisotropic sky of Perez: every function where the formula has it.
#pragma once

#include <cmath>

#include "math/math.h"

namespace literal {

namespace math = quorvel::math;

inline float CLPERSKY(float altitude, float tilt, float beam_horizontal, float diffuse_horizontal,
                      float incidence, float extraterrestrial) {
    constexpr double limits[7] = {1.065, 1.23, 1.5, 1.95, 2.8, 4.5, 6.2};
    constexpr double f[8][6] = {
        {-0.0083117, 0.5877285, -0.0620636, -0.0596012, 0.0721249, -0.0220216},
        {0.1299457, 0.6825954, -0.1513752, -0.0189325, 0.065965, -0.0288748},
        {0.3296958, 0.4868735, -0.2210958, 0.055414, -0.0639588, -0.0260542},
        {0.5682053, 0.1874525, -0.295129, 0.1088631, -0.1519229, -0.0139754},
        {0.873028, -0.3920403, -0.3616149, 0.2255647, -0.4620442, 0.0012448},
        {1.1326077, -1.2367284, -0.4118494, 0.2877813, -0.8230357, 0.0558651},
        {1.0601591, -1.5999137, -0.3589221, 0.2642124, -1.127234, 0.1310694},
        {0.677747, -0.3272588, -0.2504286, 0.1561313, -1.3765031, 0.2506212},
    };
    const auto alpha = static_cast<double>(altitude), beta = static_cast<double>(tilt);
    const auto beam = static_cast<double>(beam_horizontal);
    const auto diffuse = static_cast<double>(diffuse_horizontal);
    const double Z = 1.570796327 - alpha, Zd = Z / 0.01745329238474369;
    const double m = 1.0 / (math::sin(alpha) + 0.50572 * math::pow(alpha + 6.07995, -1.6364));
    const double brightness = m * diffuse / static_cast<double>(extraterrestrial);
    const double clearness =
        ((beam / math::sin(alpha) + diffuse) / diffuse + 5.534e-06 * (Zd * Zd * Zd)) /
        (1.0 + 5.534e-06 * (Zd * Zd * Zd));
    int bin = 0;
    while (bin < 7 && clearness > limits[bin]) ++bin;
    double F1 = f[bin][0] + f[bin][1] * brightness + f[bin][2] * Z;
    if (F1 < 0.0) F1 = 0.0;
    const double F2 = f[bin][3] + f[bin][4] * brightness + f[bin][5] * Z;
    double a = math::cos(static_cast<double>(incidence)), b = math::cos(Z);
    if (a < 0.0) a = 0.0;
    if (b < 0.0871557) b = 0.0871557;
    const double c = math::cos(beta / 2.0);
    return static_cast<float>(diffuse * (c * c * (1.0 - F1) + F1 * a / b + F2 * math::sin(beta)));
}

}  // namespace literal
