# Runs one scenario in a scratch folder of its own and checks what it promises:
#
#   # exit STATUS LINE          it ends with this status at this line; otherwise with 0
#   # given PATH TEXT           a file that is there beforehand; without TEXT it is empty
#   # size PATH BYTES           length of a file that the scenario leaves
#   # bytes PATH OFFSET HEX     bytes in such a file, two digits each, blanks between
#   # gone PATH                 a file that the scenario must not leave
#
# Its standard output must equal NAME.golden beside it, where there is one.
cmake_minimum_required(VERSION 3.25)

# Each line that begins with "# WORD ", without these, in the list of this name.
function(collect_promises word)
    file(STRINGS ${FILE} found REGEX "^# ${word} ")
    list(TRANSFORM found REPLACE "^# ${word} " "")
    set(${word} "${found}" PARENT_SCOPE)
endfunction()
foreach(word exit given size bytes gone)
    collect_promises(${word})
endforeach()

file(REMOVE_RECURSE ${SCRATCH})
file(MAKE_DIRECTORY ${SCRATCH})
foreach(promise IN LISTS given)
    string(REGEX MATCH "^([^ ]+) ?(.*)$" all "${promise}")
    file(WRITE ${SCRATCH}/${CMAKE_MATCH_1} "${CMAKE_MATCH_2}")
endforeach()

execute_process(COMMAND ${TOOL} ${FILE} WORKING_DIRECTORY ${SCRATCH}
                RESULT_VARIABLE status OUTPUT_FILE ${SCRATCH}/standard_output
                ERROR_VARIABLE said)

# Without a promise: status 0 and not a word.
set(expected_status 0)
set(expected_words "^$")
if(exit)
    string(REGEX MATCH "^([0-9]+) ([0-9]+)$" all "${exit}")
    set(expected_status ${CMAKE_MATCH_1})
    set(expected_words "/[^/\n]*:${CMAKE_MATCH_2}: [^\n]+\n$")
    string(REGEX MATCHALL "\n" ends "${said}")
    list(LENGTH ends lines)
    if(NOT lines EQUAL 1)
        message(FATAL_ERROR "One line should be said, not ${lines}:\n${said}")
    endif()
endif()
if(NOT "${status}" STREQUAL "${expected_status}")
    message(FATAL_ERROR "The status is ${status}, not ${expected_status}:\n${said}")
endif()
if(NOT "${said}" MATCHES "${expected_words}")
    message(FATAL_ERROR "The words do not match ${expected_words}:\n${said}")
endif()

foreach(promise IN LISTS size)
    string(REGEX MATCH "^([^ ]+) ([0-9]+)$" all "${promise}")
    file(SIZE ${SCRATCH}/${CMAKE_MATCH_1} found)
    if(NOT found EQUAL ${CMAKE_MATCH_2})
        message(FATAL_ERROR "${CMAKE_MATCH_1} has ${found} bytes, not ${CMAKE_MATCH_2}")
    endif()
endforeach()

foreach(promise IN LISTS bytes)
    string(REGEX MATCH "^([^ ]+) ([0-9]+) ([0-9a-f ]+)$" all "${promise}")
    set(path ${CMAKE_MATCH_1})
    set(offset ${CMAKE_MATCH_2})
    string(REPLACE " " "" expected "${CMAKE_MATCH_3}")
    string(LENGTH "${expected}" digits)
    math(EXPR count "${digits} / 2")
    file(READ ${SCRATCH}/${path} found OFFSET ${offset} LIMIT ${count} HEX)
    if(NOT "${found}" STREQUAL "${expected}")
        message(FATAL_ERROR "${path} has ${found} at ${offset}, not ${expected}")
    endif()
endforeach()

foreach(path IN LISTS gone)
    if(EXISTS ${SCRATCH}/${path})
        message(FATAL_ERROR "${path} should not be there")
    endif()
endforeach()

string(REGEX REPLACE "\\.txt$" ".golden" golden ${FILE})
if(EXISTS ${golden})
    execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${golden} ${SCRATCH}/standard_output
                    RESULT_VARIABLE differs)
    if(differs)
        file(READ ${golden} expected)
        file(READ ${SCRATCH}/standard_output found)
        message(FATAL_ERROR "Standard output differs. Expected:\n${expected}\nFound:\n${found}")
    endif()
endif()
