# cmake -DROOT=<source tree> -DTOOL=<clang-format> [-DFIX=ON] -P checkformat.cmake
# Names every place of our sources that .clang-format would write otherwise; FIX rewrites them.
cmake_minimum_required(VERSION 3.16)
include("${CMAKE_CURRENT_LIST_DIR}/checkcommon.cmake")
boardwright_need_checker("${TOOL}" clang-format)

boardwright_source_files(files "${ROOT}")
set(mode --dry-run --Werror)
if(FIX)
    set(mode -i)
endif()
execute_process(COMMAND "${TOOL}" --style=file ${mode} ${files} WORKING_DIRECTORY "${ROOT}" RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "not formatted: the target `format` rewrites the files")
endif()
