# Small trees for the checks to judge.
cmake_minimum_required(VERSION 3.16)
include("${CHECKS}/checkcommon.cmake")

# A tree without any file.
function(start_tree)
    file(REMOVE_RECURSE "${FIXTURE}")
    file(MAKE_DIRECTORY "${FIXTURE}")
endfunction()

# write(<path> <line>...)
function(write path)
    list(JOIN ARGN "\n" text)
    file(WRITE "${FIXTURE}/${path}" "${text}\n")
endfunction()

# Makes the tree look built, so that the checks that need compile commands find path.
function(write_compile_command path)
    file(WRITE "${FIXTURE}/build/compile_commands.json"
        "[{ \"directory\": \"${FIXTURE}\", \"command\": \"c++ -fPIC -Wall -Werror -c ${FIXTURE}/${path}\",\n"
        "\"file\": \"${FIXTURE}/${path}\" }]\n")
endfunction()

function(run_check out_result out_output script)
    list(TRANSFORM ARGN PREPEND -D OUTPUT_VARIABLE definitions)
    execute_process(COMMAND ${CMAKE_COMMAND} -DROOT=${FIXTURE} ${definitions} -P "${CHECKS}/${script}"
        RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    set(${out_result} "${result}" PARENT_SCOPE)
    # Long messages are wrapped; unwrapped they are easier to compare.
    string(REGEX REPLACE "[ \n]+" " " output "${output}")
    set(${out_output} "${output}" PARENT_SCOPE)
endfunction()

# expect_pass(<script> [<variable>=<value>...])
function(expect_pass script)
    run_check(result output "${script}" ${ARGN})
    if(NOT result EQUAL 0)
        message(SEND_ERROR "a tree without fault is refused: ${output}")
    endif()
endfunction()

# expect_complaint(<part of the message> <script> [<variable>=<value>...])
function(expect_complaint words script)
    run_check(result output "${script}" ${ARGN})
    string(FIND "${output}" "${words}" position)
    if(result EQUAL 0 OR position EQUAL -1)
        message(SEND_ERROR "expected a complaint with \"${words}\", got ${result}: ${output}")
    endif()
endfunction()
