# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# cmake -DPROGRAM=... -DARGUMENTS=... -DMESSAGE=... -P CheckRefusal.cmake
# Fails unless the program exits with code 2 and writes MESSAGE only to standard error.
execute_process(COMMAND ${PROGRAM} ${ARGUMENTS} RESULT_VARIABLE code OUTPUT_VARIABLE output ERROR_VARIABLE error)
string(FIND "${error}" "morvane-gallery: ${MESSAGE}" place)
if(NOT code EQUAL 2 OR place EQUAL -1 OR NOT output STREQUAL "")
    message(FATAL_ERROR "exit code ${code}, output \"${output}\", error \"${error}\"")
endif()
