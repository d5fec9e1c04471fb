# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# `cpack -G ZIP`: the DLLs, their import libraries, the headers, the CMake package and the gallery.
set(CPACK_PACKAGE_NAME morvane${MORVANE_SUFFIX})
set(CPACK_PACKAGE_VENDOR "The Morvane authors")
set(CPACK_PACKAGE_FILE_NAME morvane${MORVANE_SUFFIX}-${PROJECT_VERSION}-windows-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_PACKAGE_CHECKSUM SHA256)
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_POST_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/cpack/RepackArchives.cmake)
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/morvane${MORVANE_SUFFIX} COMPONENT Runtime)

# What the gallery needs to start at a double click. A host has its own Qt.
if(MORVANE_WINDOWS_SDK)
    foreach(library ${MORVANE_QT}Core ${MORVANE_QT}Gui ${MORVANE_QT}Widgets ${MORVANE_QT}Test libstdc++-6 libgcc_s_seh-1 libwinpthread-1)
        install(FILES ${MORVANE_WINDOWS_SDK}/bin/${library}.dll
                DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Gallery)
    endforeach()
    install(FILES ${MORVANE_WINDOWS_SDK}/plugins/platforms/qwindows.dll
            DESTINATION ${CMAKE_INSTALL_BINDIR}/platforms COMPONENT Gallery)
    install(FILES ${MORVANE_WINDOWS_SDK}/plugins/styles/qwindowsvistastyle.dll
            DESTINATION ${CMAKE_INSTALL_BINDIR}/styles COMPONENT Gallery)
    # The terms under which these may be passed on, as the distribution states them.
    set(qt_package qtbase5-dev)
    if(MORVANE_QT_MAJOR EQUAL 6)
        set(qt_package qt6-base-dev)
    endif()
    foreach(source ${qt_package} g++-mingw-w64-x86-64-posix)
        install(FILES /usr/share/doc/${source}/copyright RENAME ${source}.txt
                DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/morvane${MORVANE_SUFFIX}/others COMPONENT Gallery OPTIONAL)
    endforeach()
endif()
include(CPack)
