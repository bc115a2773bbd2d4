# format rewrites our sources, tidy runs every static check; both are helpers for developers and in no default build.
include("${CMAKE_CURRENT_LIST_DIR}/checkcommon.cmake")

# The version that Debian's stable release calls plainly by its name comes first: others format differently.
find_program(BOARDWRIGHT_CLANG_FORMAT NAMES clang-format-14 clang-format)
find_program(BOARDWRIGHT_CLANG_TIDY NAMES clang-tidy-14 clang-tidy)
mark_as_advanced(BOARDWRIGHT_CLANG_FORMAT BOARDWRIGHT_CLANG_TIDY)

add_custom_target(format
    COMMAND ${CMAKE_COMMAND} -DROOT=${CMAKE_SOURCE_DIR} -DTOOL=${BOARDWRIGHT_CLANG_FORMAT} -DFIX=ON
        -P ${CMAKE_SOURCE_DIR}/cmake/checkformat.cmake
    VERBATIM)

include(ProcessorCount)
ProcessorCount(processors)
add_custom_target(tidy
    COMMAND ${CMAKE_CTEST_COMMAND} --output-on-failure --label-regex static --parallel ${processors}
    WORKING_DIRECTORY "${CMAKE_BINARY_DIR}"
    USES_TERMINAL VERBATIM)

# boardwright_add_check(<name> <script> [<variable>=<value>...]): one script of cmake/ as a CTest case.
function(boardwright_add_check name script)
    list(TRANSFORM ARGN PREPEND -D OUTPUT_VARIABLE definitions)
    add_test(NAME static/${name}
        COMMAND ${CMAKE_COMMAND} -DROOT=${CMAKE_SOURCE_DIR} ${definitions} -P ${CMAKE_SOURCE_DIR}/cmake/${script})
    set_tests_properties(static/${name} PROPERTIES
        LABELS static TIMEOUT 120 SKIP_REGULAR_EXPRESSION "check skipped: ")
endfunction()
