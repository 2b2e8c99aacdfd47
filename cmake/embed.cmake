# Text files as string literals, for programs that carry them along; the file stays the single source.

# quorvel_embed(FILE OUTPUT): writes OUTPUT, which holds the file as one string literal.
function(quorvel_embed file output)
    file(READ ${file} text)
    file(CONFIGURE OUTPUT ${output} CONTENT "R\"~~(${text})~~\"\n" @ONLY)
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
