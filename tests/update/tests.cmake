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

# Registered tests that stand in for the update endpoint, as a proxy. The toolkit asks none for addresses of this
# machine, and no proxy answers for a server that encrypts: with such an endpoint they would fail for no reason.
function(boardwright_needs_diverted_endpoint)
    if(BOARDWRIGHT_UPDATE_ENDPOINT MATCHES "^http://" AND
       NOT BOARDWRIGHT_UPDATE_ENDPOINT MATCHES "^http://(localhost|127\\.|\\[::1\\])")
        return()
    endif()
    message(STATUS "Not run with this BOARDWRIGHT_UPDATE_ENDPOINT: ${ARGV}")
    set_tests_properties(${ARGV} PROPERTIES DISABLED TRUE)
endfunction()

boardwright_needs_diverted_endpoint(update/tst_updatecheck update/tst_updatedownload update/tst_updatemagaer)
