# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# Builds Morvane with CTK and Qxt as installed packages, and runs consumers of it: one that embeds it, and those that find it
# installed and in its build directory, through CMake and pkg-config.
#
# The packages are imitations unless CTK_DIR and QXT_PREFIX lead to real ones.
cmake_minimum_required(VERSION 3.25)
set(consumers ${MORVANE_SOURCE_DIR}/tests/consumer)
include(${consumers}/Run.cmake)

file(REMOVE_RECURSE ${WORK_DIR})
set(options -G ${GENERATOR} -DCMAKE_CXX_COMPILER=${CXX_COMPILER} -DCMAKE_CXX_COMPILER_LAUNCHER=${CXX_LAUNCHER})

if(NOT CTK_DIR OR NOT QXT_PREFIX)
    set(CTK_DIR ${WORK_DIR}/packages/prefix/lib/cmake/ctk-0.1)
    set(QXT_PREFIX ${WORK_DIR}/packages/prefix)
    run(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/packages -B ${WORK_DIR}/packages/build ${options}
        -DMORVANE_SOURCE_DIR=${MORVANE_SOURCE_DIR} -DMORVANE_QT=Qt${QT_MAJOR} -DCMAKE_INSTALL_PREFIX=${WORK_DIR}/packages/prefix)
    run(${CMAKE_COMMAND} --build ${WORK_DIR}/packages/build --target install)
endif()

# Some distributions have their linkers drop libraries that are not called directly.
set(host ${WORK_DIR}/host)
run(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/embedding -B ${host} ${options} -DMORVANE_SOURCE_DIR=${MORVANE_SOURCE_DIR}
    -DCMAKE_SHARED_LINKER_FLAGS=-Wl,--as-needed -DCMAKE_EXE_LINKER_FLAGS=-Wl,--as-needed
    -DCMAKE_UNITY_BUILD=ON
    -DMORVANE_QT_MAJOR=${QT_MAJOR} -DMORVANE_WITH_CTK=ON -DCTK_DIR=${CTK_DIR} -DMORVANE_WITH_QXT=ON -DQxt_ROOT=${QXT_PREFIX})
run(${CMAKE_COMMAND} --build ${host})
run(${host}/consumer)

run(${CMAKE_COMMAND} --install ${host} --prefix ${WORK_DIR}/prefix)
file(GLOB_RECURSE label ${WORK_DIR}/prefix/*/QxtLabel.h)
file(READ ${label} label)
if(NOT label MATCHES "#include <QxtLabel>" OR label MATCHES "Q_OBJECT")
    message(FATAL_ERROR "not Qxt's label, but this is installed:\n${label}")
endif()

file(GLOB_RECURSE library ${WORK_DIR}/prefix/*/libmorvane-ui${SUFFIX}.so)
file(GET_RUNTIME_DEPENDENCIES LIBRARIES ${library} RESOLVED_DEPENDENCIES_VAR needed UNRESOLVED_DEPENDENCIES_VAR missing)
foreach(name IN ITEMS CTKWidgets CTKCore QxtWidgets QxtCore)
    if(NOT needed MATCHES "/lib${name}\\.so")
        message(FATAL_ERROR "${library} does not load ${name}; it loads ${needed}, and does not find ${missing}")
    endif()
endforeach()

foreach(kind IN ITEMS find_package pkg_config find_package_from_the_build_directory pkg_config_from_the_build_directory)
    run(${CMAKE_COMMAND} -DKIND=${kind} -DQT_MAJOR=${QT_MAJOR} -DPACKAGE=${PACKAGE} -DSUFFIX=${SUFFIX} -DMORVANE_SOURCE_DIR=${MORVANE_SOURCE_DIR} -DMORVANE_BINARY_DIR=${host}/morvane
        -DWORK_DIR=${WORK_DIR}/${kind} -DGENERATOR=${GENERATOR} -DCXX_COMPILER=${CXX_COMPILER}
        -DCXX_LAUNCHER=${CXX_LAUNCHER} -DWITH_CTK=ON -DCTK_DIR=${CTK_DIR} -DWITH_QXT=ON -DQXT_PREFIX=${QXT_PREFIX}
        -P ${consumers}/RunConsumer.cmake)
endforeach()
