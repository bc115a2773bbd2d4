# The bundled fonts. npm fetches exactly the packages named in assets/fonts/package-lock.json, fonts.list and
# licenses.list name the files taken from them, and all of those become one uncompressed resource. Without
# the packages the build goes on and the program has the system's fonts only.
option(BOARDWRIGHT_FETCH_FONTS "Fetch the bundled fonts with npm when the build folder lacks them" ON)
set(BOARDWRIGHT_FONTS_DIR "" CACHE PATH "A filled node_modules folder to take the bundled fonts from")

set(fonts_source "${CMAKE_SOURCE_DIR}/assets/fonts")
set(fonts_work "${CMAKE_BINARY_DIR}/fonts")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
    "${fonts_source}/fonts.list" "${fonts_source}/licenses.list" "${fonts_source}/woff2ttf.js"
    "${fonts_source}/fontindex.js")
find_program(NPM_EXECUTABLE NAMES npm.cmd npm DOC "Fetches the bundled fonts")
find_program(NODE_EXECUTABLE NAMES node nodejs DOC "Unpacks bundled web fonts")

# Runs npm in the build folder. Only this run is repeated: npm's own retries take over a minute to find out
# that there is no network.
function(boardwright_run_npm out_error)
    message(STATUS "Fetching the bundled fonts")
    foreach(attempt RANGE 1 2)
        execute_process(
            COMMAND "${NPM_EXECUTABLE}" ci --ignore-scripts --no-audit --no-fund --prefer-offline
                    --fetch-retries=0 --fetch-timeout=60000 --loglevel=error
            WORKING_DIRECTORY "${fonts_work}" TIMEOUT 300
            RESULT_VARIABLE result OUTPUT_QUIET ERROR_VARIABLE output)
        if(result EQUAL 0)
            set(${out_error} "" PARENT_SCOPE)
            return()
        endif()
    endforeach()
    string(REGEX MATCH "npm (error|ERR!)[^\n]*" line "${output}")
    set(${out_error} "npm ci failed: ${result} ${line}" PARENT_SCOPE)
endfunction()

# Sets the folder that holds the packages of the current lock file, or an empty one and the reason why not.
function(boardwright_fetch_fonts out_folder out_reason)
    foreach(file package.json package-lock.json .npmrc)
        configure_file("${fonts_source}/${file}" "${fonts_work}/${file}" COPYONLY)
    endforeach()
    file(SHA256 "${fonts_source}/package-lock.json" wanted)
    set(mark "${fonts_work}/node_modules/.boardwright-lock")
    set(present "")
    set(reason "")
    if(EXISTS "${mark}")
        file(READ "${mark}" present)
    endif()
    if(NOT present STREQUAL wanted)
        if(NOT BOARDWRIGHT_FETCH_FONTS)
            set(reason "BOARDWRIGHT_FETCH_FONTS is off")
        elseif(NOT NPM_EXECUTABLE)
            set(reason "npm was not found")
        else()
            boardwright_run_npm(reason)
        endif()
        if(NOT reason)
            file(WRITE "${mark}" "${wanted}")
        endif()
    endif()
    set(${out_reason} "${reason}" PARENT_SCOPE)
    if(reason)
        set(${out_folder} "" PARENT_SCOPE)
    else()
        set(${out_folder} "${fonts_work}/node_modules" PARENT_SCOPE)
    endif()
endfunction()

# Unpacks a web font, because not every platform's font engine reads one. Sets an empty path if that fails.
function(boardwright_unpack_font packed name out_file)
    set(script "${fonts_source}/woff2ttf.js")
    set(plain "${fonts_work}/unpacked/${name}")
    if(NODE_EXECUTABLE AND ("${packed}" IS_NEWER_THAN "${plain}" OR "${script}" IS_NEWER_THAN "${plain}"))
        file(MAKE_DIRECTORY "${fonts_work}/unpacked")
        execute_process(COMMAND "${NODE_EXECUTABLE}" "${script}" "${packed}" "${plain}" OUTPUT_QUIET ERROR_QUIET)
    endif()
    if(NOT EXISTS "${plain}")
        set(plain "")
    endif()
    set(${out_file} "${plain}" PARENT_SCOPE)
endfunction()

# Reads "package path [name]" and sets the file's path, empty if there is none, and its name in the program.
function(boardwright_find_font_file line folder out_file out_name)
    string(REPLACE " " ";" fields "${line}")
    list(GET fields 0 package)
    list(GET fields 1 path)
    list(GET fields -1 last)
    get_filename_component(name "${last}" NAME)
    set(file "${folder}/${package}/${path}")
    if(NOT folder OR NOT EXISTS "${file}")
        set(file "")
    elseif(path MATCHES "\\.woff$" AND name MATCHES "\\.ttf$")
        boardwright_unpack_font("${file}" "${name}" file)
    endif()
    set(${out_file} "${file}" PARENT_SCOPE)
    set(${out_name} "${name}" PARENT_SCOPE)
endfunction()

if(BOARDWRIGHT_FONTS_DIR)
    get_filename_component(fonts_folder "${BOARDWRIGHT_FONTS_DIR}" ABSOLUTE)
    set(fonts_reason "")
else()
    boardwright_fetch_fonts(fonts_folder fonts_reason)
endif()
if(NOT fonts_reason AND NOT NODE_EXECUTABLE)
    set(fonts_reason "node was not found")
elseif(NOT fonts_reason)
    set(fonts_reason "not in ${fonts_folder}")
endif()

# The README is always there: a big resource cannot be empty.
set(fonts_install_folder "${CMAKE_INSTALL_DATADIR}/licenses/boardwright/fonts")
set(fonts_entries "    <file alias=\"README.txt\">${fonts_source}/README.txt</file>\n")
install(FILES "${fonts_source}/README.txt" DESTINATION "${fonts_install_folder}")
set(fonts_total 0)
set(fonts_missing 0)
set(fonts_files "")
foreach(kind licenses fonts)
    file(STRINGS "${fonts_source}/${kind}.list" lines REGEX "^[^#]")
    foreach(line IN LISTS lines)
        math(EXPR fonts_total "${fonts_total} + 1")
        boardwright_find_font_file("${line}" "${fonts_folder}" file name)
        if(NOT file)
            math(EXPR fonts_missing "${fonts_missing} + 1")
            continue()
        endif()
        string(APPEND fonts_entries "    <file alias=\"${name}\">${file}</file>\n")
        if(kind STREQUAL "fonts")
            list(APPEND fonts_files "${file}")
        endif()
        if(kind STREQUAL "licenses")
            install(FILES "${file}" DESTINATION "${fonts_install_folder}" RENAME "${name}")
        endif()
    endforeach()
    string(APPEND fonts_qrc "  <qresource prefix=\"/assets/${kind}\">\n${fonts_entries}  </qresource>\n")
    set(fonts_entries "")
endforeach()
if(fonts_missing GREATER 0)
    message(WARNING "Bundled fonts: ${fonts_missing} of ${fonts_total} files (fonts and licence texts) are missing: "
        "${fonts_reason}. The program will show the system's fonts instead. To have them, install npm and "
        "configure again with network, or set BOARDWRIGHT_FONTS_DIR to a filled node_modules folder.")
endif()

# Which names each file can be asked for by, so that a program need not open them all to find one. An empty index
# does no harm: all fonts are opened then.
set(fonts_index "${fonts_work}/fonts.index")
file(WRITE "${fonts_index}.in" "")
if(NODE_EXECUTABLE AND fonts_files)
    execute_process(COMMAND "${NODE_EXECUTABLE}" "${fonts_source}/fontindex.js" "${fonts_index}.in" ${fonts_files} OUTPUT_QUIET)
endif()
configure_file("${fonts_index}.in" "${fonts_index}" COPYONLY)
string(APPEND fonts_qrc "  <qresource prefix=\"/assets\">\n    <file alias=\"fonts.index\">${fonts_index}</file>\n"
    "  </qresource>\n")

# Copied, not written in place, so that an unchanged list rebuilds nothing; without substitution, because the
# packages' paths contain "@".
file(WRITE "${fonts_work}/fonts.qrc.in" "<RCC>\n${fonts_qrc}</RCC>\n")
configure_file("${fonts_work}/fonts.qrc.in" "${fonts_work}/fonts.qrc" COPYONLY)

# rcc looks for its place holder in the compiled object, which must therefore be machine code.
qt5_add_big_resources(fonts_object "${fonts_work}/fonts.qrc" OPTIONS -no-compress)
set_source_files_properties(${fonts_object} PROPERTIES EXTERNAL_OBJECT ON GENERATED ON)
set_target_properties(rcc_object_fonts PROPERTIES INTERPROCEDURAL_OPTIMIZATION OFF)
if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    target_compile_options(rcc_object_fonts PRIVATE -fno-lto)
endif()

add_library(boardwright_fonts_resource STATIC ${fonts_object} fontindex.cpp fontindex.h fontsresource.cpp fontsresource.h)
set_target_properties(boardwright_fonts_resource PROPERTIES AUTOMOC OFF)
target_link_libraries(boardwright_fonts_resource PUBLIC Qt5::Core PRIVATE boardwright_flags)
target_include_directories(boardwright_fonts_resource PUBLIC "${CMAKE_SOURCE_DIR}")
target_compile_definitions(boardwright_fonts_resource PRIVATE BOARDWRIGHT_MISSING_FONTS=${fonts_missing})
