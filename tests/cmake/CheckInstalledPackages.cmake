# Builds and installs Morvane with CTK and Qxt as installed packages, and runs a consumer of that package.
cmake_minimum_required(VERSION 3.25)
include(${MORVANE_SOURCE_DIR}/tests/consumer/Run.cmake)

file(REMOVE_RECURSE ${WORK_DIR})
set(options -G ${GENERATOR} -DCMAKE_CXX_COMPILER=${CXX_COMPILER} -DCMAKE_CXX_COMPILER_LAUNCHER=${CXX_LAUNCHER})

set(packages ${WORK_DIR}/packages)
run(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/packages -B ${packages}/build ${options}
    -DMORVANE_SOURCE_DIR=${MORVANE_SOURCE_DIR} -DCMAKE_INSTALL_PREFIX=${packages}/prefix)
run(${CMAKE_COMMAND} --build ${packages}/build --target install)

set(morvane ${WORK_DIR}/morvane)
run(${CMAKE_COMMAND} -S ${MORVANE_SOURCE_DIR} -B ${morvane}/build ${options}
    -DMORVANE_BUILD_TESTS=OFF -DMORVANE_BUILD_EXAMPLES=OFF -DMORVANE_WITH_CTK=ON -DMORVANE_WITH_QXT=ON
    -DCMAKE_PREFIX_PATH=${packages}/prefix -DCMAKE_INSTALL_PREFIX=${morvane}/prefix)
run(${CMAKE_COMMAND} --build ${morvane}/build --target install)

file(GLOB_RECURSE left ${morvane}/prefix/*qxtlabel.h ${morvane}/prefix/*QxtLabel)
if(left)
    message(FATAL_ERROR "the stand-in is installed beside Qxt: ${left}")
endif()

file(GLOB library ${morvane}/prefix/lib*/libmorvane-ui.so ${morvane}/prefix/lib*/*/libmorvane-ui.so)
file(GET_RUNTIME_DEPENDENCIES LIBRARIES ${library} RESOLVED_DEPENDENCIES_VAR needed UNRESOLVED_DEPENDENCIES_VAR missing)
foreach(package lib/ctk-0.1/libCTKWidgets.so lib/libQxtWidgets.so)
    if(NOT ${packages}/prefix/${package} IN_LIST needed)
        message(FATAL_ERROR "${library} does not load ${package}; it loads ${needed}, and does not find ${missing}")
    endif()
endforeach()

run(${CMAKE_COMMAND} -S ${MORVANE_SOURCE_DIR}/tests/consumer/find_package -B ${WORK_DIR}/consumer ${options}
    -DCMAKE_PREFIX_PATH=${morvane}/prefix -DQxt_ROOT=${packages}/prefix)
run(${CMAKE_COMMAND} --build ${WORK_DIR}/consumer)
run(${WORK_DIR}/consumer/consumer)
