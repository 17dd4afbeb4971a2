# The component "gallery": the program, the library, the theme, and all that they need of Qt and of the
# compiler, in one folder. Unpacked anywhere, it runs. Installing the library leaves it out.
set(CPACK_GENERATOR ZIP)
set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL gallery)
set(CPACK_ARCHIVE_GALLERY_FILE_NAME "lmwidgets-gallery-${PROJECT_VERSION}-win64")
set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY ON)
set(CPACK_PACKAGE_FILE_NAME "${CPACK_ARCHIVE_GALLERY_FILE_NAME}")

if(NOT TARGET lmgallery)
    return()
endif()

set(lmwidgets_gallery_plugins
    platforms/QWindowsIntegrationPlugin
    imageformats/QGifPlugin
    imageformats/QICOPlugin
    imageformats/QJpegPlugin
    styles/QWindowsVistaStylePlugin
)
foreach(plugin IN LISTS lmwidgets_gallery_plugins)
    get_filename_component(name ${plugin} NAME)
    if(NOT TARGET Qt5::${name})
        message(STATUS "This Qt has no ${name}: cpack makes no zip of the gallery")
        return()
    endif()
endforeach()

install(TARGETS lmgallery lmwidgets
    RUNTIME DESTINATION . COMPONENT gallery EXCLUDE_FROM_ALL
    ARCHIVE DESTINATION . COMPONENT gallery_unused EXCLUDE_FROM_ALL
)
install(DIRECTORY theme DESTINATION . COMPONENT gallery EXCLUDE_FROM_ALL
    FILES_MATCHING
    PATTERN "*.png"
    PATTERN "*.gif"
    PATTERN "*.qss"
    PATTERN "source" EXCLUDE
)
foreach(module Core Gui Widgets)
    install(FILES "$<TARGET_FILE:Qt5::${module}>" DESTINATION . COMPONENT gallery EXCLUDE_FROM_ALL)
endforeach()
# Qt finds its plugins in folders of these names beside the program.
foreach(plugin IN LISTS lmwidgets_gallery_plugins)
    get_filename_component(name ${plugin} NAME)
    get_filename_component(folder ${plugin} DIRECTORY)
    install(FILES "$<TARGET_FILE:Qt5::${name}>" DESTINATION ${folder}
        COMPONENT gallery EXCLUDE_FROM_ALL)
endforeach()

if(MINGW)
    foreach(library libgcc_s_seh-1.dll libstdc++-6.dll libwinpthread-1.dll)
        execute_process(
            COMMAND "${CMAKE_CXX_COMPILER}" -print-file-name=${library}
            OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE
        )
        if(NOT IS_ABSOLUTE "${path}")
            message(FATAL_ERROR "${CMAKE_CXX_COMPILER} has no ${library}, which the gallery's zip needs")
        endif()
        install(FILES "${path}" DESTINATION . COMPONENT gallery EXCLUDE_FROM_ALL)
    endforeach()
endif()
