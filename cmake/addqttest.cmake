# boardwright_add_test(<folder>/tst_<class> LINK <libraries>): one QtTest program, one CTest case,
# offscreen platform, fixed locale and time zone, time limit. TIMEOUT seconds overrides the limit.
function(boardwright_add_test path)
    cmake_parse_arguments(PARSE_ARGV 1 test "" "TIMEOUT" "LINK;SOURCES")
    get_filename_component(name "${path}" NAME)
    add_executable(${name} "${path}.cpp" ${test_SOURCES})
    target_link_libraries(${name} PRIVATE ${test_LINK} boardwright_testsupport Qt5::Test boardwright_warnings)
    target_compile_definitions(${name} PRIVATE BOARDWRIGHT_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
    add_test(NAME ${path} COMMAND ${name})
    if(NOT test_TIMEOUT)
        set(test_TIMEOUT 120)
    endif()
    set_tests_properties(${path} PROPERTIES
        TIMEOUT ${test_TIMEOUT}
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;TZ=UTC;LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/support/lsan.supp")
endfunction()
