# The one table of drawn images: source in assets/icons/, image below assets/, width and height in pixels.
# `cmake --build <folder> --target icons` draws the committed images anew from their sources; an ordinary
# build never does, so that it needs no SVG tool.
set(icon_table
    "spinup.svg     style/up.png                8   4"
    "spindown.svg   style/down.png              8   4"
    "dropdown.svg   style/combo_box.png         9   5"
    "expanded.svg   interface/widget_down.png   15  15"
    "collapsed.svg  interface/widget_right.png  15  15"
)

# Drawn into the build folder first: an image that stays the same keeps its time stamp.
function(boardwright_icon_commands result)
    set(commands "")
    foreach(row IN LISTS icon_table)
        separate_arguments(row UNIX_COMMAND "${row}")
        list(GET row 0 source)
        list(GET row 1 image)
        list(GET row 2 width)
        list(GET row 3 height)
        set(drawn "${CMAKE_CURRENT_BINARY_DIR}/icons/${image}")
        get_filename_component(folder "${drawn}" DIRECTORY)
        list(APPEND commands
            COMMAND "${CMAKE_COMMAND}" -E make_directory "${folder}"
            COMMAND "${RSVG_CONVERT_EXECUTABLE}" --format=png --width=${width} --height=${height}
                --output "${drawn}" "${CMAKE_CURRENT_SOURCE_DIR}/icons/${source}"
            COMMAND "${CMAKE_COMMAND}" -E copy_if_different "${drawn}" "${CMAKE_CURRENT_SOURCE_DIR}/${image}")
    endforeach()
    set(${result} "${commands}" PARENT_SCOPE)
endfunction()

find_program(RSVG_CONVERT_EXECUTABLE rsvg-convert)
if(RSVG_CONVERT_EXECUTABLE)
    boardwright_icon_commands(icon_commands)
    add_custom_target(icons ${icon_commands} COMMENT "Drawing the images from assets/icons" VERBATIM)
else()
    add_custom_target(icons
        COMMAND "${CMAKE_COMMAND}" -E echo "The icons target needs rsvg-convert (Debian package librsvg2-bin); install it and configure again."
        COMMAND "${CMAKE_COMMAND}" -E false
        VERBATIM)
endif()
