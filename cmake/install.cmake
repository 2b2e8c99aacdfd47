include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

install(FILES include/quorvel.h include/quorvel_arrays.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY include/quorvel DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(TARGETS quorvel quorvel_static quorvel_arrays quorvel_arrays_static quorvel_cpp EXPORT quorvel)
set(QUORVEL_PACKAGE ${CMAKE_INSTALL_LIBDIR}/cmake/quorvel)
install(EXPORT quorvel NAMESPACE quorvel:: FILE quorvel-targets.cmake DESTINATION ${QUORVEL_PACKAGE})
configure_file(cmake/quorvel-config.cmake.in quorvel-config.cmake COPYONLY)
write_basic_package_version_file(quorvel-config-version.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/quorvel-config.cmake ${PROJECT_BINARY_DIR}/quorvel-config-version.cmake
        DESTINATION ${QUORVEL_PACKAGE})

# A pkg-config file for each library. Relative, so that the installed tree may be moved.
file(RELATIVE_PATH QUORVEL_UP_FROM_PKGCONFIG /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
foreach(QUORVEL_LIBRARY quorvel quorvel_arrays)
    configure_file(cmake/quorvel.pc.in ${QUORVEL_LIBRARY}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${QUORVEL_LIBRARY}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endforeach()
