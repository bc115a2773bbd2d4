include("${CMAKE_CURRENT_LIST_DIR}/fixture.cmake")
boardwright_need_checker("${CLANG_FORMAT}" clang-format)

start_tree()
file(COPY "${CHECKS}/../.clang-format" DESTINATION "${FIXTURE}")
write(model/row.cpp "int row()" "{" "    return 1\;" "}")
expect_pass(checkformat.cmake TOOL=${CLANG_FORMAT})

write(model/row.cpp "int row() { return 1 \; }")
expect_complaint("model/row.cpp:1:" checkformat.cmake TOOL=${CLANG_FORMAT})

expect_pass(checkformat.cmake TOOL=${CLANG_FORMAT} FIX=ON)
expect_pass(checkformat.cmake TOOL=${CLANG_FORMAT})
