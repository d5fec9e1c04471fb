# MorvaneConfig.cmake asks for the same packages; change both together.
find_package(Qt5 5.15 REQUIRED COMPONENTS Core Gui Widgets)
find_package(Boost 1.74 REQUIRED COMPONENTS filesystem)

set(MORVANE_HAS_DESIGNER OFF)
if(MORVANE_BUILD_DESIGNER STREQUAL "AUTO")
    find_package(Qt5UiPlugin 5.15 QUIET)
    set(MORVANE_HAS_DESIGNER ${Qt5UiPlugin_FOUND})
elseif(MORVANE_BUILD_DESIGNER)
    find_package(Qt5UiPlugin 5.15 REQUIRED)
    set(MORVANE_HAS_DESIGNER ON)
endif()
