# boardwright_warnings: what every target of ours is compiled with, tests included.
# boardwright_flags:    the same, plus the stricter rules of the product's own code.
add_library(boardwright_warnings INTERFACE)
target_compile_features(boardwright_warnings INTERFACE cxx_std_17)
target_include_directories(boardwright_warnings INTERFACE "${CMAKE_SOURCE_DIR}")
target_compile_definitions(boardwright_warnings INTERFACE QT_DISABLE_DEPRECATED_BEFORE=0x050F00)
if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    target_compile_options(boardwright_warnings INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion
        $<$<CXX_COMPILER_ID:Clang>:-Wno-sign-conversion -Wno-enum-enum-conversion
            -Wno-gnu-zero-variadic-macro-arguments>
        $<$<BOOL:${BOARDWRIGHT_WARNINGS_AS_ERRORS}>:-Werror>)
elseif(MSVC)
    target_compile_options(boardwright_warnings INTERFACE
        /W4 /utf-8 $<$<BOOL:${BOARDWRIGHT_WARNINGS_AS_ERRORS}>:/WX>)
endif()

# While it compiles a file anyway, clang judges it by clazy's level 1 at a tenth of what a run of its own would cost.
if(BOARDWRIGHT_WITH_CLAZY)
    if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
        message(FATAL_ERROR "clazy needs clang: configure with -DCMAKE_CXX_COMPILER=clang++")
    endif()
    find_library(BOARDWRIGHT_CLAZY_PLUGIN NAMES ClazyPlugin.so REQUIRED)
    mark_as_advanced(BOARDWRIGHT_CLAZY_PLUGIN)
    set(BOARDWRIGHT_CLAZY_FLAGS -Xclang -load -Xclang "${BOARDWRIGHT_CLAZY_PLUGIN}"
        -Xclang -add-plugin -Xclang clazy -Xclang -plugin-arg-clazy -Xclang level1)
    list(JOIN BOARDWRIGHT_CLAZY_FLAGS " " flags)
    add_compile_options("SHELL:${flags}")
endif()

if(BOARDWRIGHT_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
    # Many large programs: this linker takes a third of the time of the usual one.
    find_program(BOARDWRIGHT_LLD ld.lld)
    mark_as_advanced(BOARDWRIGHT_LLD)
    if(BOARDWRIGHT_LLD AND CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
        add_link_options(-fuse-ld=lld)
    endif()
endif()

if(BOARDWRIGHT_FUZZERS)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()

add_library(boardwright_flags INTERFACE)
target_link_libraries(boardwright_flags INTERFACE boardwright_warnings)
target_compile_definitions(boardwright_flags INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII)

# One floor of the house: boardwright_<name> with the listed sources and the libraries it stands on.
function(boardwright_add_library name)
    cmake_parse_arguments(PARSE_ARGV 1 floor "" "" "SOURCES;LINK")
    add_library(boardwright_${name} STATIC ${floor_SOURCES})
    target_link_libraries(boardwright_${name} PUBLIC ${floor_LINK} PRIVATE boardwright_flags)
    target_include_directories(boardwright_${name} PUBLIC "${CMAKE_SOURCE_DIR}")
endfunction()
