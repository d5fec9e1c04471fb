# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# Builds the source tree that this port is a part of. It fetches nothing.
vcpkg_check_linkage(ONLY_DYNAMIC_LIBRARY)
cmake_path(SET SOURCE_PATH NORMALIZE "${CURRENT_PORT_DIR}/../../../..")

vcpkg_check_features(OUT_FEATURE_OPTIONS testing_option FEATURES testing MORVANE_BUILD_TESTING_LIBRARY)

# Where Qt looks for plugins in a prefix of vcpkg.
set(plugins_of_qt5 plugins)
set(plugins_of_qt6 Qt6/plugins)
set(package_of_qt5 Morvane)
set(package_of_qt6 Morvane-Qt6)

# What is built for one major version of Qt has other names than what is built for the other, so both may be installed.
set(built OFF)
foreach(qt IN ITEMS qt5 qt6)
    if(NOT qt IN_LIST FEATURES)
        continue()
    endif()
    vcpkg_check_features(OUT_FEATURE_OPTIONS designer_option FEATURES ${qt}-designer MORVANE_BUILD_DESIGNER)
    set(plugin_directory_option)
    if(MORVANE_BUILD_DESIGNER)
        set(plugin_directory_option -DMORVANE_DESIGNER_PLUGIN_DIR=${plugins_of_${qt}}/designer)
    endif()
    string(REPLACE qt "" qt_major ${qt})
    vcpkg_cmake_configure(
        SOURCE_PATH "${SOURCE_PATH}"
        LOGFILE_BASE config-${qt}
        OPTIONS
            -DMORVANE_QT_MAJOR=${qt_major}
            -DMORVANE_BUILD_TESTS=OFF
            -DMORVANE_BUILD_EXAMPLES=OFF
            ${testing_option}
            ${designer_option}
            ${plugin_directory_option})
    vcpkg_cmake_install()
    string(TOLOWER ${package_of_${qt}} share)
    vcpkg_cmake_config_fixup(PACKAGE_NAME ${share} CONFIG_PATH lib/cmake/${package_of_${qt}})
    set(built ON)
endforeach()
if(NOT built)
    message(FATAL_ERROR "Morvane needs the feature qt5, the feature qt6, or both.")
endif()

vcpkg_copy_pdbs()
vcpkg_fixup_pkgconfig()
file(REMOVE_RECURSE "${CURRENT_PACKAGES_DIR}/debug/include" "${CURRENT_PACKAGES_DIR}/debug/share")

file(INSTALL "${CURRENT_PORT_DIR}/usage" DESTINATION "${CURRENT_PACKAGES_DIR}/share/${PORT}")
vcpkg_install_copyright(FILE_LIST "${SOURCE_PATH}/LICENSE")
