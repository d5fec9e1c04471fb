# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# Runs Doxygen in OUTPUT, where its Doxyfile stands. Each of its warnings is an error, and so is a class without an example.
file(REMOVE_RECURSE ${OUTPUT}/html)
file(REMOVE ${OUTPUT}/warnings.txt)
execute_process(COMMAND ${DOXYGEN} ${OUTPUT}/Doxyfile WORKING_DIRECTORY ${OUTPUT} RESULT_VARIABLE result)
file(STRINGS ${OUTPUT}/warnings.txt warnings ENCODING UTF-8)
if(warnings OR NOT result EQUAL 0)
    list(JOIN warnings "\n" text)
    message("${text}")
    message(FATAL_ERROR "Doxygen is not content with the comments and pages above (result ${result})")
endif()

file(GLOB class_pages ${OUTPUT}/html/class*.html)
list(FILTER class_pages EXCLUDE REGEX "(-members|classes)\\.html$")
if(NOT class_pages)
    message(FATAL_ERROR "there are no pages of classes in ${OUTPUT}/html")
endif()
foreach(page IN LISTS class_pages)
    file(READ ${page} html)
    if(NOT html MATCHES "class=\"fragment\"")
        message(SEND_ERROR "no example on ${page}")
    endif()
endforeach()

file(GLOB pages ${OUTPUT}/html/*.html)
foreach(page IN LISTS pages)
    file(STRINGS ${page} pictures REGEX "<img src=\"[^\"]*/")
    if(pictures)
        message(SEND_ERROR "a picture on ${page} is not among the pages: ${pictures}")
    endif()
endforeach()
