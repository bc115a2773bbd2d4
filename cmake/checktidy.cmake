# cmake -DROOT=<source tree> -DFOLDER=<folder> -DBUILD_DIR=<built tree> -DTOOL=<clang-tidy> -P checktidy.cmake
# Runs clang-tidy with .clang-tidy over the compiled files of one folder and the headers they include.
cmake_minimum_required(VERSION 3.16)
include("${CMAKE_CURRENT_LIST_DIR}/checkcommon.cmake")
boardwright_need_checker("${TOOL}" clang-tidy)

boardwright_compiled_files(files "${ROOT}" "${FOLDER}" "${BUILD_DIR}")
if(NOT files)
    message(STATUS "check skipped: this build compiles nothing in ${FOLDER}")
    return()
endif()
execute_process(COMMAND "${TOOL}" --quiet -p "${BUILD_DIR}" ${files}
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
# The tool also counts what it keeps silent about.
string(REGEX REPLACE "[0-9]+ warnings?( and [0-9]+ errors?)? generated\\.\n" "" errors "${errors}")
message("${output}${errors}")
if(NOT result EQUAL 0)
    message(FATAL_ERROR "clang-tidy complains about ${FOLDER}")
endif()
