# The one table of drawn images: source in assets/icons/, image below assets/, width and height in pixels, and a
# style sheet beside the sources where one is needed.
# `cmake --build <folder> --target icons` draws the committed images anew from their sources; an ordinary
# build never does, so that it needs no SVG tool.
set(icon_table
    "spinup.svg         style/up.png                                              8   4"
    "spindown.svg       style/down.png                                            8   4"
    "dropdown.svg       style/combo_box.png                                       9   5"
    "expanded.svg       interface/widget_down.png                                 15  15"
    "collapsed.svg      interface/widget_right.png                                15  15"
    "itemtext.svg       interface/text.png                                        45  45"
    "itemshape.svg      interface/shapes.png                                      45  45"
    "itemimage.svg      interface/image.png                                       45  45"
    "itemanimation.svg  interface/gif.png                                         45  45"
    "delete.svg         interface/layerToolBarSettings/delete.png                 30  30"
    "separator.svg      interface/layerToolBarSettings/___.png                    30  30"
    "layerup.svg        interface/layerToolBarSettings/moveUp.png                 30  30"
    "layerdown.svg      interface/layerToolBarSettings/moveDown.png               30  30"
    "layertop.svg       interface/layerToolBarSettings/moveToTop.png              30  30"
    "layerbottom.svg    interface/layerToolBarSettings/movToBottom.png            30  30"
    "fitboth.svg        interface/layerToolBarSettings/fullScreen.png             30  30"
    "fitwidth.svg       interface/layerToolBarSettings/horisontalFull.png         30  30"
    "fitheight.svg      interface/layerToolBarSettings/verticallFull.png          30  30"
    "aligntop.svg       interface/layerToolBarSettings/alignTop.png               30  30"
    "alignmiddle.svg    interface/layerToolBarSettings/alignVerticalCenter.png    30  30"
    "alignbottom.svg    interface/layerToolBarSettings/alignBottom.png            30  30"
    "alignleft.svg      interface/layerToolBarSettings/alignLeft.png              30  30"
    "aligncenter.svg    interface/layerToolBarSettings/alignHorisontalCenter.png  30  30"
    "alignright.svg     interface/layerToolBarSettings/alignRight.png             30  30"
)

# Check boxes that are drawn with images: source, and image without the state that follows it. One source serves all
# states; the style sheet of each state, <state>.css beside the sources, colours it.
set(check_box_table
    "textautosize.svg   style/textSettingsStyle/Auto"
    "textbold.svg       style/textSettingsStyle/Bold"
    "textitalic.svg     style/textSettingsStyle/Italic"
    "textunderline.svg  style/textSettingsStyle/Underline"
    "textcenter.svg     style/textSettingsStyle/align/h/HAlignC"
    "textleft.svg       style/textSettingsStyle/align/h/HAlignL"
    "textright.svg      style/textSettingsStyle/align/h/HAlignR"
    "textmiddle.svg     style/textSettingsStyle/align/v/VAlignC"
    "texttop.svg        style/textSettingsStyle/align/v/VAlignT"
    "textbottom.svg     style/textSettingsStyle/align/v/VAlignB"
)
foreach(row IN LISTS check_box_table)
    foreach(state IN ITEMS checked unchecked unchecked_hover)
        list(APPEND icon_table "${row}_${state}.png 30 30 ${state}.css")
    endforeach()
endforeach()


# Drawn into the build folder first: an image that stays the same keeps its time stamp.
function(boardwright_icon_commands result)
    set(sources "${CMAKE_CURRENT_SOURCE_DIR}/icons")
    set(commands "")
    foreach(row IN LISTS icon_table)
        separate_arguments(row UNIX_COMMAND "${row}")
        list(POP_FRONT row source image width height sheet)
        set(sheet_option "")
        if(sheet)
            set(sheet_option "--stylesheet=${sources}/${sheet}")
        endif()
        set(drawn "${CMAKE_CURRENT_BINARY_DIR}/icons/${image}")
        set(committed "${CMAKE_CURRENT_SOURCE_DIR}/${image}")
        get_filename_component(drawn_folder "${drawn}" DIRECTORY)
        get_filename_component(committed_folder "${committed}" DIRECTORY)
        list(APPEND commands
            COMMAND "${CMAKE_COMMAND}" -E make_directory "${drawn_folder}" "${committed_folder}"
            COMMAND "${RSVG_CONVERT_EXECUTABLE}" --format=png --width=${width} --height=${height} ${sheet_option}
                --output "${drawn}" "${sources}/${source}"
            COMMAND "${CMAKE_COMMAND}" -E copy_if_different "${drawn}" "${committed}")
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
