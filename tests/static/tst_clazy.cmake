include("${CMAKE_CURRENT_LIST_DIR}/fixture.cmake")
boardwright_need_checker("${CLAZY}" clazy)

start_tree()
write_compile_command(model/row.cpp)
set(definitions FOLDER=model BUILD_DIR=${FIXTURE}/build TOOL=${CLAZY})

write(model/row.h "#pragma once" "struct Row {" "    int cells = 0\;" "}\;")
write(model/row.cpp "#include \"row.h\"" "void copy(Row &to, const Row &from)" "{" "    const auto [cells] = from\;" "    to.cells = cells\;" "    to = from\;" "}")
expect_pass(checkclazy.cmake ${definitions})

write(model/row.h "#pragma once" "struct Row {" "    Row(const Row &other) : cells(other.cells) {}" "    int cells = 0\;" "}\;")
expect_complaint("rule-of-two-soft" checkclazy.cmake ${definitions})

write(model/row.h "#pragma once" "inline void clear(int *row) { delete row\; }")
write(model/row.cpp "#include \"row.h\"" "void lost()" "{" "    clear(0)" "}")
expect_complaint("model/row.cpp:4:" checkclazy.cmake ${definitions})
