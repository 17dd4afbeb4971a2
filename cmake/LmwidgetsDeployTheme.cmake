# lmwidgets_deploy_theme(<target>)
#
# Copies the default theme into a folder "theme" beside the executable that <target> builds, where the
# widgets look for it at run time. Works with an executable target of the calling project, both in the
# lmwidgets source tree and from an installed package.
#
# Only files that differ are written, and two executables in one folder share one copy.
function(lmwidgets_deploy_theme target)
    add_custom_command(TARGET ${target} POST_BUILD
        COMMAND "${CMAKE_COMMAND}"
            "-DSOURCE=${LMWIDGETS_DEPLOYED_THEME}"
            "-DDESTINATION=$<TARGET_FILE_DIR:${target}>/theme"
            -P "${LMWIDGETS_DEPLOY_SCRIPT}"
        VERBATIM
    )
endfunction()

if(NOT LMWIDGETS_THEME_DIR)
    get_filename_component(LMWIDGETS_THEME_DIR "${CMAKE_CURRENT_LIST_DIR}/../theme" ABSOLUTE)
endif()
# The function is called from folders of the host that do not see the variables of this one.
set(LMWIDGETS_DEPLOYED_THEME "${LMWIDGETS_THEME_DIR}" CACHE INTERNAL "The theme that hosts get")
set(LMWIDGETS_DEPLOY_SCRIPT "${CMAKE_CURRENT_LIST_DIR}/LmwidgetsCopyTheme.cmake"
    CACHE INTERNAL "What copies the theme"
)
