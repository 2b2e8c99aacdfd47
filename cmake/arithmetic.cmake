# Single precision exactly as written, on every target: no contraction, no reassociation, no excess
# precision. The last two flags change no value and let loops vectorise.
include(CheckCXXCompilerFlag)

# 32-bit x86 would compute in the x87 unit, in extended precision.
if(CMAKE_SIZEOF_VOID_P EQUAL 4 AND CMAKE_SYSTEM_PROCESSOR MATCHES "^(i[3-6]86|x86_64)$")
    add_compile_options(-msse2 -mfpmath=sse)
endif()

add_library(quorvel_arithmetic INTERFACE)
target_compile_options(quorvel_arithmetic INTERFACE
    -ffp-contract=off -fno-fast-math -fno-math-errno -fno-trapping-math
    -Wall -Wextra -Wpedantic
    -Werror=double-promotion -Werror=conversion -Werror=float-conversion -Wno-sign-conversion
    -Werror=missing-declarations)

check_cxx_compiler_flag(-fexcess-precision=standard QUORVEL_HAS_EXCESS_PRECISION)
if(QUORVEL_HAS_EXCESS_PRECISION)
    target_compile_options(quorvel_arithmetic INTERFACE -fexcess-precision=standard)
endif()

# Masks are combined by & and |: one text serves one number and many.
check_cxx_compiler_flag(-Wbitwise-instead-of-logical QUORVEL_WARNS_OF_MASKS)
if(QUORVEL_WARNS_OF_MASKS)
    target_compile_options(quorvel_arithmetic INTERFACE -Wno-bitwise-instead-of-logical)
endif()
