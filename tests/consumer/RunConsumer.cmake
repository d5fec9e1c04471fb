# Builds and runs one consumer project in a fresh directory.
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGN}\n${output}")
    endif()
    if(output MATCHES "warning:")
        message(FATAL_ERROR "a warning reached the consumer:\n${output}")
    endif()
endfunction()

file(REMOVE_RECURSE ${WORK_DIR})
set(options -G ${GENERATOR} -DCMAKE_CXX_COMPILER=${CXX_COMPILER} -DCMAKE_CXX_COMPILER_LAUNCHER=${CXX_LAUNCHER})
if(SANITIZE)
    list(APPEND options "-DCMAKE_CXX_FLAGS=-fsanitize=address,undefined")
endif()

if(KIND STREQUAL find_package)
    run(${CMAKE_COMMAND} --install ${MORVANE_BINARY_DIR} --prefix ${WORK_DIR}/first)
    # A package that can be moved holds no path of the place it was installed to.
    file(RENAME ${WORK_DIR}/first ${WORK_DIR}/prefix)
    list(APPEND options -DCMAKE_PREFIX_PATH=${WORK_DIR}/prefix)
else()
    list(APPEND options -DMORVANE_SOURCE_DIR=${MORVANE_SOURCE_DIR})
endif()

run(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/${KIND} -B ${WORK_DIR}/build ${options})
run(${CMAKE_COMMAND} --build ${WORK_DIR}/build)
run(${WORK_DIR}/build/consumer)
