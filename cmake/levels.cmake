# quorvel_compile_for(TARGET LEVEL): packs of a level of x86-64, in a namespace of its own, lest the linker take what
# the compiler makes for one level for another's.

# Structures of packs are copied register by register: left to itself GCC copies them in pieces of 16
# bytes, and whoever reads a register whole after that waits until they are all in memory.
check_cxx_compiler_flag("-mmove-max=256 -mstore-max=256" QUORVEL_HAS_MOVE_MAX)
set(QUORVEL_REGISTER_v2 128)
set(QUORVEL_REGISTER_v3 256)
set(QUORVEL_REGISTER_v4 512)

function(quorvel_compile_for target level)
    target_compile_definitions(${target} PRIVATE quorvel=quorvel_${level})
    # Packs never cross the border of an object. GCC's own headers use values that are not set.
    target_compile_options(${target} PRIVATE -march=x86-64-${level} -fno-exceptions -fno-rtti -Wno-psabi
        $<$<CXX_COMPILER_ID:GNU>:-Wno-uninitialized -Wno-maybe-uninitialized>)
    if(QUORVEL_HAS_MOVE_MAX)
        set(bits ${QUORVEL_REGISTER_${level}})
        target_compile_options(${target} PRIVATE -mmove-max=${bits} -mstore-max=${bits})
    endif()
    if(WIN32)
        # The stack is aligned to 16 bytes there, whatever the compiler assumes.
        target_compile_options(${target} PRIVATE -Wa,-muse-unaligned-vector-move)
    endif()
endfunction()
