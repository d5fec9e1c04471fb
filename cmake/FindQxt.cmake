# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# Finds the widgets of Qxt, which brings no CMake package of its own, and makes the targets Qxt::Widgets and Qxt::Core.
# The libraries are called QxtWidgets and QxtCore, in older releases QxtGui and QxtCore, and so are the header directories.
# Qxt_ROOT names a prefix to search first.
find_path(Qxt_INCLUDE_DIR NAMES QxtLabel PATH_SUFFIXES QxtWidgets qxt/QxtWidgets QxtGui qxt/QxtGui)
find_library(Qxt_LIBRARY NAMES QxtWidgets QxtWidgets-qt5 QxtGui QxtGui-qt5)
# The headers of the widgets include those of the core, which are in a sibling directory.
get_filename_component(Qxt_parent "${Qxt_INCLUDE_DIR}" DIRECTORY)
find_path(Qxt_CORE_INCLUDE_DIR NAMES qxtglobal.h HINTS ${Qxt_parent}/QxtCore PATH_SUFFIXES QxtCore qxt/QxtCore)
find_library(Qxt_CORE_LIBRARY NAMES QxtCore QxtCore-qt5)
unset(Qxt_parent)
mark_as_advanced(Qxt_INCLUDE_DIR Qxt_LIBRARY Qxt_CORE_INCLUDE_DIR Qxt_CORE_LIBRARY)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Qxt
    REQUIRED_VARS Qxt_LIBRARY Qxt_INCLUDE_DIR Qxt_CORE_LIBRARY Qxt_CORE_INCLUDE_DIR)

if(Qxt_FOUND AND NOT TARGET Qxt::Widgets)
    add_library(Qxt::Core UNKNOWN IMPORTED)
    set_target_properties(Qxt::Core PROPERTIES
        IMPORTED_LOCATION "${Qxt_CORE_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${Qxt_CORE_INCLUDE_DIR}")
    # Each program links the core itself: QxtWidgets needs it, but only the program is told the directory where it is.
    add_library(Qxt::Widgets UNKNOWN IMPORTED)
    set_target_properties(Qxt::Widgets PROPERTIES
        IMPORTED_LOCATION "${Qxt_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${Qxt_INCLUDE_DIR}"
        INTERFACE_LINK_LIBRARIES Qxt::Core)
endif()
