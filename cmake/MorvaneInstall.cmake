# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/${MORVANE_PACKAGE})
install(TARGETS morvane-host morvane-property morvane-ui EXPORT ${MORVANE_PACKAGE}Targets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Runtime
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Runtime NAMELINK_COMPONENT Development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Development)
install(EXPORT ${MORVANE_PACKAGE}Targets NAMESPACE Morvane:: DESTINATION ${package_dir} COMPONENT Development)
if(MORVANE_BUILD_TESTING_LIBRARY)
    install(TARGETS morvane-testing EXPORT ${MORVANE_PACKAGE}TestingTargets
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Testing)
    install(EXPORT ${MORVANE_PACKAGE}TestingTargets NAMESPACE Morvane:: DESTINATION ${package_dir} COMPONENT Testing)
    export(EXPORT ${MORVANE_PACKAGE}TestingTargets NAMESPACE Morvane:: FILE ${PROJECT_BINARY_DIR}/${MORVANE_PACKAGE}TestingTargets.cmake)
endif()

# The same package straight from the build directory: -DMorvane_DIR=... or -DMorvane-Qt6_DIR=...
export(EXPORT ${MORVANE_PACKAGE}Targets NAMESPACE Morvane:: FILE ${PROJECT_BINARY_DIR}/${MORVANE_PACKAGE}Targets.cmake)

get_property(uses_qxt GLOBAL PROPERTY MORVANE_USES_QXT)
set(MORVANE_PACKAGE_NEEDS_QXT FALSE)
if(uses_qxt)
    set(MORVANE_PACKAGE_NEEDS_QXT TRUE)
    install(FILES ${CMAKE_CURRENT_LIST_DIR}/FindQxt.cmake DESTINATION ${package_dir} COMPONENT Development)
    configure_file(${CMAKE_CURRENT_LIST_DIR}/FindQxt.cmake ${PROJECT_BINARY_DIR}/FindQxt.cmake COPYONLY)
endif()
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/MorvaneConfig.cmake.in
    ${PROJECT_BINARY_DIR}/${MORVANE_PACKAGE}Config.cmake INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/${MORVANE_PACKAGE}ConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/${MORVANE_PACKAGE}Config.cmake ${PROJECT_BINARY_DIR}/${MORVANE_PACKAGE}ConfigVersion.cmake
        DESTINATION ${package_dir} COMPONENT Development)

# The guides, and the examples that the headers name; the reference pages if the target morvane-docs has made them. A recipe of
# a package manager may leave them out of the sources.
if(EXISTS ${PROJECT_SOURCE_DIR}/examples)
    set(documents ${CMAKE_INSTALL_DATADIR}/doc/morvane${MORVANE_SUFFIX})
    install(FILES README.md CHANGELOG.md DESTINATION ${documents} COMPONENT Development)
    install(DIRECTORY docs/guides docs/images DESTINATION ${documents}/docs COMPONENT Development)
    install(DIRECTORY docs/ DESTINATION ${documents}/docs COMPONENT Development FILES_MATCHING REGEX "/docs/[a-z-]+\\.md$")
    install(DIRECTORY examples/ DESTINATION ${documents}/examples COMPONENT Development
        REGEX "/examples/(gallery|CMakeLists\\.txt)$" EXCLUDE)
    install(DIRECTORY ${PROJECT_BINARY_DIR}/docs/html DESTINATION ${documents} COMPONENT Development OPTIONAL)
endif()

include(MorvanePkgConfig)
include(MorvaneSbom)
if(PROJECT_IS_TOP_LEVEL AND WIN32)
    include(MorvaneWindowsPackage)
elseif(PROJECT_IS_TOP_LEVEL)
    include(MorvanePackages)
endif()
