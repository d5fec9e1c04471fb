# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# Options. Everything except the libraries is off when Morvane is embedded.
set(MORVANE_QT_MAJOR "" CACHE STRING "The major version of Qt, 5 or 6; empty: the one that is found, 5 first")
set_property(CACHE MORVANE_QT_MAJOR PROPERTY STRINGS 5 6)
option(MORVANE_BUILD_TESTS "Build the tests" ${PROJECT_IS_TOP_LEVEL})
option(MORVANE_BUILD_EXAMPLES "Build the gallery and the examples" ${PROJECT_IS_TOP_LEVEL})
option(MORVANE_BUILD_BENCHMARKS "Build the benchmarks" OFF)
option(MORVANE_BUILD_TESTING_LIBRARY "Build Morvane::Testing, for the tests of hosts" ${PROJECT_IS_TOP_LEVEL})
set(designer_default OFF)
if(PROJECT_IS_TOP_LEVEL)
    set(designer_default AUTO)
endif()
set(MORVANE_BUILD_DESIGNER ${designer_default} CACHE STRING
    "The plugin for Qt Designer: AUTO (where Qt's files for plugins are found), ON (required) or OFF")
option(MORVANE_WARNINGS_AS_ERRORS "Treat warnings in Morvane's own sources as errors" OFF)
option(MORVANE_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)
set(MORVANE_BUILD_QUICKLY OFF CACHE STRING
    "Build faster: ON precompiles headers, compiles several sources at once, which hides missing includes, and does not optimise tests; TESTS leaves the libraries as they are")
set_property(CACHE MORVANE_BUILD_QUICKLY PROPERTY STRINGS OFF TESTS ON)
option(MORVANE_COVERAGE "Build for measuring the coverage by the tests (g++)" OFF)
option(MORVANE_BUILD_FUZZERS "Build the fuzzing harnesses with libFuzzer (clang)" OFF)
option(MORVANE_INSTALL "Provide the install rules" ${PROJECT_IS_TOP_LEVEL})
set(MORVANE_HOST_LIBRARY "" CACHE STRING
    "CMake target or library file that implements the host services in place of libmorvane-host")
set_property(CACHE MORVANE_BUILD_DESIGNER PROPERTY STRINGS AUTO ON OFF)
option(MORVANE_WITH_CTK "Take ctkCompleter from CTK instead of the stand-in" OFF)
option(MORVANE_WITH_QXT "Take QxtLabel from Qxt instead of the stand-in" OFF)
foreach(switch IN ITEMS MORVANE_WITH_CTK MORVANE_WITH_QXT)
    # AUTO was the default in earlier versions; older build directories still have it.
    if(${switch} STREQUAL "AUTO")
        message(WARNING "${switch} no longer knows AUTO and is OFF now: the stand-in is used. ON takes the package.")
        set(${switch} OFF CACHE BOOL "" FORCE)
        set(${switch} OFF)
    endif()
endforeach()

# They use it.
if(MORVANE_BUILD_TESTS OR MORVANE_BUILD_EXAMPLES OR MORVANE_BUILD_BENCHMARKS OR MORVANE_BUILD_FUZZERS)
    set(MORVANE_BUILD_TESTING_LIBRARY ON)
endif()

include(GNUInstallDirs)

if(MORVANE_BUILD_QUICKLY AND NOT CMAKE_HOST_WIN32)
    # ccache requires this for precompiled headers.
    set_property(DIRECTORY PROPERTY RULE_LAUNCH_COMPILE "env CCACHE_SLOPPINESS=pch_defines,time_macros")
endif()

if(PROJECT_IS_TOP_LEVEL)
    find_program(CCACHE_PROGRAM ccache)
    if(CCACHE_PROGRAM AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
        set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
    endif()
    # One directory for programs and libraries, so that a Windows build finds its DLLs.
    set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
    set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
    set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
endif()
