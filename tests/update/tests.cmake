add_library(boardwright_updatetest STATIC
    update/httpserver.cpp update/httpserver.h
    update/ownstreams.h
    update/updatetest.cpp update/updatetest.h
)
target_link_libraries(boardwright_updatetest PUBLIC boardwright_update boardwright_testsupport)
target_compile_definitions(boardwright_updatetest PRIVATE
    BOARDWRIGHT_UPDATE_ENDPOINT="${BOARDWRIGHT_UPDATE_ENDPOINT}")

boardwright_add_test(update/tst_downloadname LINK boardwright_update)
boardwright_add_test(update/tst_startenvironment LINK boardwright_update)
boardwright_add_test(update/tst_updatecheck LINK boardwright_updatetest)
boardwright_add_test(update/tst_updatedownload LINK boardwright_updatetest)
boardwright_add_test(update/tst_updatemagaer LINK boardwright_updatetest)
