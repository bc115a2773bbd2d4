# cmake -DROOT=<source tree> -DFOLDER=<folder> -DBUILD_DIR=<built tree> -DTOOL=<clazy-standalone> -P checkclazy.cmake
# Runs clazy's level 1 over the compiled files of one folder and the headers they include.
cmake_minimum_required(VERSION 3.16)
include("${CMAKE_CURRENT_LIST_DIR}/checkcommon.cmake")
boardwright_need_checker("${TOOL}" clazy)

boardwright_compiled_files(files "${ROOT}" "${FOLDER}" "${BUILD_DIR}")
if(NOT files)
    message(STATUS "check skipped: this build compiles nothing in ${FOLDER}")
    return()
endif()
boardwright_top_folders(folders "${ROOT}")
list(JOIN folders "|" folders)
# The warnings of its compiler are left to clang-tidy, which runs the same one.
execute_process(
    COMMAND "${TOOL}" --checks=level1 -p "${BUILD_DIR}"
        --extra-arg-before=-std=c++17 --extra-arg=-Wno-everything
        "--header-filter=^${ROOT}/(${folders})/" --ignore-dirs=_autogen/ ${files}
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
message("${output}")
# The tool ends with 0 after a warning, so its words decide.
if(NOT result EQUAL 0 OR output MATCHES "\\[-Wclazy-|(warning|error): ")
    message(FATAL_ERROR "clazy complains about ${FOLDER}")
endif()
