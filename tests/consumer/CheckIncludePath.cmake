# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# Nothing of Morvane may be found as a header of CTK or Qxt, in whatever case the file system compares names.
get_target_property(directories Morvane::Ui INTERFACE_INCLUDE_DIRECTORIES)
foreach(directory IN LISTS directories)
    string(REGEX REPLACE "^\\$<BUILD_INTERFACE:(.*)>$" "\\1" directory "${directory}")
    file(GLOB headers ${directory}/*)
    foreach(header IN LISTS headers)
        get_filename_component(name ${header} NAME)
        string(TOLOWER ${name} name)
        if(name MATCHES "^(qxtlabel|ctkcompleter)")
            message(FATAL_ERROR "the package puts ${header} before the real one")
        endif()
    endforeach()
endforeach()
