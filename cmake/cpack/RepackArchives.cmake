# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# CPack runs this after it has made the packages: packs them again, so that the same files always give the same bytes. CPack
# takes over the order of the directories, the times, the umask and the name of the user.
if(NOT CPACK_GENERATOR MATCHES "^(DEB|TGZ|ZIP)$" OR CMAKE_HOST_WIN32)
    return()
endif()
foreach(archive IN LISTS CPACK_PACKAGE_FILES)
    execute_process(COMMAND sh ${CMAKE_CURRENT_LIST_DIR}/../../packaging/repack ${archive} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
