# clazy judges while the compiler runs, so the fixture is compiled as our sources are.
include("${CMAKE_CURRENT_LIST_DIR}/fixture.cmake")

function(compile out_result out_output)
    execute_process(COMMAND ${COMPILER} -Werror -fsyntax-only "${FIXTURE}/model/row.cpp"
        RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    set(${out_result} "${result}" PARENT_SCOPE)
    set(${out_output} "${output}" PARENT_SCOPE)
endfunction()

start_tree()
write(model/row.h "#pragma once" "struct Row {" "    int cells = 0\;" "}\;")
write(model/row.cpp "#include \"row.h\"" "void copy(Row &to, const Row &from)" "{" "    to = from\;" "}")
compile(result output)
if(NOT result EQUAL 0)
    message(SEND_ERROR "a file without fault is refused: ${output}")
endif()

write(model/row.h "#pragma once" "struct Row {" "    Row(const Row &other) : cells(other.cells) {}" "    int cells = 0\;" "}\;")
compile(result output)
if(result EQUAL 0 OR NOT output MATCHES "row.cpp:4:.*rule-of-two-soft")
    message(SEND_ERROR "expected a complaint about a missing assignment, got ${result}: ${output}")
endif()
