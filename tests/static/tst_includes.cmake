include("${CMAKE_CURRENT_LIST_DIR}/fixture.cmake")

start_tree()
write(model/row.h "#pragma once")
write(canvas/frame.h "#pragma once" "#include \"model/row.h\"" "class Board;")
write(canvas/board.h "#pragma once" "#include \"canvas/frame.h\"")
write(canvas/frame.cpp "#include \"canvas/frame.h\"" "" "#include \"canvas/board.h\"" "#include <QWidget>")
write(tests/model/tst_row.cpp "#include \"app/mainwindow.h\"")
expect_pass(checkincludes.cmake)

write(model/row.h "#pragma once" "" "#include \"canvas/frame.h\"")
expect_complaint("model/row.h:3: \"canvas/frame.h\": model (floor 1) may not include canvas (floor 5)" checkincludes.cmake)

write(model/row.h "#pragma once" "#include \"update/version.h\"")
expect_complaint("model (floor 1) may not include update (floor 1)" checkincludes.cmake)

write(model/row.h "#pragma once" "#include \"tests/support/clock.h\"")
expect_complaint("tests is no room of the house" checkincludes.cmake)

write(model/row.h "#pragma once" "#include \"../canvas/frame.h\"")
expect_complaint("write the path from the top of the tree" checkincludes.cmake)

write(model/row.h "#pragma once")
write(canvas/board.cpp "#include \"frame.h\"")
expect_complaint("canvas/board.cpp:1: \"frame.h\": write the path from the top of the tree" checkincludes.cmake)

write(canvas/board.cpp "#include \"editors/panels/settings.h\"")
expect_complaint("canvas (floor 5) may not include editors/panels (floor 6)" checkincludes.cmake)

write(canvas/board.cpp "#include \"editors/valueedit.h\"")
expect_pass(checkincludes.cmake)

write(canvas/frame.h "#pragma once" "#include \"canvas/board.h\"")
expect_complaint("headers on or above an include cycle: canvas/board.h, canvas/frame.h" checkincludes.cmake)

write(canvas/frame.h "#pragma once")
write(common/stray.h "#pragma once")
expect_complaint("common stands on no floor" checkincludes.cmake)
