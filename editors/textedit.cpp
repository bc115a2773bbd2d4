#include "editors/textedit.h"

TextEdit::TextEdit(QWidget *parent) : LineValueEdit("TextEdit", parent) {}

int TextEdit::getType()
{
    return ContentViewer::Parameters::Text;
}
