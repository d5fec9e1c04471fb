# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# CPack runs this before it makes the Debian packages: writes the symbols file of the run-time package from the libraries that
# are about to be packed.
if(NOT CPACK_GENERATOR STREQUAL "DEB")
    return()
endif()
cmake_path(GET CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA PARENT_PATH directory)
file(MAKE_DIRECTORY ${directory})
file(REMOVE ${CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA})
execute_process(
    COMMAND sh ${CMAKE_CURRENT_LIST_DIR}/../../packaging/debian/make-symbols ${CPACK_DEBIAN_RUNTIME_PACKAGE_NAME}
            ${CPACK_PACKAGE_VERSION} ${CPACK_TEMPORARY_DIRECTORY} ${CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA}
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "The libraries export other names than packaging/debian/${CPACK_DEBIAN_RUNTIME_PACKAGE_NAME}.symbols "
        "lists; CONTRIBUTING.md says what to do.\n${output}")
endif()
