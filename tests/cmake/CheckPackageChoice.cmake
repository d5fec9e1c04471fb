# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# Configures Morvane with each choice for CTK and Qxt, on machines that have them and on machines that have not.
cmake_minimum_required(VERSION 3.25)
file(REMOVE_RECURSE ${WORK_DIR})

# Enough of the two packages to be found. CTK's names a part of Qt and does not look for it, as the real one does.
function(write_ctk prefix needed)
    file(WRITE ${prefix}/lib/cmake/ctk-0.1/CTKConfig.cmake
        "add_library(CTKCore SHARED IMPORTED)\n"
        "add_library(CTKWidgets SHARED IMPORTED)\n"
        "set_target_properties(CTKCore CTKWidgets PROPERTIES IMPORTED_LOCATION ${prefix}/lib/libCTKWidgets.so)\n"
        "set_target_properties(CTKWidgets PROPERTIES INTERFACE_LINK_LIBRARIES \"CTKCore;Qt${QT_MAJOR}::Widgets;${needed}\")\n")
endfunction()
set(prefix ${WORK_DIR}/prefix)
write_ctk(${prefix} Qt${QT_MAJOR}::Xml)
foreach(file IN ITEMS include/QxtWidgets/QxtLabel include/QxtCore/qxtglobal.h lib/libQxtWidgets.so lib/libQxtCore.so)
    file(WRITE ${prefix}/${file} "")
endforeach()
set(there -DCMAKE_PREFIX_PATH=${prefix})
set(not_there -DCMAKE_DISABLE_FIND_PACKAGE_CTK=ON -DCMAKE_DISABLE_FIND_PACKAGE_Qxt=ON)

set(without_widgets ${WORK_DIR}/without_widgets)
file(WRITE ${without_widgets}/lib/cmake/ctk-0.1/CTKConfig.cmake "add_library(CTKCore SHARED IMPORTED)\n")
file(WRITE ${without_widgets}/include/QxtCore/qxtglobal.h "")
file(WRITE ${without_widgets}/lib/libQxtCore.so "")
set(without_qt ${WORK_DIR}/without_qt)
write_ctk(${without_qt} Qt${QT_MAJOR}::NoPartOfQt)
set(without_core ${WORK_DIR}/without_core)
file(WRITE ${without_core}/include/QxtWidgets/QxtLabel "")
file(WRITE ${without_core}/lib/libQxtWidgets.so "")
set(broken ${WORK_DIR}/broken)
file(WRITE ${broken}/lib/cmake/ctk-0.1/CTKConfig.cmake "message(FATAL_ERROR broken)\n")

# expect(RESULT MESSAGES... [NOT MESSAGES...] WITH options...): RESULT is `works` or `fails`; each of MESSAGES is printed, and
# none of those behind NOT. FROM_BEFORE keeps what the build directory knows.
function(expect result)
    cmake_parse_arguments(arg "FROM_BEFORE" "" "NOT;WITH" ${ARGN})
    set(forget -U CTK_* -U Qxt_* -U CMAKE_PREFIX_PATH -U CMAKE_DISABLE_FIND_PACKAGE_* -U MORVANE_WITH_*)
    if(arg_FROM_BEFORE)
        set(forget)
    endif()
    execute_process(
        COMMAND ${CMAKE_COMMAND} -S ${MORVANE_SOURCE_DIR} -B ${WORK_DIR}/build -G ${GENERATOR}
                -DCMAKE_CXX_COMPILER=${CXX_COMPILER} -DMORVANE_QT_MAJOR=${QT_MAJOR} -DMORVANE_BUILD_TESTS=OFF -DMORVANE_BUILD_EXAMPLES=OFF
                ${forget} ${arg_WITH}
        RESULT_VARIABLE code OUTPUT_VARIABLE output ERROR_VARIABLE output)
    # Messages are wrapped where the paths in them end.
    string(REGEX REPLACE "[ \n]+" " " output "${output}")
    if(code EQUAL 0)
        set(actual works)
    else()
        set(actual fails)
    endif()
    if(NOT actual STREQUAL result)
        message(SEND_ERROR "with ${arg_WITH} the configuration ${actual}:\n${output}")
    endif()
    foreach(message IN LISTS arg_UNPARSED_ARGUMENTS)
        string(FIND "${output}" "${message}" place)
        if(place EQUAL -1)
            message(SEND_ERROR "with ${arg_WITH} nothing says \"${message}\":\n${output}")
        endif()
    endforeach()
    foreach(message IN LISTS arg_NOT)
        string(FIND "${output}" "${message}" place)
        if(NOT place EQUAL -1)
            message(SEND_ERROR "with ${arg_WITH} something says \"${message}\":\n${output}")
        endif()
    endforeach()
endfunction()

set(ctk_stand_in "ctkCompleter: the stand-in")
set(qxt_stand_in "QxtLabel: the stand-in")
set(qxt "QxtLabel: ${prefix}/lib/libQxtWidgets.so")

# Who asks for nothing gets the stand-ins, whatever is installed.
expect(works ${ctk_stand_in} ${qxt_stand_in} WITH ${not_there})
expect(works ${ctk_stand_in} ${qxt_stand_in} NOT Warning WITH ${there})
expect(works ${ctk_stand_in} NOT Warning WITH -DCMAKE_PREFIX_PATH=${broken})

expect(works "ctkCompleter: CTK" ${qxt} WITH ${there} -DMORVANE_WITH_CTK=ON -DMORVANE_WITH_QXT=ON)
expect(works "ctkCompleter: CTK" ${qxt_stand_in} WITH ${there} -DMORVANE_WITH_CTK=yes -DMORVANE_WITH_QXT=no)
expect(works ${ctk_stand_in} ${qxt} WITH ${there} -DMORVANE_WITH_CTK=0 -DMORVANE_WITH_QXT=1)
expect(works ${qxt} WITH -DQxt_ROOT=${prefix} -DMORVANE_WITH_QXT=ON)
expect(works "ctkCompleter: CTK" WITH -DCTK_DIR=${prefix}/lib/cmake/ctk-0.1 -DMORVANE_WITH_CTK=ON)

set(ctk_missing "MORVANE_WITH_CTK is ON, but CTK with its widgets was not found; set CTK_DIR")
set(qxt_missing "MORVANE_WITH_QXT is ON, but Qxt was not found; set Qxt_ROOT")
foreach(machine IN ITEMS "${not_there}" -DCMAKE_PREFIX_PATH=${without_widgets})
    expect(fails ${ctk_missing} WITH ${machine} -DMORVANE_WITH_CTK=ON)
    expect(fails ${qxt_missing} WITH ${machine} -DMORVANE_WITH_QXT=ON)
endforeach()
expect(fails ${qxt_missing} WITH -DCMAKE_PREFIX_PATH=${without_core} -DMORVANE_WITH_QXT=ON)
expect(fails Qt${QT_MAJOR}NoPartOfQt WITH -DCMAKE_PREFIX_PATH=${without_qt} -DMORVANE_WITH_CTK=ON)

# A build directory of the time when the switches were initially AUTO is told once what it has now.
foreach(package IN ITEMS CTK QXT)
    set(gone "MORVANE_WITH_${package} no longer knows AUTO and is OFF now: the stand-in is used. ON takes the package.")
    expect(works ${gone} ${ctk_stand_in} ${qxt_stand_in} WITH ${there} -DMORVANE_WITH_${package}:STRING=AUTO)
    expect(works ${ctk_stand_in} ${qxt_stand_in} NOT AUTO WITH ${there} FROM_BEFORE)
endforeach()
