# Script behind the target docs:
# cmake -DDIRECTORY=... -DDOXYGEN=... [-DQHELPGENERATOR=...] -P this file
#
# Runs doxygen with the Doxyfile in DIRECTORY, which fails on any warning, and packs the pages into
# lmwidgets.qch. What a former run has made goes first: the page of a class that is no more must not be
# installed.
file(REMOVE_RECURSE "${DIRECTORY}/html")
file(REMOVE "${DIRECTORY}/lmwidgets.qch" "${DIRECTORY}/stamp")

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    # The generator tells of what it leaves out, and goes on.
    if(NOT result EQUAL 0 OR output MATCHES "[Ww]arning|[Ee]rror|does not exist")
        message(FATAL_ERROR "${output}")
    endif()
endfunction()

run("${DOXYGEN}" "${DIRECTORY}/Doxyfile")

# Doxygen embeds drawings as objects, which Assistant does not show.
file(GLOB pages "${DIRECTORY}/html/*.html")
foreach(page IN LISTS pages)
    file(READ "${page}" text)
    string(REGEX REPLACE "<object type=\"image/svg\\+xml\" data=\"([^\"]*)\"[^>]*>[^<]*</object>" "<img src=\"\\1\" alt=\"\"/>"
        shown "${text}"
    )
    if(NOT shown STREQUAL text)
        file(WRITE "${page}" "${shown}")
    endif()
endforeach()

if(QHELPGENERATOR)
    run("${CMAKE_COMMAND}" -E env QT_QPA_PLATFORM=offscreen
        "${QHELPGENERATOR}" "${DIRECTORY}/html/index.qhp" -o "${DIRECTORY}/lmwidgets.qch")
endif()
file(TOUCH "${DIRECTORY}/stamp")
