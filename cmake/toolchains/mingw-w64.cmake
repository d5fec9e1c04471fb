# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# Cross-building for 64-bit Windows with MinGW-w64. MORVANE_WINDOWS_SDK (cache or environment variable) is a prefix
# that holds Qt, Boost and GoogleTest for that target; packaging/windows/make-sdk makes one.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

# The variant with C++ threads, if the machine has both variants.
set(mingw_triplet x86_64-w64-mingw32)
find_program(MINGW_CXX NAMES ${mingw_triplet}-g++-posix ${mingw_triplet}-g++)
find_program(MINGW_CC NAMES ${mingw_triplet}-gcc-posix ${mingw_triplet}-gcc)
mark_as_advanced(MINGW_CXX MINGW_CC)
set(CMAKE_CXX_COMPILER ${MINGW_CXX})
set(CMAKE_C_COMPILER ${MINGW_CC})
set(CMAKE_RC_COMPILER ${mingw_triplet}-windres)

if(NOT MORVANE_WINDOWS_SDK)
    set(MORVANE_WINDOWS_SDK "$ENV{MORVANE_WINDOWS_SDK}")
endif()
set(MORVANE_WINDOWS_SDK "${MORVANE_WINDOWS_SDK}" CACHE PATH "Qt, Boost and GoogleTest for the Windows target")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES MORVANE_WINDOWS_SDK)
if(NOT EXISTS "${MORVANE_WINDOWS_SDK}/bin")
    message(FATAL_ERROR "MORVANE_WINDOWS_SDK is not the directory of an SDK: '${MORVANE_WINDOWS_SDK}'")
endif()

# The same sources give the same bytes: no times in the programs, and no directories of this machine.
foreach(kind IN ITEMS EXE MODULE SHARED)
    set(CMAKE_${kind}_LINKER_FLAGS_INIT -Wl,--no-insert-timestamp)
endforeach()
set(CMAKE_CXX_FLAGS_RELEASE_INIT "-ffile-prefix-map=${CMAKE_SOURCE_DIR}=. -ffile-prefix-map=${MORVANE_WINDOWS_SDK}=sdk")

# CMake must not find packages of the build machine by accident. Prefixes in CMAKE_PREFIX_PATH are searched.
set(CMAKE_FIND_ROOT_PATH ${MORVANE_WINDOWS_SDK} ${CMAKE_PREFIX_PATH})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(Boost_USE_STATIC_LIBS ON)

set(CMAKE_CROSSCOMPILING_EMULATOR
    ${CMAKE_CURRENT_LIST_DIR}/../../packaging/windows/run-wine
    --home ${CMAKE_BINARY_DIR}/wine --sdk ${MORVANE_WINDOWS_SDK} --)
