add_library(boardwright_edittest STATIC
    editors/choicetest.cpp editors/choicetest.h
    editors/editlog.cpp editors/editlog.h
)
target_link_libraries(boardwright_edittest PUBLIC boardwright_editors boardwright_testsupport)

boardwright_add_test(editors/tst_categorybutton LINK boardwright_editors)
boardwright_add_test(editors/tst_choicebox LINK boardwright_editors)
boardwright_add_test(editors/tst_colorlisteditor LINK boardwright_editors)
boardwright_add_test(editors/tst_numberbox LINK boardwright_editors)
boardwright_add_test(editors/tst_propertypanel LINK boardwright_editors)
boardwright_add_test(editors/tst_wheelguard LINK boardwright_editors)
boardwright_add_test(editors/tst_variableedit LINK boardwright_editors)
foreach(editor check color colorvalue enum filepath fontcolor fontfamily int styledcheck text)
    boardwright_add_test(editors/tst_${editor}edit LINK boardwright_edittest)
endforeach()
