# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# The same packages for builds without CMake: one to install, which does not contain the path of its install location, and
# one for the build directory, which pkg-config prefers when it finds both.

# morvane_pkg_config(NAME name DESCRIPTION text [COMPONENT name] [LIBRARY target] [REQUIRES ...] [CFLAGS ...] [LIBS ...])
# LIBRARY is what the package links, before LIBS; none for headers alone. With Qt 6 the names of the package, of its library
# and of the packages of Morvane in REQUIRES end in -qt6.
function(morvane_pkg_config)
    cmake_parse_arguments(pc "" "NAME;DESCRIPTION;COMPONENT;LIBRARY" "REQUIRES;CFLAGS;LIBS" ${ARGN})
    if(NOT pc_COMPONENT)
        set(pc_COMPONENT Development)
    endif()
    set(pc_directory)
    if(pc_LIBRARY)
        set(pc_directory $<TARGET_FILE_DIR:${pc_LIBRARY}>)
        list(PREPEND pc_LIBS -L\${libdir} -l${pc_LIBRARY}${MORVANE_SUFFIX})
    endif()
    list(TRANSFORM pc_REQUIRES REPLACE "^(morvane-.*)$" "\\1${MORVANE_SUFFIX}")
    list(JOIN pc_REQUIRES " " pc_REQUIRES)
    list(JOIN pc_LIBS " " pc_LIBS)

    file(RELATIVE_PATH prefix_from_pc /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
    string(REGEX REPLACE "/$" "" prefix_from_pc ${prefix_from_pc})
    morvane_write_pkg_config(${pc_NAME}${MORVANE_SUFFIX}.pc
        \${pcfiledir}/${prefix_from_pc} \${prefix}/${CMAKE_INSTALL_LIBDIR} \${prefix}/${CMAKE_INSTALL_INCLUDEDIR}
        \${includedir}/morvane${MORVANE_SUFFIX})
    install(FILES ${PROJECT_BINARY_DIR}/pkgconfig/${pc_NAME}${MORVANE_SUFFIX}.pc
            DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT ${pc_COMPONENT})

    get_property(compat_includes GLOBAL PROPERTY MORVANE_COMPAT_INCLUDES)
    morvane_write_pkg_config(${pc_NAME}${MORVANE_SUFFIX}-uninstalled.pc
        ${PROJECT_BINARY_DIR} "${pc_directory}" ${PROJECT_SOURCE_DIR}/common/src
        \${includedir} \${prefix}/generated ${compat_includes})
endfunction()

# morvane_write_pkg_config(FILE PREFIX LIBDIR INCLUDEDIR INCLUDE...): a part of morvane_pkg_config.
function(morvane_write_pkg_config file pc_PREFIX pc_LIBDIR pc_INCLUDEDIR)
    set(pc_INCLUDES ${ARGN})
    list(TRANSFORM pc_INCLUDES PREPEND -I)
    list(JOIN pc_INCLUDES " " pc_INCLUDES)
    list(JOIN pc_CFLAGS " " pc_CFLAGS)
    file(READ ${PROJECT_SOURCE_DIR}/cmake/morvane.pc.in template)
    string(CONFIGURE "${template}" content @ONLY)
    file(GENERATE OUTPUT ${PROJECT_BINARY_DIR}/pkgconfig/${file} CONTENT "${content}")
endfunction()

set(host_library morvane-host)
if(MORVANE_HOST_LIBRARY)
    set(host_library) # what implements the services is the host's own affair
endif()
# Qxt has no place in the system: a program must be told where to compile with it, link it and load it. Its headers are
# system headers, as they are to CMake, because compilers warn of them.
set(label_cflags)
set(label_libs)
if(MORVANE_PACKAGE_NEEDS_QXT)
    set(label_cflags -isystem${Qxt_INCLUDE_DIR} -isystem${Qxt_CORE_INCLUDE_DIR})
    foreach(library IN ITEMS ${Qxt_LIBRARY} ${Qxt_CORE_LIBRARY})
        cmake_path(GET library PARENT_PATH directory)
        cmake_path(GET library STEM name)
        string(REGEX REPLACE "^lib" "" name ${name})
        if(NOT directory IN_LIST CMAKE_CXX_IMPLICIT_LINK_DIRECTORIES)
            list(APPEND label_libs -L${directory})
            if(NOT WIN32)
                list(APPEND label_libs -Wl,-rpath,${directory})
            endif()
        endif()
        list(APPEND label_libs -l${name})
    endforeach()
    list(REMOVE_DUPLICATES label_libs)
endif()

morvane_pkg_config(NAME morvane-host DESCRIPTION "Services that Morvane calls in its host"
    LIBRARY ${host_library} REQUIRES ${MORVANE_QT}Core)
morvane_pkg_config(NAME morvane-property DESCRIPTION "Observable, validated values"
    REQUIRES morvane-host)
morvane_pkg_config(NAME morvane-ui DESCRIPTION "${PROJECT_DESCRIPTION}"
    LIBRARY morvane-ui REQUIRES morvane-host morvane-property ${MORVANE_QT}Widgets CFLAGS ${label_cflags} LIBS ${label_libs})
if(MORVANE_BUILD_TESTING_LIBRARY)
    morvane_pkg_config(NAME morvane-testing DESCRIPTION "For tests of code that opens Morvane's dialogs"
        LIBRARY morvane-testing COMPONENT Testing REQUIRES morvane-ui)
endif()
