# The same packages for builds without CMake. The files hold no path of the place that they are installed to.

# morvane_pkg_config(NAME name DESCRIPTION text [COMPONENT name] [REQUIRES ...] [CFLAGS ...] [LIBS ...])
function(morvane_pkg_config)
    cmake_parse_arguments(pc "" "NAME;DESCRIPTION;COMPONENT" "REQUIRES;CFLAGS;LIBS" ${ARGN})
    if(NOT pc_COMPONENT)
        set(pc_COMPONENT Development)
    endif()
    file(RELATIVE_PATH prefix_from_pc /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
    string(REGEX REPLACE "/$" "" prefix_from_pc ${prefix_from_pc})
    list(PREPEND pc_CFLAGS -I\${includedir}/morvane)
    foreach(list pc_REQUIRES pc_CFLAGS pc_LIBS)
        list(JOIN ${list} " " ${list})
    endforeach()
    set(pc_name ${pc_NAME})
    set(pc_description ${pc_DESCRIPTION})
    set(pc_requires ${pc_REQUIRES})
    set(pc_cflags ${pc_CFLAGS})
    set(pc_libs ${pc_LIBS})
    configure_file(${PROJECT_SOURCE_DIR}/cmake/morvane.pc.in ${PROJECT_BINARY_DIR}/pkgconfig/${pc_NAME}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/pkgconfig/${pc_NAME}.pc
            DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT ${pc_COMPONENT})
endfunction()

set(host_libs -L\${libdir} -lmorvane-host)
if(MORVANE_HOST_LIBRARY)
    set(host_libs) # what implements the services is the host's own affair
endif()
set(label_cflags)
set(label_libs)
if(MORVANE_PACKAGE_NEEDS_QXT)
    set(label_cflags -I${Qxt_INCLUDE_DIR})
    set(label_libs ${Qxt_LIBRARY})
else()
    set(label_cflags -I\${includedir}/morvane/compat/qxt)
endif()

morvane_pkg_config(NAME morvane-host DESCRIPTION "Services that Morvane calls in its host"
    REQUIRES Qt5Core LIBS ${host_libs})
morvane_pkg_config(NAME morvane-property DESCRIPTION "Observable, validated values"
    REQUIRES morvane-host)
morvane_pkg_config(NAME morvane-ui DESCRIPTION "${PROJECT_DESCRIPTION}"
    REQUIRES morvane-host morvane-property Qt5Widgets
    CFLAGS ${label_cflags} LIBS -L\${libdir} -lmorvane-ui ${label_libs})
if(MORVANE_BUILD_TESTING_LIBRARY)
    morvane_pkg_config(NAME morvane-testing DESCRIPTION "For tests of code that opens Morvane's dialogs"
        COMPONENT Testing REQUIRES morvane-ui LIBS -L\${libdir} -lmorvane-testing)
endif()
