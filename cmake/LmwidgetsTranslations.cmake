# Makes the .qm files, and the resource that carries them within the library, so that a host has the
# languages without a file to find. Included by the library's CMakeLists.txt.
#
# The programs are asked for by name, not as a package of Qt's: in a cross build they are those of the
# machine that builds.

set(lmwidgets_translation_files lmwidgets_de.ts lmwidgets_zh_CN.ts)

find_program(LMWIDGETS_LRELEASE NAMES lrelease lrelease-qt5
    PATHS /usr/lib/qt5/bin /usr/lib/x86_64-linux-gnu/qt5/bin
    DOC "Qt's lrelease, from the package qttools5-dev-tools on Debian"
)
find_program(LMWIDGETS_LUPDATE NAMES lupdate lupdate-qt5
    PATHS /usr/lib/qt5/bin /usr/lib/x86_64-linux-gnu/qt5/bin
    DOC "Qt's lupdate, from the package qttools5-dev-tools on Debian"
)
if(NOT LMWIDGETS_LRELEASE)
    message(FATAL_ERROR
        "lmwidgets: lrelease was not found, which makes the translations. On Debian it is in the package "
        "qttools5-dev-tools; elsewhere say -DLMWIDGETS_LRELEASE=<path>."
    )
endif()

set(lmwidgets_qm_dir "${PROJECT_BINARY_DIR}/translations")
file(MAKE_DIRECTORY "${lmwidgets_qm_dir}")
set(lmwidgets_qm_files)
set(lmwidgets_qrc_entries)
foreach(ts IN LISTS lmwidgets_translation_files)
    string(REPLACE ".ts" ".qm" qm "${ts}")
    add_custom_command(
        OUTPUT "${lmwidgets_qm_dir}/${qm}"
        COMMAND "${LMWIDGETS_LRELEASE}" -silent "${PROJECT_SOURCE_DIR}/translations/${ts}"
            -qm "${lmwidgets_qm_dir}/${qm}"
        DEPENDS "${PROJECT_SOURCE_DIR}/translations/${ts}"
        COMMENT "Making ${qm}"
        VERBATIM
    )
    list(APPEND lmwidgets_qm_files "${lmwidgets_qm_dir}/${qm}")
    string(APPEND lmwidgets_qrc_entries "        <file>${qm}</file>\n")
endforeach()

file(GENERATE
    OUTPUT "${lmwidgets_qm_dir}/translations.qrc"
    CONTENT "<RCC>\n    <qresource prefix=\"/lmwidgets/translations\">\n${lmwidgets_qrc_entries}    </qresource>\n</RCC>\n"
)
set(lmwidgets_translation_sources "${lmwidgets_qm_dir}/qrc_translations.cpp")
add_custom_command(
    OUTPUT "${lmwidgets_translation_sources}"
    COMMAND Qt5::rcc --name lmwidgets_translations --output "${lmwidgets_translation_sources}"
        "${lmwidgets_qm_dir}/translations.qrc"
    DEPENDS "${lmwidgets_qm_dir}/translations.qrc" ${lmwidgets_qm_files}
    COMMENT "Putting the translations into the library"
    VERBATIM
)
# Written by rcc, so none of our warnings and checks apply.
set_source_files_properties("${lmwidgets_translation_sources}" PROPERTIES
    SKIP_AUTOMOC ON
    SKIP_AUTOUIC ON
)

install(FILES ${lmwidgets_qm_files}
    DESTINATION "${CMAKE_INSTALL_DATADIR}/lmwidgets/translations"
    COMPONENT dev
)

# `cmake --build build/dev --target update_translations` after a text was added or changed; translate
# what is marked unfinished then.
if(LMWIDGETS_LUPDATE AND CMAKE_SOURCE_DIR STREQUAL PROJECT_SOURCE_DIR)
    set(ts_paths "${lmwidgets_translation_files}")
    list(TRANSFORM ts_paths PREPEND translations/)
    add_custom_target(update_translations
        COMMAND "${LMWIDGETS_LUPDATE}" -I . -locations none -no-obsolete lmwidgets -ts ${ts_paths}
        WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}"
        VERBATIM
    )
endif()
