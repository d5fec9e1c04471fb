# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# Compiles as Microsoft's compiler does, with clang in the place of that compiler, libc++ in the place of its standard
# library, and Wine's headers in the place of the Windows SDK. `include` has what is missing between those three.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR AMD64)

find_program(MORVANE_CLANG NAMES clang++ REQUIRED)
mark_as_advanced(MORVANE_CLANG)
file(REAL_PATH ${MORVANE_CLANG} clang)
cmake_path(GET clang PARENT_PATH llvm)
execute_process(COMMAND ${llvm}/clang -print-resource-dir OUTPUT_VARIABLE resources OUTPUT_STRIP_TRAILING_WHITESPACE)

set(CMAKE_CXX_COMPILER ${llvm}/clang-cl)
set(CMAKE_CXX_COMPILER_TARGET x86_64-pc-windows-msvc)
set(CMAKE_AR ${llvm}/llvm-lib CACHE FILEPATH "")
set(CMAKE_LINKER ${CMAKE_CURRENT_LIST_DIR}/link CACHE FILEPATH "")
set(CMAKE_RC_COMPILER ${llvm}/llvm-rc)
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)

# The machine's own headers of Boost and GoogleTest, without the C library's beside them.
set(links ${CMAKE_BINARY_DIR}/machine-headers)
file(MAKE_DIRECTORY ${links})
foreach(package boost gtest gmock)
    file(CREATE_LINK /usr/include/${package} ${links}/${package} SYMBOLIC)
endforeach()

# CMake names the directories of Qt before these.
set(flags -fms-compatibility-version=19.29 -D_LIBCPP_NO_VCRUNTIME -D_UCRT -DWINE_UNICODE_NATIVE)
foreach(directory ${CMAKE_CURRENT_LIST_DIR}/include ${llvm}/../include/c++/v1 ${resources}/include
        /usr/include/wine/wine/msvcrt /usr/include/wine/wine/windows ${links})
    list(APPEND flags -imsvc ${directory})
endforeach()
# Extensions of GCC that clang understands and Microsoft's compiler does not. GoogleTest's macros for typed suites use one
# that both understand.
list(APPEND flags -Wpedantic -Wno-gnu-zero-variadic-macro-arguments)
list(JOIN flags " " flags)
set(CMAKE_CXX_FLAGS_INIT "${flags} -X -FI${CMAKE_CURRENT_LIST_DIR}/include/missing.h")
set(CMAKE_CXX_FLAGS_RELEASE -Od CACHE STRING "")
foreach(kind EXE SHARED MODULE)
    set(CMAKE_${kind}_LINKER_FLAGS_INIT "/manifest:no")
endforeach()
