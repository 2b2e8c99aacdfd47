# The library's sources as one file, which compiles in a quarter of the time.
set(whole_library ${PROJECT_BINARY_DIR}/variants/quorvel.cpp)
set(sources "$<FILTER:$<TARGET_PROPERTY:quorvel_objects,SOURCES>,INCLUDE,[.]cpp$>")
file(GENERATE OUTPUT ${whole_library} CONTENT "#include \"$<JOIN:${sources},\"\n#include \">\"\n")
file(GLOB_RECURSE library_headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/*.h)

# quorvel_variant(NAME COMPILER FLAGS...): the shared library again, by one command of another
# compiler or with other flags; its file is appended to `variants`.
function(quorvel_variant name compiler)
    set(output ${PROJECT_BINARY_DIR}/variants/libquorvel-${name}.so)
    add_custom_command(
        OUTPUT ${output}
        COMMAND ${compiler} -std=c++20 -fPIC -shared -fvisibility=hidden -ffp-contract=off -fno-exceptions -fno-rtti
                -DQUORVEL_BUILDING -I. -I${QUORVEL_GENERATED} ${ARGN} ${whole_library} -o ${output}
        DEPENDS quorvel ${whole_library} ${library_headers}
        WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}/src
        COMMENT "Building the library with ${compiler} ${ARGN}"
        VERBATIM)
    set(variants ${variants} ${output} PARENT_SCOPE)
endfunction()
