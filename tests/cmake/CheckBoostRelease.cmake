# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# find_package(Morvane) accepts only the release of Boost that Morvane was built with. The Boosts are imitations, with enough in
# them to be found.
cmake_minimum_required(VERSION 3.25)
file(REMOVE_RECURSE ${WORK_DIR})

string(REPLACE "." ";" built_with ${BOOST})
list(GET built_with 0 major)
list(GET built_with 1 minor)
math(EXPR older "${minor} - 1")
math(EXPR newer "${minor} + 1")

# write_boost(PREFIX VERSION): one with a package configuration file.
function(write_boost prefix version)
    file(WRITE ${prefix}/lib/cmake/Boost-${version}/BoostConfig.cmake
        "if(NOT TARGET Boost::headers)\nadd_library(Boost::headers INTERFACE IMPORTED)\nendif()\n")
    file(WRITE ${prefix}/lib/cmake/Boost-${version}/BoostConfigVersion.cmake
        "set(PACKAGE_VERSION ${version})\n"
        "if(NOT PACKAGE_VERSION VERSION_LESS PACKAGE_FIND_VERSION)\nset(PACKAGE_VERSION_COMPATIBLE TRUE)\nendif()\n")
endfunction()

# write_headers(PREFIX MAJOR MINOR PATCH): one without, which CMake's own module recognises by its headers.
function(write_headers prefix major minor patch)
    math(EXPR number "${major} * 100000 + ${minor} * 100 + ${patch}")
    file(WRITE ${prefix}/include/boost/config.hpp "")
    file(WRITE ${prefix}/include/boost/version.hpp
        "#define BOOST_VERSION ${number}\n#define BOOST_LIB_VERSION \"${major}_${minor}\"\n")
endfunction()

# Some systems have the same directory with and without /usr.
string(REGEX REPLACE "^/usr" "" without_usr "${SYSTEM_BOOST}")
set(hidden "${SYSTEM_BOOST} ${without_usr} /usr${SYSTEM_BOOST}")
file(WRITE ${WORK_DIR}/project/CMakeLists.txt "cmake_minimum_required(VERSION 3.25)\nproject(Consumer LANGUAGES CXX)
if(ALONE)\nset(CMAKE_IGNORE_PATH ${hidden})\nendif()
find_package(${PACKAGE} REQUIRED \${WANTED})
if(NOT TARGET Morvane::Property)\nmessage(FATAL_ERROR \"without targets\")\nendif()\n")
file(WRITE ${WORK_DIR}/optional/CMakeLists.txt "cmake_minimum_required(VERSION 3.25)\nproject(Consumer LANGUAGES CXX)
find_package(${PACKAGE})\nif(${PACKAGE}_FOUND OR TARGET Morvane::Property)\nmessage(FATAL_ERROR \"found\")\nendif()\n")

# configure(PROJECT RESULT OPTION...): `accepted` or `refused`, and what CMake says.
function(configure project result)
    execute_process(
        COMMAND ${CMAKE_COMMAND} -S ${WORK_DIR}/${project} -B ${WORK_DIR}/build_${project} -G ${GENERATOR}
                -DCMAKE_CXX_COMPILER=${CXX_COMPILER} -U Boost_* -U ALONE -U WANTED
                -D${PACKAGE}_DIR=${MORVANE_BINARY_DIR} ${ARGN}
        RESULT_VARIABLE code OUTPUT_VARIABLE output ERROR_VARIABLE output)
    string(REGEX REPLACE "[ \n]+" " " output "${output}")
    set(output "${output}" PARENT_SCOPE)
    if(code EQUAL 0)
        set(${result} accepted PARENT_SCOPE)
    else()
        set(${result} refused PARENT_SCOPE)
    endif()
endfunction()

function(expect_accepted)
    configure(project result ${ARGN})
    if(NOT result STREQUAL "accepted")
        message(SEND_ERROR "refused with ${ARGN}:\n${output}")
    endif()
endfunction()

function(expect_refused found)
    configure(project result ${ARGN})
    set(sentence "${PACKAGE} was built with Boost ${BOOST}, but Boost ${found} was found. Boost's types are in the interface")
    string(FIND "${output}" "${sentence}" place)
    if(result STREQUAL "accepted" OR place EQUAL -1)
        message(SEND_ERROR "${result} with ${ARGN}, and this is said:\n${output}")
    endif()
endfunction()

write_boost(${WORK_DIR}/same ${BOOST}.9)
write_boost(${WORK_DIR}/newer ${major}.${newer}.0)
write_boost(${WORK_DIR}/older ${major}.${older}.0)
write_headers(${WORK_DIR}/same_headers ${major} ${minor} 9)
write_headers(${WORK_DIR}/newer_headers ${major} ${newer} 0)

set(newer_there -DBoost_DIR=${WORK_DIR}/newer/lib/cmake/Boost-${major}.${newer}.0)
expect_accepted(-DBoost_DIR=${WORK_DIR}/same/lib/cmake/Boost-${BOOST}.9)
expect_refused(${major}.${newer} ${newer_there})
expect_refused(${major}.${newer} ${newer_there} -DWANTED=Property)
# Without the one of the system, which CMake would find otherwise.
set(alone -DALONE=ON)
expect_refused(${major}.${older} ${alone} -DBoost_ROOT=${WORK_DIR}/older)
list(APPEND alone -DBoost_NO_BOOST_CMAKE=ON)
expect_accepted(${alone} -DBoost_ROOT=${WORK_DIR}/same_headers)
file(STRINGS ${WORK_DIR}/build_project/CMakeCache.txt found REGEX "^Boost_INCLUDE_DIR:.*/same_headers/")
if(NOT found)
    message(SEND_ERROR "not the imitation was found, but another Boost")
endif()
expect_refused(${major}.${newer} ${alone} -DBoost_ROOT=${WORK_DIR}/newer_headers)

# Who can do without Morvane only gets a warning.
configure(optional result ${newer_there})
if(NOT result STREQUAL "accepted")
    message(SEND_ERROR "find_package without REQUIRED:\n${output}")
endif()
