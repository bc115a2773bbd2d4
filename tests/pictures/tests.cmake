foreach(name datafields filecache gifframes gunzip iconentry itemgeometry jpegscans largeletters mediaplan pngchunks
        richtext shapegeometry stretchedpicture svgcontents svgcost textalignment textbounds textletters textstyle tifflayout)
    boardwright_add_test(pictures/tst_${name} LINK boardwright_pictures boardwright_fonts_resource)
endforeach()
foreach(name mediafile memoryclaim sharedpicture)
    boardwright_add_test(pictures/tst_${name} LINK boardwright_canvas)
endforeach()
