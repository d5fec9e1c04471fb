# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# morvane_extract_snippet(SOURCE TAG OUTPUT)
# Writes the code between the two lines "//! [TAG]" of SOURCE to OUTPUT, for a test that runs what a guide shows. When
# SOURCE has changed, the next run of CMake writes OUTPUT again.
function(morvane_extract_snippet source tag output)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${source})
    file(READ ${source} text)
    set(mark "//! [${tag}]\n")
    string(FIND "${text}" "${mark}" first)
    string(FIND "${text}" "${mark}" last REVERSE)
    if(first EQUAL last)
        message(FATAL_ERROR "no snippet ${tag} in ${source}")
    endif()
    string(LENGTH "${mark}" length)
    math(EXPR begin "${first} + ${length}")
    math(EXPR count "${last} - ${begin}")
    string(SUBSTRING "${text}" ${begin} ${count} snippet)
    file(CONFIGURE OUTPUT ${output} CONTENT "${snippet}" @ONLY)
endfunction()
