# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# cmake -D COMPILER=... -D INCLUDES=a,b -D SOURCES=c,d -P CompileForWindows.cmake
if(NOT COMPILER OR COMPILER MATCHES "NOTFOUND")
    message("no compiler for Windows was found at configure time")
    return()
endif()
string(REPLACE "," ";-I" includes "-I${INCLUDES}")
string(REPLACE "," ";" sources "${SOURCES}")
foreach(source IN LISTS sources)
    execute_process(
        COMMAND ${COMPILER} -std=c++17 -fsyntax-only -Wall -Wextra -Werror -DMORVANE_UI_STATIC_DEFINE ${includes} ${source}
        RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${source} does not compile for Windows")
    endif()
endforeach()
