foreach(class dragitem itemtypesdragbar placement toolbarforscreenitem toolbaritem)
    boardwright_add_test(toolbars/tst_${class} LINK boardwright_toolbars)
endforeach()
