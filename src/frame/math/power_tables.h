// Tables of single-precision pow, written by tools/math/power_tables.py.
#pragma once

#include <cstdint>

// clang-format off

namespace quorvel::math::detail {

// The mantissa whose bit pattern starts the first of 64 steps of an octave
constexpr std::uint64_t kLogOrigin = 0x3fe9155555555556;

// For each step 1/c, of 28 bits so that its product with a float is exact, and log2 c
struct LogStep {
    double inverse, log2;
};
constexpr LogStep kLogSteps[64] = {
    {0x1.44f8ce8000000p+0, -0x1.606e682d685a5p-2},
    {0x1.41c7db2000000p+0, -0x1.51da334737975p-2},
    {0x1.3ea6cb4000000p+0, -0x1.436a76ef60f65p-2},
    {0x1.3b95298000000p+0, -0x1.351e7f1c954dap-2},
    {0x1.389284a000000p+0, -0x1.26f59b4c0dd1ap-2},
    {0x1.359e702000000p+0, -0x1.18ef22387fa85p-2},
    {0x1.32b8830000000p+0, -0x1.0b0a6cb6cc548p-2},
    {0x1.2fe058a000000p+0, -0x1.fa8db52627a04p-3},
    {0x1.2d158fe000000p+0, -0x1.df479e2c9a540p-3},
    {0x1.2a57cb2000000p+0, -0x1.c441634cf2140p-3},
    {0x1.27a6b06000000p+0, -0x1.a979de113dfc6p-3},
    {0x1.2501e86000000p+0, -0x1.8eefeb45045b7p-3},
    {0x1.22691f6000000p+0, -0x1.74a2738b437b0p-3},
    {0x1.1fdc048000000p+0, -0x1.5a9066428b24dp-3},
    {0x1.1d5a49a000000p+0, -0x1.40b8b942ec893p-3},
    {0x1.1ae3a32000000p+0, -0x1.271a673f434ccp-3},
    {0x1.1877c88000000p+0, -0x1.0db4773e5fc8cp-3},
    {0x1.1616732000000p+0, -0x1.e90be102d8d65p-4},
    {0x1.13bf5f2000000p+0, -0x1.b71bc90944ecdp-4},
    {0x1.11724ac000000p+0, -0x1.8596d28ca9991p-4},
    {0x1.0f2ef68000000p+0, -0x1.547b36cb19523p-4},
    {0x1.0cf524c000000p+0, -0x1.23c735abdbd81p-4},
    {0x1.0ac49a4000000p+0, -0x1.e6f2444a8a101p-5},
    {0x1.089d1d4000000p+0, -0x1.871ea0f835c2ep-5},
    {0x1.067e764000000p+0, -0x1.2810505287784p-5},
    {0x1.04686f4000000p+0, -0x1.938852232a2e6p-6},
    {0x1.025ad3e000000p+0, -0x1.b0dc45ff73f6ep-7},
    {0x1p+0, 0x0.0p+0},
    {0x1.f96b452000000p-1, 0x1.31c9d506de510p-6},
    {0x1.f1bde4c000000p-1, 0x1.4dcb46ae4b44ep-5},
    {0x1.ea4b54e000000p-1, 0x1.fff7756f16f54p-5},
    {0x1.e310fba000000p-1, 0x1.57bf19cc14a9cp-4},
    {0x1.dc0c65a000000p-1, 0x1.ae39acdc2bc39p-4},
    {0x1.d53b43e000000p-1, 0x1.01ba766970ee3p-3},
    {0x1.ce9b684000000p-1, 0x1.2bbcf8b37ab8cp-3},
    {0x1.c82ac40000000p-1, 0x1.5528b659d84eep-3},
    {0x1.c1e7656000000p-1, 0x1.7e01d9c44e222p-3},
    {0x1.bbcf754000000p-1, 0x1.a64c63f6571d0p-3},
    {0x1.b5e1362000000p-1, 0x1.ce0c29a7205b6p-3},
    {0x1.b01b01c000000p-1, 0x1.f544da22fc422p-3},
    {0x1.aa7b47a000000p-1, 0x1.0dfd00a08f5c3p-2},
    {0x1.a5008c6000000p-1, 0x1.211781f18d7cdp-2},
    {0x1.9fa9676000000p-1, 0x1.33f3948e0ec6ap-2},
    {0x1.9a74826000000p-1, 0x1.4692cb0f41b92p-2},
    {0x1.9560980000000p-1, 0x1.58f6a93ad9786p-2},
    {0x1.906c72c000000p-1, 0x1.6b20a4a3326efp-2},
    {0x1.8b96ebe000000p-1, 0x1.7d1225f8b5a65p-2},
    {0x1.86deeb2000000p-1, 0x1.8ecc874fd6ff1p-2},
    {0x1.8243652000000p-1, 0x1.a05117b0be719p-2},
    {0x1.7dc35b0000000p-1, 0x1.b1a11a37f019fp-2},
    {0x1.795dd9a000000p-1, 0x1.c2bdc6c029fc4p-2},
    {0x1.7511f94000000p-1, 0x1.d3a8493c0d7c1p-2},
    {0x1.70dedc0000000p-1, 0x1.e461c5a3bd45ep-2},
    {0x1.6cc3ae4000000p-1, 0x1.f4eb54ab6032fp-2},
    {0x1.68bfa5e000000p-1, 0x1.02a3027a4b749p-1},
    {0x1.64d200e000000p-1, 0x1.0ab96f8220f2fp-1},
    {0x1.60fa066000000p-1, 0x1.12b96fd0941f4p-1},
    {0x1.5d37050000000p-1, 0x1.1aa37e8172e64p-1},
    {0x1.598852c000000p-1, 0x1.22781301504d0p-1},
    {0x1.55ed4d0000000p-1, 0x1.2a37a062be920p-1},
    {0x1.526557a000000p-1, 0x1.31e2969a4ef44p-1},
    {0x1.4eefdd2000000p-1, 0x1.397961a23e4c7p-1},
    {0x1.4b8c4dc000000p-1, 0x1.40fc6ad23a130p-1},
    {0x1.483a1fa000000p-1, 0x1.486c181385462p-1},
};

// 2^(i/32)
constexpr double kExpSteps[32] = {
    0x1p+0, 0x1.059b0d3158574p+0, 0x1.0b5586cf9890fp+0, 0x1.11301d0125b51p+0,
    0x1.172b83c7d517bp+0, 0x1.1d4873168b9aap+0, 0x1.2387a6e756238p+0, 0x1.29e9df51fdee1p+0,
    0x1.306fe0a31b715p+0, 0x1.371a7373aa9cbp+0, 0x1.3dea64c123422p+0, 0x1.44e086061892dp+0,
    0x1.4bfdad5362a27p+0, 0x1.5342b569d4f82p+0, 0x1.5ab07dd485429p+0, 0x1.6247eb03a5585p+0,
    0x1.6a09e667f3bcdp+0, 0x1.71f75e8ec5f74p+0, 0x1.7a11473eb0187p+0, 0x1.82589994cce13p+0,
    0x1.8ace5422aa0dbp+0, 0x1.93737b0cdc5e5p+0, 0x1.9c49182a3f090p+0, 0x1.a5503b23e255dp+0,
    0x1.ae89f995ad3adp+0, 0x1.b7f76f2fb5e47p+0, 0x1.c199bdd85529cp+0, 0x1.cb720dcef9069p+0,
    0x1.d5818dcfba487p+0, 0x1.dfc97337b9b5fp+0, 0x1.ea4afa2a490dap+0, 0x1.f50765b6e4540p+0,
};

// clang-format on

}  // namespace quorvel::math::detail
