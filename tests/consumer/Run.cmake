# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# Runs a command that must succeed, and whose messages must hold no warning; `output` holds them afterwards.
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGN}\n${output}")
    endif()
    if(output MATCHES "warning:")
        message(FATAL_ERROR "a warning reached the consumer:\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()
