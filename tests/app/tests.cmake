add_library(boardwright_commandtest STATIC app/commandtest.cpp app/commandtest.h)
target_link_libraries(boardwright_commandtest PUBLIC boardwright_app boardwright_testsupport)

boardwright_add_test(app/tst_mainwindow LINK boardwright_app)
boardwright_add_test(app/tst_docks LINK boardwright_commandtest)
foreach(command new open save export exit)
    boardwright_add_test(app/tst_${command}command LINK boardwright_commandtest)
endforeach()
boardwright_add_test(app/tst_updatecommand LINK boardwright_commandtest boardwright_updatetest)
boardwright_add_test(app/tst_flowlayout LINK boardwright_app)
boardwright_add_test(app/tst_samples LINK boardwright_app)
boardwright_add_test(app/tst_screencontainer LINK boardwright_app)
boardwright_add_test(app/tst_generatedboards LINK boardwright_app
    SOURCES app/generatedboard.cpp app/generatedboard.h RUNS boardwright-render)
boardwright_add_test(app/tst_storm
    LINK boardwright_commandtest SOURCES app/stormuser.cpp app/stormuser.h TIMEOUT 400)
boardwright_add_test(app/tst_program RUNS boardwright)

# The editor as a process that exports a board with letters of all kinds.
add_library(boardwright_exporttest STATIC
    app/exportprocess.cpp app/exportprocess.h app/lettersboard.cpp app/lettersboard.h)
target_link_libraries(boardwright_exporttest PUBLIC boardwright_app boardwright_texttest)
boardwright_add_test(app/tst_samepicture LINK boardwright_exporttest RUNS boardwright-render)

# The mouse and the keyboard of a real display.
add_library(boardwright_displaytest STATIC app/x11/displaymain.h app/x11/pointer.cpp app/x11/pointer.h)
target_link_libraries(boardwright_displaytest
    PUBLIC boardwright_app boardwright_testsupport PRIVATE boardwright_warnings)

boardwright_add_test(app/x11/tst_realevents LINK boardwright_displaytest ON_DISPLAY)
boardwright_add_test(app/x11/tst_denseboard LINK boardwright_exporttest RUNS boardwright-render ON_DISPLAY)
# The same on a display of few colours.
add_test(NAME app/x11/tst_denseboard-16-bits
    COMMAND "${CMAKE_SOURCE_DIR}/tests/support/withdisplay.sh" $<TARGET_FILE:tst_denseboard>)
get_test_property(app/x11/tst_denseboard ENVIRONMENT environment)
set_tests_properties(app/x11/tst_denseboard-16-bits PROPERTIES
    TIMEOUT 120 SKIP_RETURN_CODE 77 ENVIRONMENT "${environment};DISPLAY_DEPTH=16")
boardwright_add_test(app/x11/tst_realprogram LINK boardwright_displaytest RUNS boardwright ON_DISPLAY)
boardwright_add_test(app/x11/tst_realupdate
    LINK boardwright_updatetest boardwright_displaytest RUNS boardwright ON_DISPLAY)
boardwright_add_test(app/x11/tst_twoeditors
    SOURCES app/x11/editorprocess.cpp app/x11/editorprocess.h
    LINK boardwright_displaytest RUNS boardwright ON_DISPLAY)
boardwright_needs_diverted_endpoint(app/tst_updatecommand app/x11/tst_realupdate)
