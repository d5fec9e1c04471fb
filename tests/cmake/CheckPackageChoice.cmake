# Configures Morvane with each choice for CTK and Qxt, on machines that have them and on machines that have not.
cmake_minimum_required(VERSION 3.25)
file(REMOVE_RECURSE ${WORK_DIR})

# Enough of the two packages to be found.
set(prefix ${WORK_DIR}/prefix)
file(WRITE ${prefix}/lib/cmake/ctk-0.1/CTKConfig.cmake
    "add_library(CTKWidgets SHARED IMPORTED)\n"
    "set_target_properties(CTKWidgets PROPERTIES IMPORTED_LOCATION ${prefix}/lib/libCTKWidgets.so)\n")
file(WRITE ${prefix}/include/QxtWidgets/QxtLabel "")
file(WRITE ${prefix}/lib/libQxtWidgets.so "")
set(without_widgets ${WORK_DIR}/without_widgets)
file(WRITE ${without_widgets}/lib/cmake/ctk-0.1/CTKConfig.cmake "add_library(CTKCore SHARED IMPORTED)\n")

set(there -DCMAKE_PREFIX_PATH=${prefix})
set(not_there -DCMAKE_DISABLE_FIND_PACKAGE_CTK=ON -DCMAKE_DISABLE_FIND_PACKAGE_Qxt=ON)

# expect(RESULT MESSAGES... WITH options...): RESULT is `works` or `fails`, and each of MESSAGES is printed.
function(expect result)
    cmake_parse_arguments(arg "" "" "WITH" ${ARGN})
    # What was found before must not count; the compiler may stay known.
    execute_process(
        COMMAND ${CMAKE_COMMAND} -S ${MORVANE_SOURCE_DIR} -B ${WORK_DIR}/build -G ${GENERATOR}
                -DCMAKE_CXX_COMPILER=${CXX_COMPILER} -DMORVANE_BUILD_TESTS=OFF -DMORVANE_BUILD_EXAMPLES=OFF
                -U CTK_* -U Qxt_* -U CMAKE_PREFIX_PATH -U CMAKE_DISABLE_FIND_PACKAGE_* -U MORVANE_WITH_* ${arg_WITH}
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
endfunction()

set(ctk_stand_in "ctkCompleter: the stand-in")
set(qxt_stand_in "QxtLabel: the stand-in")

expect(works ${ctk_stand_in} ${qxt_stand_in} WITH ${not_there})
expect(works "ctkCompleter: CTK" "QxtLabel: ${prefix}/lib/libQxtWidgets.so" WITH ${there})
expect(works ${ctk_stand_in} ${qxt_stand_in} WITH ${there} -DMORVANE_WITH_CTK=OFF -DMORVANE_WITH_QXT=OFF)
expect(works "ctkCompleter: CTK" ${qxt_stand_in} WITH ${there} -DMORVANE_WITH_CTK=ON -DMORVANE_WITH_QXT=OFF)
expect(works ${ctk_stand_in} "QxtLabel: ${prefix}" WITH ${there} -DMORVANE_WITH_CTK=OFF -DMORVANE_WITH_QXT=ON)

set(ctk_missing "MORVANE_WITH_CTK is ON, but CTK with its widgets was not found; set CTK_DIR")
expect(fails ${ctk_missing} WITH ${not_there} -DMORVANE_WITH_CTK=ON)
expect(fails "MORVANE_WITH_QXT is ON, but Qxt was not found; set Qxt_ROOT" WITH ${not_there} -DMORVANE_WITH_QXT=ON)

set(no_widgets -DCMAKE_PREFIX_PATH=${without_widgets})
expect(fails ${ctk_missing} WITH ${no_widgets} -DMORVANE_WITH_CTK=ON)
expect(works ${ctk_stand_in} WITH ${no_widgets})

expect(fails "MORVANE_WITH_CTK is 'YES'; it can be AUTO, ON or OFF" WITH ${not_there} -DMORVANE_WITH_CTK=YES)
expect(fails "MORVANE_WITH_QXT is '0'; it can be AUTO, ON or OFF" WITH ${not_there} -DMORVANE_WITH_QXT=0)
