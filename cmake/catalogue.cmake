# quorvel_generate(PRODUCT OUTPUT [FILES...]): a file of the build, or FILES in a folder of it, that follows from the
# catalogue of routines. A target that uses it has OUTPUT.stamp among its sources: the stamp says when the product was
# last held against the catalogue, and the product itself changes only with its text, so that an edited note
# recompiles nothing.
set(QUORVEL_GENERATED ${PROJECT_BINARY_DIR}/generated)
file(MAKE_DIRECTORY ${QUORVEL_GENERATED})
file(GLOB_RECURSE QUORVEL_CATALOGUE CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/catalogue/*.toml)
file(GLOB_RECURSE QUORVEL_GENERATOR CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/generate/*.py)

set(QUORVEL_GENERATE ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/generate/generate.py)

function(quorvel_generate product output)
    set(files ${ARGN})
    if(NOT files)
        set(files ${output})
    endif()
    add_custom_command(
        OUTPUT ${output}.stamp
        BYPRODUCTS ${files}
        COMMAND ${QUORVEL_GENERATE} ${product} ${output}
        COMMAND ${CMAKE_COMMAND} -E touch ${output}.stamp
        DEPENDS ${QUORVEL_CATALOGUE} ${QUORVEL_GENERATOR}
        COMMENT "Generating ${product}"
        VERBATIM)
endfunction()

# quorvel_generate_folder(PRODUCT OUTPUT VARIABLE): all files of a product in the folder OUTPUT, in VARIABLE.
function(quorvel_generate_folder product output variable)
    execute_process(COMMAND ${QUORVEL_GENERATE} --list ${product} ${output}
        OUTPUT_VARIABLE files COMMAND_ERROR_IS_FATAL ANY)
    quorvel_generate(${product} ${output} ${files})
    set(${variable} ${files} ${output}.stamp PARENT_SCOPE)
endfunction()
