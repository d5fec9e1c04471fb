# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# Runs the vcpkg port with stand-ins for what vcpkg gives it: what it asks for with which features, and once in earnest. A
# program is linked with what it installs.
cmake_minimum_required(VERSION 3.25)
cmake_path(SET source_tree NORMALIZE ${CMAKE_CURRENT_LIST_DIR}/../../..)
include(${source_tree}/tests/consumer/Run.cmake)
set(port ${source_tree}/packaging/vcpkg/ports/morvane)
file(REMOVE_RECURSE ${WORK_DIR})

# run_port(RESULT feature...): RESULT is what execute_process says; `calls` and `output` hold what the port did and printed.
function(run_port result)
    list(JOIN ARGN "," features)
    execute_process(COMMAND ${CMAKE_COMMAND} -DFEATURES=${features} -DWORK_DIR=${WORK_DIR}/asked -DCONFIGURE_ONLY=ON
            -P ${CMAKE_CURRENT_LIST_DIR}/RunPort.cmake
        RESULT_VARIABLE code OUTPUT_VARIABLE output ERROR_VARIABLE output)
    file(STRINGS ${WORK_DIR}/asked/calls.txt calls)
    set(${result} ${code} PARENT_SCOPE)
    set(calls "${calls}" PARENT_SCOPE)
    set(output "${output}" PARENT_SCOPE)
endfunction()

# expect_calls(FEATURES features... CALLS calls...): with the features, the port makes these calls and no others that
# configure or move a package.
function(expect_calls)
    cmake_parse_arguments(arg "" "" "FEATURES;CALLS" ${ARGN})
    run_port(result ${arg_FEATURES})
    list(FILTER calls INCLUDE REGEX "^vcpkg_cmake_")
    if(NOT result EQUAL 0 OR NOT calls STREQUAL arg_CALLS)
        message(SEND_ERROR "with ${arg_FEATURES} the port calls\n${calls}\nand not\n${arg_CALLS}\n${output}")
    endif()
endfunction()

set(configure_5 "vcpkg_cmake_configure <source> -DMORVANE_QT_MAJOR=5 -DMORVANE_BUILD_TESTS=OFF -DMORVANE_BUILD_EXAMPLES=OFF")
string(REPLACE MAJOR=5 MAJOR=6 configure_6 "${configure_5}")
set(with_testing -DMORVANE_BUILD_TESTING_LIBRARY=ON)
set(without_testing -DMORVANE_BUILD_TESTING_LIBRARY=OFF)
set(without_designer -DMORVANE_BUILD_DESIGNER=OFF)
set(designer_5 "-DMORVANE_BUILD_DESIGNER=ON -DMORVANE_DESIGNER_PLUGIN_DIR=plugins/designer")
set(designer_6 "-DMORVANE_BUILD_DESIGNER=ON -DMORVANE_DESIGNER_PLUGIN_DIR=Qt6/plugins/designer")
set(move_5 "vcpkg_cmake_config_fixup morvane lib/cmake/Morvane")
set(move_6 "vcpkg_cmake_config_fixup morvane-qt6 lib/cmake/Morvane-Qt6")

expect_calls(FEATURES core qt5
    CALLS "${configure_5} ${without_testing} ${without_designer}" vcpkg_cmake_install ${move_5})
expect_calls(FEATURES core qt6 qt6-designer
    CALLS "${configure_6} ${without_testing} ${designer_6}" vcpkg_cmake_install ${move_6})
expect_calls(FEATURES core qt5 qt6 qt5-designer testing
    CALLS "${configure_5} ${with_testing} ${designer_5}" vcpkg_cmake_install ${move_5}
          "${configure_6} ${with_testing} ${without_designer}" vcpkg_cmake_install ${move_6})
run_port(result core testing)
if(result EQUAL 0 OR NOT output MATCHES "needs the feature qt5, the feature qt6, or both")
    message(SEND_ERROR "without Qt the port says\n${output}")
endif()

# The manifest: the version is the project's, and it declares each feature and each tool that the port uses.
file(READ ${port}/vcpkg.json manifest)
string(JSON version GET "${manifest}" version)
if(NOT version STREQUAL VERSION)
    message(SEND_ERROR "the port has the version ${version}, the project ${VERSION}")
endif()
string(JSON count LENGTH "${manifest}" features)
math(EXPR last "${count} - 1")
set(declared)
foreach(index RANGE ${last})
    string(JSON feature MEMBER "${manifest}" features ${index})
    list(APPEND declared ${feature})
    string(JSON description GET "${manifest}" features ${feature} description)
endforeach()
run_port(result core ${declared})
list(FILTER calls INCLUDE REGEX "^feature ")
list(TRANSFORM calls REPLACE "^feature " "" OUTPUT_VARIABLE used)
list(APPEND used qt5 qt6)
list(SORT used)
list(SORT declared)
if(NOT used STREQUAL declared)
    message(SEND_ERROR "the manifest declares the features ${declared}; the port uses ${used}")
endif()
string(JSON default_feature GET "${manifest}" default-features 0)
if(NOT default_feature IN_LIST declared)
    message(SEND_ERROR "the default feature is ${default_feature}")
endif()
# The packages for vcpkg itself are objects; the others are names.
string(JSON dependencies GET "${manifest}" dependencies)
string(REGEX MATCHALL "\"name\" *: *\"[^\"]+\"" host_tools "${dependencies}")
list(TRANSFORM host_tools REPLACE "^.*\"([^\"]+)\"$" "\\1")
if(NOT host_tools STREQUAL "vcpkg-cmake;vcpkg-cmake-config")
    message(SEND_ERROR "the manifest names the tools ${host_tools}")
endif()

# In earnest, with all features for the Qt of this build.
set(features core qt${QT_MAJOR} testing)
if(HAS_DESIGNER)
    list(APPEND features qt${QT_MAJOR}-designer)
endif()
list(JOIN features "," features)
run(${CMAKE_COMMAND} -DFEATURES=${features} -DWORK_DIR=${WORK_DIR}/built -P ${CMAKE_CURRENT_LIST_DIR}/RunPort.cmake)

# What vcpkg checks in each package.
set(package ${WORK_DIR}/built/package)
foreach(unwanted IN ITEMS debug/include debug/share lib/cmake debug/lib/cmake)
    if(EXISTS ${package}/${unwanted})
        message(SEND_ERROR "the package contains ${unwanted}")
    endif()
endforeach()
foreach(wanted IN ITEMS share/morvane/copyright share/morvane/usage debug/lib/libmorvane-ui${SUFFIX}.so)
    if(NOT EXISTS ${package}/${wanted})
        message(SEND_ERROR "the package does not contain ${wanted}")
    endif()
endforeach()
file(GLOB_RECURSE texts ${package}/*.cmake ${package}/*.pc ${package}/*.json ${package}/*.h)
foreach(file IN LISTS texts)
    file(READ ${file} text)
    string(FIND "${text}" "${WORK_DIR}" place)
    if(NOT place EQUAL -1)
        message(SEND_ERROR "${file} names the directory where it was built")
    endif()
endforeach()
if(HAS_DESIGNER)
    file(GLOB_RECURSE plugins ${package}/plugins/designer/*morvanewidgets* ${package}/Qt6/plugins/designer/*morvanewidgets*)
    if(NOT plugins)
        message(SEND_ERROR "the plugin for Qt Designer is not where Qt looks for it")
    endif()
endif()

# vcpkg copies packages to the prefix that programs use. The names are those that `usage` tells.
set(prefix ${WORK_DIR}/installed)
file(RENAME ${package} ${prefix})
file(READ ${prefix}/share/morvane/usage usage)
string(REGEX MATCHALL "find_package\\([A-Za-z0-9-]+ CONFIG REQUIRED\\)" told "${usage}")
if(NOT "find_package(${PACKAGE} CONFIG REQUIRED)" IN_LIST told)
    message(SEND_ERROR "usage tells ${told}")
endif()
# The test package of the other recipe, and a host's test.
run(${CMAKE_COMMAND} -S ${source_tree}/packaging/conan/test_package -B ${WORK_DIR}/program
    -DCMAKE_BUILD_TYPE=Release -DCMAKE_PREFIX_PATH=${prefix})
run(${CMAKE_COMMAND} --build ${WORK_DIR}/program)
run(${WORK_DIR}/program/uses-morvane)
run(${CMAKE_COMMAND} -S ${source_tree}/tests/consumer/testing -B ${WORK_DIR}/testing
    -DMORVANE_PACKAGE=${PACKAGE} -DCMAKE_PREFIX_PATH=${prefix})
run(${CMAKE_COMMAND} --build ${WORK_DIR}/testing)
run(${WORK_DIR}/testing/consumer)
