# MorvaneConfig.cmake asks for the same packages; change both together.
find_package(Qt5 5.15 REQUIRED COMPONENTS Core Gui Widgets)
find_package(Boost 1.74 REQUIRED COMPONENTS filesystem)
