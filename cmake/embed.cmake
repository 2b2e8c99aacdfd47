# Text files as string literals, for programs that carry them along; the file stays the single source.

# quorvel_embed(FILE): its text as a string literal in FILE.inc of the generated folder, dots as underscores.
function(quorvel_embed file)
    file(REAL_PATH ${file} file BASE_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR})
    get_filename_component(name ${file} NAME)
    string(REPLACE . _ name ${name})
    file(READ ${file} content)
    file(CONFIGURE OUTPUT ${QUORVEL_GENERATED}/${name}.inc CONTENT "R\"~~(${content})~~\"\n" @ONLY)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
endfunction()

# quorvel_embed_all(OUTPUT FILES...): writes OUTPUT, the entries of an array of name and text.
function(quorvel_embed_all output)
    set(entries "")
    foreach(file ${ARGN})
        file(READ ${file} text)
        cmake_path(GET file FILENAME name)
        string(APPEND entries "{\"${name}\", R\"~~(${text})~~\"},\n")
        set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
    endforeach()
    file(CONFIGURE OUTPUT ${output} CONTENT "${entries}" @ONLY)
endfunction()
