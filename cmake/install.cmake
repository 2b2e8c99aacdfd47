include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

install(FILES include/quorvel.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(TARGETS quorvel quorvel_static EXPORT quorvel)
install(EXPORT quorvel NAMESPACE quorvel:: FILE quorvel-config.cmake
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/quorvel)
write_basic_package_version_file(quorvel-config-version.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/quorvel-config-version.cmake
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/quorvel)

# Relative, so that the installed tree may be moved.
file(RELATIVE_PATH QUORVEL_UP_FROM_PKGCONFIG /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
configure_file(cmake/quorvel.pc.in quorvel.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/quorvel.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
