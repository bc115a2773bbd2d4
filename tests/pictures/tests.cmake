foreach(name datafields itemgeometry largeletters richtext shapegeometry stretchedpicture textalignment textletters
        textstyle)
    boardwright_add_test(pictures/tst_${name} LINK boardwright_pictures boardwright_fonts_resource)
endforeach()
foreach(name mediafile memoryclaim)
    boardwright_add_test(pictures/tst_${name} LINK boardwright_canvas)
endforeach()
