# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# Qt, Boost, and what the choice of Qt means for the names of the packages. MorvaneConfig.cmake asks for the same packages;
# change both together.
set(morvane_oldest_qt5 5.15)
set(morvane_oldest_qt6 6.4)

# The choice, unless it was made: the Qt that the embedding project has found already, then the one that is installed.
if(NOT MORVANE_QT_MAJOR)
    if(TARGET Qt6::Core AND NOT TARGET Qt5::Core)
        set(qt_major 6)
    else()
        find_package(Qt5 ${morvane_oldest_qt5} QUIET COMPONENTS Core Gui Widgets)
        set(qt_major 6)
        if(Qt5_FOUND)
            set(qt_major 5)
        endif()
    endif()
    set_property(CACHE MORVANE_QT_MAJOR PROPERTY VALUE ${qt_major})
endif()
if(NOT MORVANE_QT_MAJOR MATCHES "^[56]$")
    message(FATAL_ERROR "MORVANE_QT_MAJOR is ${MORVANE_QT_MAJOR}; 5 and 6 are possible")
endif()
set(MORVANE_QT Qt${MORVANE_QT_MAJOR})
set(MORVANE_OLDEST_QT ${morvane_oldest_qt${MORVANE_QT_MAJOR}})
find_package(${MORVANE_QT} ${MORVANE_OLDEST_QT} REQUIRED COMPONENTS Core Gui Widgets)
message(STATUS "Qt: ${${MORVANE_QT}_VERSION}")

# Both can be installed side by side: Qt 6 is in the names of the libraries, the headers' directory and the packages.
set(MORVANE_SUFFIX)
set(MORVANE_PACKAGE Morvane)
if(MORVANE_QT_MAJOR EQUAL 6)
    set(MORVANE_SUFFIX -qt6)
    set(MORVANE_PACKAGE Morvane-Qt6)
endif()

# CMake's own module is only for a Boost without a configuration file; from CMake 3.30 on, it is deprecated.
find_package(Boost 1.74 QUIET CONFIG COMPONENTS filesystem)
if(NOT Boost_FOUND)
    find_package(Boost 1.74 REQUIRED COMPONENTS filesystem)
endif()
# Boost's types are in the interface, and Boost does not promise that two releases are compatible. So a package is only for
# the release that it was built with.
set(MORVANE_BOOST ${Boost_VERSION_MAJOR}.${Boost_VERSION_MINOR})

set(MORVANE_HAS_DESIGNER OFF)
if(MORVANE_BUILD_DESIGNER STREQUAL "AUTO")
    find_package(${MORVANE_QT}UiPlugin ${MORVANE_OLDEST_QT} QUIET)
    set(MORVANE_HAS_DESIGNER ${${MORVANE_QT}UiPlugin_FOUND})
elseif(MORVANE_BUILD_DESIGNER)
    find_package(${MORVANE_QT}UiPlugin ${MORVANE_OLDEST_QT} REQUIRED)
    set(MORVANE_HAS_DESIGNER ON)
endif()
