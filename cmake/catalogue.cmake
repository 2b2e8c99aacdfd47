# quorvel_generate(PRODUCT OUTPUT): a file of the build that follows from the catalogue of routines. A target
# that uses it has OUTPUT.stamp among its sources: the stamp says when the product was last held against the
# catalogue, and the product itself changes only with its text, so that an edited note recompiles nothing.
set(QUORVEL_GENERATED ${PROJECT_BINARY_DIR}/generated)
file(MAKE_DIRECTORY ${QUORVEL_GENERATED})
file(GLOB_RECURSE QUORVEL_CATALOGUE CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/catalogue/*.toml)
file(GLOB QUORVEL_GENERATOR CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/generate/*.py)

function(quorvel_generate product output)
    add_custom_command(
        OUTPUT ${output}.stamp
        BYPRODUCTS ${output}
        COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/generate/generate.py ${product} ${output}
        COMMAND ${CMAKE_COMMAND} -E touch ${output}.stamp
        DEPENDS ${QUORVEL_CATALOGUE} ${QUORVEL_GENERATOR}
        COMMENT "Generating ${product}"
        VERBATIM)
endfunction()
