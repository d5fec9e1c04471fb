# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# Compiles the catalogues in common/translations with Qt Linguist's lrelease, and puts them into libmorvane-ui. Their format
# is the same in all versions of Qt, so any lrelease will do. Without it the texts remain English.
get_target_property(moc ${MORVANE_QT}::moc IMPORTED_LOCATION)
cmake_path(GET moc PARENT_PATH tools)
find_program(MORVANE_LRELEASE NAMES lrelease lrelease-qt6 lrelease-qt5
    HINTS ${tools} ${tools}/../bin /usr/lib/qt6/bin /usr/lib/qt5/bin DOC "lrelease of Qt Linguist, for the translations")
mark_as_advanced(MORVANE_LRELEASE)

function(morvane_embed_translations target)
    if(NOT MORVANE_LRELEASE)
        message(STATUS "Not built: translations (lrelease of Qt Linguist is missing)")
        return()
    endif()
    set(directory ${CMAKE_CURRENT_BINARY_DIR}/translations)
    set(catalogues)
    set(entries)
    foreach(language IN LISTS ARGN)
        set(source ${PROJECT_SOURCE_DIR}/common/translations/morvane_${language}.ts)
        set(catalogue ${directory}/morvane_${language}.qm)
        add_custom_command(OUTPUT ${catalogue}
            COMMAND ${MORVANE_LRELEASE} -silent ${source} -qm ${catalogue} DEPENDS ${source} VERBATIM)
        list(APPEND catalogues ${catalogue})
        string(APPEND entries "<file>morvane_${language}.qm</file>")
    endforeach()
    set(list ${directory}/morvane_translations.qrc)
    file(CONFIGURE OUTPUT ${list}
        CONTENT "<RCC><qresource prefix=\"/morvane/translations\">${entries}</qresource></RCC>\n" @ONLY)
    add_custom_command(OUTPUT ${directory}/Catalogues.cpp
        COMMAND ${MORVANE_QT}::rcc --name morvane_translations --output ${directory}/Catalogues.cpp ${list}
        DEPENDS ${list} ${catalogues} VERBATIM)
    set_source_files_properties(${directory}/Catalogues.cpp PROPERTIES SKIP_AUTOGEN ON SKIP_UNITY_BUILD_INCLUSION ON
        SKIP_PRECOMPILE_HEADERS ON)
    target_sources(${target} PRIVATE ${directory}/Catalogues.cpp)
endfunction()
