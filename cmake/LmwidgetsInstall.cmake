# Install rules: library, headers, package files for CMake and pkg-config, and the default theme. The
# component "runtime" is what a program needs that was built with the library, "dev" what building one
# needs. The theme is among the latter: a host takes a copy of it along, beside its executable.
include(CMakePackageConfigHelpers)

set(lmwidgets_cmake_dir "${CMAKE_INSTALL_LIBDIR}/cmake/lmwidgets")

install(TARGETS lmwidgets EXPORT lmwidgetsTargets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT runtime NAMELINK_COMPONENT dev
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT dev
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT runtime
    INCLUDES DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}"
)
install(FILES ${lmwidgets_public_headers} "${PROJECT_BINARY_DIR}/lmwidgets/lmwidgets_version.h"
    DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/lmwidgets"
    COMPONENT dev
)
install(EXPORT lmwidgetsTargets
    NAMESPACE lmwidgets::
    DESTINATION "${lmwidgets_cmake_dir}"
    COMPONENT dev
)

configure_package_config_file(
    cmake/lmwidgetsConfig.cmake.in "${PROJECT_BINARY_DIR}/lmwidgetsConfig.cmake"
    INSTALL_DESTINATION "${lmwidgets_cmake_dir}"
    PATH_VARS CMAKE_INSTALL_DATADIR
)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/lmwidgetsConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion
)
install(FILES
    "${PROJECT_BINARY_DIR}/lmwidgetsConfig.cmake"
    "${PROJECT_BINARY_DIR}/lmwidgetsConfigVersion.cmake"
    cmake/LmwidgetsDeployTheme.cmake
    cmake/LmwidgetsCopyTheme.cmake
    DESTINATION "${lmwidgets_cmake_dir}"
    COMPONENT dev
)

# Relative to the folder of the .pc file, so that the installed tree may be moved.
file(RELATIVE_PATH lmwidgets_pc_prefix
    "/prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/prefix")
configure_file(cmake/lmwidgets.pc.in "${PROJECT_BINARY_DIR}/lmwidgets.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/lmwidgets.pc"
    DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig"
    COMPONENT dev
)

install(DIRECTORY theme/ DESTINATION "${CMAKE_INSTALL_DATADIR}/lmwidgets/theme"
    COMPONENT dev
    FILES_MATCHING
    PATTERN "*.png"
    PATTERN "*.gif"
    PATTERN "*.qss"
    PATTERN "source" EXCLUDE
)
