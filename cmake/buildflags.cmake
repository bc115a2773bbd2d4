# boardwright_warnings: what every target of ours is compiled with, tests included.
# boardwright_flags:    the same, plus the stricter rules of the product's own code.
add_library(boardwright_warnings INTERFACE)
target_compile_features(boardwright_warnings INTERFACE cxx_std_17)
target_include_directories(boardwright_warnings INTERFACE "${CMAKE_SOURCE_DIR}")
target_compile_definitions(boardwright_warnings INTERFACE QT_DISABLE_DEPRECATED_BEFORE=0x050F00)
if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    target_compile_options(boardwright_warnings INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion
        $<$<BOOL:${BOARDWRIGHT_WARNINGS_AS_ERRORS}>:-Werror>)
elseif(MSVC)
    target_compile_options(boardwright_warnings INTERFACE
        /W4 /utf-8 $<$<BOOL:${BOARDWRIGHT_WARNINGS_AS_ERRORS}>:/WX>)
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
