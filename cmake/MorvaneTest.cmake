# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# With MORVANE_BUILD_QUICKLY, compiles TARGET without optimisation, several of its sources at once, and with the precompiled
# headers of the support library, which is compiled with the same options.
function(morvane_compile_quickly target)
    if(NOT MORVANE_BUILD_QUICKLY)
        return()
    endif()
    # GCC warns of unnamed namespaces in included files, and sources that are compiled together include each other.
    target_compile_options(${target} PRIVATE $<IF:$<BOOL:${MSVC}>,/Od,-O0> ${morvane_precompiled_options}
        $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON)
    if(target STREQUAL morvane-test-support)
        target_precompile_headers(${target} PRIVATE
            <QtTest> <QtWidgets> <gmock/gmock.h> <gtest/gtest.h> <algorithm> <functional> <map> <memory> <string> <vector>)
    else()
        target_precompile_headers(${target} REUSE_FROM morvane-test-support)
    endif()
endfunction()

# The tests of CompleterStandIn and LabelStandIn apply to the stand-ins only, not to the classes of CTK and Qxt.
set(morvane_test_filter)
if(MORVANE_WITH_CTK)
    list(APPEND morvane_test_filter *CompleterStandIn*)
endif()
if(MORVANE_WITH_QXT)
    list(APPEND morvane_test_filter *LabelStandIn*)
endif()
if(morvane_test_filter)
    list(JOIN morvane_test_filter ":" morvane_test_filter)
    set(morvane_test_filter TEST_FILTER -${morvane_test_filter})
endif()

# morvane_add_test(NAME SOURCES... [LIBRARIES ...] [TIMEOUT seconds] [SEPARATE])
# A test program of GoogleTest cases; CTest runs each case in a process of its own, as NAME/Suite.case.
#
# Cross-built programs run in an emulator, where starting a process takes long. There CTest runs the whole program as one
# test, NAME, on the target's own window system. With SEPARATE, each case still runs in its own process.
function(morvane_add_test name)
    cmake_parse_arguments(arg "SEPARATE" "TIMEOUT" "SOURCES;LIBRARIES" ${ARGN})
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT 60)
    endif()
    add_executable(${name} ${arg_SOURCES})
    morvane_own_code(${name})
    target_link_libraries(${name} PRIVATE morvane-test-support ${arg_LIBRARIES})
    morvane_compile_quickly(${name})
    if(NOT CMAKE_CROSSCOMPILING)
        gtest_discover_tests(${name} TEST_PREFIX ${name}/ DISCOVERY_MODE PRE_TEST ${morvane_test_filter}
            PROPERTIES TIMEOUT ${arg_TIMEOUT})
    elseif(arg_SEPARATE)
        gtest_discover_tests(${name} TEST_PREFIX ${name}/ DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 120
            PROPERTIES TIMEOUT ${arg_TIMEOUT} ENVIRONMENT QT_QPA_PLATFORM=windows)
    else()
        add_test(NAME ${name} COMMAND ${name})
        set_tests_properties(${name} PROPERTIES TIMEOUT 600 ENVIRONMENT QT_QPA_PLATFORM=windows)
    endif()
endfunction()

# morvane_header_test(TARGET LIBRARY)
# Compiles each public header of LIBRARY on its own as Morvane's own code is compiled, and all of them with Qt's keywords
# (`signals`, `slots`, `emit`) on, as many hosts have them. Building TARGET is the test.
# A cross build with MinGW only checks what differs by platform, so it compiles all headers together in one source.
function(morvane_header_test target library)
    get_target_property(headers ${library} MORVANE_PUBLIC_HEADERS)
    set(sources)
    list(TRANSFORM headers REPLACE "(.+)" "#include \"\\1\"\n" OUTPUT_VARIABLE includes)
    list(JOIN includes "" includes)
    if(MINGW)
        set(sources ${CMAKE_CURRENT_BINARY_DIR}/${target}/all_headers.cpp)
        file(CONFIGURE OUTPUT ${sources} CONTENT "@includes@" @ONLY)
        set(headers)
    endif()
    foreach(header IN LISTS headers)
        string(MAKE_C_IDENTIFIER ${header} name)
        set(source ${CMAKE_CURRENT_BINARY_DIR}/${target}/${name}.cpp)
        file(CONFIGURE OUTPUT ${source} CONTENT "#include \"@header@\"\n#include \"@header@\"\n" @ONLY)
        list(APPEND sources ${source})
    endforeach()
    if(headers)
        set(source ${CMAKE_CURRENT_BINARY_DIR}/${target}/with_keywords.cpp)
        file(CONFIGURE OUTPUT ${source}
            CONTENT "#undef QT_NO_KEYWORDS\n@includes@#include <QObject>\n#ifndef emit\n#error No keywords\n#endif\n" @ONLY)
        list(APPEND sources ${source})
    endif()
    add_library(${target} OBJECT ${sources})
    morvane_own_code(${target})
    target_link_libraries(${target} PRIVATE ${library})
endfunction()
