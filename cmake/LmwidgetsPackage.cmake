# What cpack makes. For Windows a zip that shows the gallery from any folder: see LmwidgetsPackageWindows.cmake.
#
# On Debian a package with the shared library and one with what a developer needs.
# scripts/package configures for /usr and calls it; the paths of an installed package are fixed when the
# build is configured.
set(CPACK_PACKAGE_NAME lmwidgets)
set(CPACK_PACKAGE_VENDOR "the lmwidgets developers")
set(CPACK_PACKAGE_CONTACT "the lmwidgets developers <developers@lmwidgets.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_COMPONENTS_ALL runtime dev)
set(CPACK_STRIP_FILES ON)

if(WIN32)
    include(cmake/LmwidgetsPackageWindows.cmake)
    include(CPack)
    return()
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Designer's plugin needs the library, which no installed package provides while both are made.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${PROJECT_BINARY_DIR}/lmwidgets")
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(lmwidgets_runtime_package "liblmwidgets${PROJECT_VERSION_MAJOR}")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME "${lmwidgets_runtime_package}")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA "${PROJECT_SOURCE_DIR}/cmake/package/triggers")
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "Dialogs without a system frame that the mouse moves and resizes, a message
box, file, progress and waiting dialogs in that frame, input widgets,
containers, and the editors of a layer table.

This package holds the shared library.")

set(CPACK_DEBIAN_DEV_PACKAGE_NAME liblmwidgets-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS
    "${lmwidgets_runtime_package} (= ${PROJECT_VERSION}), qtbase5-dev (>= 5.14)"
)
set(CPACK_DEBIAN_DEV_PACKAGE_SUGGESTS qttools5-dev-tools) # has Qt Designer
set(CPACK_DEBIAN_DEV_DESCRIPTION "Dialogs without a system frame that the mouse moves and resizes, a message
box, file, progress and waiting dialogs in that frame, input widgets,
containers, and the editors of a layer table.

This package holds the headers, the package files for CMake and pkg-config,
the default theme that a host puts beside its executable, the documentation
for a browser and for Qt Creator, and the plugin that brings the widgets into
Qt Designer.")

# Debian wants to find in every package who made it and what changed.
find_program(LMWIDGETS_GZIP gzip)
if(LMWIDGETS_GZIP AND UNIX)
    set(changelog "${PROJECT_BINARY_DIR}/package/changelog")
    string(TIMESTAMP lmwidgets_package_date "%a, %d %b %Y %H:%M:%S +0000" UTC)
    configure_file(cmake/package/changelog.in "${changelog}" @ONLY)
    execute_process(
        COMMAND "${LMWIDGETS_GZIP}" -9nf "${changelog}"
        RESULT_VARIABLE lmwidgets_gzip_result
    )
    if(NOT lmwidgets_gzip_result EQUAL 0)
        message(FATAL_ERROR "lmwidgets: the changelog of the package could not be compressed")
    endif()
    foreach(pair runtime:${lmwidgets_runtime_package} dev:liblmwidgets-dev)
        string(REPLACE ":" ";" pair "${pair}")
        list(GET pair 0 component)
        list(GET pair 1 package)
        install(FILES cmake/package/copyright "${changelog}.gz"
            DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${package}"
            COMPONENT ${component}
        )
    endforeach()
endif()

include(CPack)
