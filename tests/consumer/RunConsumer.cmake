# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# Builds and runs one consumer project in a fresh directory.
include(${CMAKE_CURRENT_LIST_DIR}/Run.cmake)

file(REMOVE_RECURSE ${WORK_DIR})
# The own variables of the consumers: what this build is called.
set(options -DMORVANE_QT=Qt${QT_MAJOR} -DMORVANE_PACKAGE=${PACKAGE} -DMORVANE_SUFFIX=${SUFFIX}
    -G ${GENERATOR} -DCMAKE_CXX_COMPILER=${CXX_COMPILER} -DCMAKE_CXX_COMPILER_LAUNCHER=${CXX_LAUNCHER})
if(SANITIZE)
    list(APPEND options "-DCMAKE_CXX_FLAGS=-fsanitize=address,undefined")
endif()
if(TOOLCHAIN)
    list(APPEND options -DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN} -DMORVANE_WINDOWS_SDK=${WINDOWS_SDK})
endif()

set(project ${KIND})
if(KIND MATCHES "^(.+)_from_the_build_directory$")
    set(project ${CMAKE_MATCH_1})
    list(APPEND options -D${PACKAGE}_DIR=${MORVANE_BINARY_DIR})
    set(ENV{PKG_CONFIG_PATH} ${MORVANE_BINARY_DIR}/pkgconfig)
endif()
if(KIND STREQUAL stand_ins_beside_others AND WITH_CTK AND WITH_QXT)
    list(APPEND options -DREAL_PACKAGES=ON -DMORVANE_QT_MAJOR=${QT_MAJOR} -DMORVANE_SOURCE_DIR=${MORVANE_SOURCE_DIR} -DCTK_DIR=${CTK_DIR})
elseif(KIND MATCHES "^(find_package|testing|pkg_config|examples|stand_ins_beside_others)$")
    run(${CMAKE_COMMAND} --install ${MORVANE_BINARY_DIR} --prefix ${WORK_DIR}/first)
    # A package that can be moved holds no path of the place it was installed to.
    file(RENAME ${WORK_DIR}/first ${WORK_DIR}/prefix)
    list(APPEND options -DCMAKE_PREFIX_PATH=${WORK_DIR}/prefix)
endif()
if(KIND MATCHES "^(add_subdirectory|own_host|examples)$")
    list(APPEND options -DMORVANE_SOURCE_DIR=${MORVANE_SOURCE_DIR} -DMORVANE_QT_MAJOR=${QT_MAJOR})
endif()
if(KIND MATCHES "^(add_subdirectory|own_host)$")
    list(APPEND options -DMORVANE_WITH_CTK=${WITH_CTK} -DCTK_DIR=${CTK_DIR} -DMORVANE_WITH_QXT=${WITH_QXT}
        -DCMAKE_UNITY_BUILD=ON) # as some hosts do, and it saves time
endif()
if(WITH_QXT)
    list(APPEND options -DQxt_ROOT=${QXT_PREFIX})
endif()

run(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/${project} -B ${WORK_DIR}/build ${options})
run(${CMAKE_COMMAND} --build ${WORK_DIR}/build)
set(program ${WORK_DIR}/build/consumer)
if(KIND STREQUAL examples)
    set(program ${WORK_DIR}/build/bin/03-observable-value)
endif()
if(EMULATOR)
    # The libraries of a package stand in its bin directory, those of a sub-directory beside the program.
    list(POP_BACK EMULATOR end_of_options)
    run(${EMULATOR} --path ${WORK_DIR}/prefix/bin ${end_of_options} ${program}.exe)
else()
    run(${program})
endif()
if(KIND STREQUAL examples AND NOT EMULATOR)
    set(output_of_first "${output}")
    run(${WORK_DIR}/build/bin/27-test-your-dialogs)
    run(${WORK_DIR}/build/bin/28-test-your-save-flow)
    set(output "${output_of_first}")
endif()
if(KIND STREQUAL examples AND NOT output MATCHES "now 235 V\r?\nrejected: .* is not between 0 and 400 V\r?\nstill 235 V")
    message(FATAL_ERROR "the example prints:\n${output}")
endif()
if(KIND STREQUAL stand_ins_beside_others)
    run(${program}_of_morvane_first)
endif()
