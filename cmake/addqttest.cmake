# boardwright_add_test(<folder>/tst_<class> LINK <libraries>): one QtTest program, one CTest case,
# offscreen platform, no desktop's theme (one needs a display), fixed locale and time zone, time limit,
# a settings folder of its own.
#   TIMEOUT <seconds>   overrides the time limit.
#   RUNS <executables>  lets the test start them as processes, by the path in the macro <NAME>_PROGRAM.
#   ON_DISPLAY          a virtual display with a window manager instead of the offscreen platform;
#                       skipped where the tools for that are missing, unless CI is set.
function(boardwright_add_test path)
    cmake_parse_arguments(PARSE_ARGV 1 test "ON_DISPLAY" "TIMEOUT" "LINK;SOURCES;RUNS")
    get_filename_component(name "${path}" NAME)
    add_executable(${name} "${path}.cpp" ${test_SOURCES})
    target_link_libraries(${name} PRIVATE ${test_LINK} boardwright_testsupport Qt5::Test boardwright_warnings)
    target_compile_definitions(${name} PRIVATE BOARDWRIGHT_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
    boardwright_let_run(${name} ${test_RUNS})

    set(platform offscreen)
    set(command ${name})
    if(test_ON_DISPLAY)
        set(platform xcb)
        set(command "${CMAKE_SOURCE_DIR}/tests/support/withdisplay.sh" $<TARGET_FILE:${name}>)
    endif()
    if(NOT test_TIMEOUT)
        set(test_TIMEOUT 120)
    endif()
    add_test(NAME ${path} COMMAND ${command})
    set_tests_properties(${path} PROPERTIES
        TIMEOUT ${test_TIMEOUT}
        SKIP_RETURN_CODE 77
        ENVIRONMENT "QT_QPA_PLATFORM=${platform};QT_QPA_PLATFORMTHEME=;LC_ALL=C.UTF-8;TZ=UTC;LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/support/lsan.supp:print_suppressions=0;XDG_CONFIG_HOME=${CMAKE_BINARY_DIR}/tests/settings/${name}")
endfunction()

# Tells a test program where executables of ours are, and has them built first.
function(boardwright_let_run test)
    foreach(program IN LISTS ARGN)
        string(REPLACE "-" "_" macro "${program}")
        string(TOUPPER "${macro}_PROGRAM" macro)
        target_compile_definitions(${test} PRIVATE ${macro}="$<TARGET_FILE:${program}>")
        add_dependencies(${test} ${program})
    endforeach()
endfunction()
