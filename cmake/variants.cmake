# quorvel_variant(NAME COMPILER FLAGS...): the shared library again, by one command of another
# compiler or with other flags; its file is appended to `variants`.
function(quorvel_variant name compiler)
    set(output ${PROJECT_BINARY_DIR}/variants/libquorvel-${name}.so)
    file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/variants)
    get_target_property(sources quorvel_objects SOURCES)
    list(FILTER sources INCLUDE REGEX "\\.cpp$")
    # Compiled as one file, in a quarter of the time.
    set(all ${PROJECT_BINARY_DIR}/variants/${name}.cpp)
    list(TRANSFORM sources REPLACE "(.+)" "#include \"\\1\"\n")
    string(JOIN "" sources ${sources})
    file(CONFIGURE OUTPUT ${all} CONTENT "${sources}" @ONLY)
    file(GLOB_RECURSE headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/*.h)
    add_custom_command(
        OUTPUT ${output}
        COMMAND ${compiler} -std=c++20 -fPIC -shared -fvisibility=hidden -ffp-contract=off -fno-exceptions -fno-rtti
                -DQUORVEL_BUILDING -I. -I${QUORVEL_GENERATED} ${ARGN} ${all} -o ${output}
        DEPENDS quorvel ${all} ${headers}
        WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}/src
        COMMENT "Building the library with ${compiler} ${ARGN}"
        VERBATIM COMMAND_EXPAND_LISTS)
    list(APPEND variants ${output})
    set(variants ${variants} PARENT_SCOPE)
endfunction()
