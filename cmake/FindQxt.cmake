# Finds the widgets of Qxt, which brings no CMake package of its own, and makes the target Qxt::Widgets.
# The library is called QxtWidgets in newer and QxtGui in older releases, and its header directory likewise.
# Qxt_ROOT leads the search to a prefix.
find_path(Qxt_INCLUDE_DIR NAMES QxtLabel PATH_SUFFIXES QxtWidgets qxt/QxtWidgets QxtGui qxt/QxtGui)
find_library(Qxt_LIBRARY NAMES QxtWidgets QxtWidgets-qt5 QxtGui QxtGui-qt5)
mark_as_advanced(Qxt_INCLUDE_DIR Qxt_LIBRARY)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Qxt REQUIRED_VARS Qxt_LIBRARY Qxt_INCLUDE_DIR)

if(Qxt_FOUND AND NOT TARGET Qxt::Widgets)
    cmake_path(GET Qxt_INCLUDE_DIR PARENT_PATH Qxt_parent)
    add_library(Qxt::Widgets UNKNOWN IMPORTED)
    set_target_properties(Qxt::Widgets PROPERTIES
        IMPORTED_LOCATION "${Qxt_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${Qxt_INCLUDE_DIR}")
    # Its headers include those of QxtCore, a sibling directory.
    if(EXISTS "${Qxt_parent}/QxtCore")
        set_property(TARGET Qxt::Widgets APPEND PROPERTY INTERFACE_INCLUDE_DIRECTORIES "${Qxt_parent}/QxtCore")
    endif()
endif()
