include("${CMAKE_CURRENT_LIST_DIR}/fixture.cmake")
boardwright_need_checker("${CLANG_TIDY}" clang-tidy)

start_tree()
file(COPY "${CHECKS}/../.clang-tidy" DESTINATION "${FIXTURE}")
write_compile_command(model/row.cpp)
set(definitions FOLDER=model BUILD_DIR=${FIXTURE}/build TOOL=${CLANG_TIDY})

write(model/row.h "#pragma once" "struct Row {" "    int *cells = nullptr\;" "}\;")
write(model/row.cpp "#include \"row.h\"" "Row row()" "{" "    const auto [cells] = Row()\;" "    return {cells}\;" "}")
expect_pass(checktidy.cmake ${definitions})

write(model/row.h "#pragma once" "struct Row {" "    int *cells = 0\;" "}\;")
expect_complaint("model/row.h:3:18: error: use nullptr" checktidy.cmake ${definitions})

write(model/row.h "#pragma once" "struct Row {" "    int *cells\;" "}\;")
write(model/row.cpp "#include \"row.h\"" "Row row()" "{" "    Row row\;" "    return row\;" "}")
expect_complaint("model/row.cpp:4:" checktidy.cmake ${definitions})
