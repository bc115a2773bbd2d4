#include "editors/variableedit.h"

VariableEdit::VariableEdit(const char *className, QWidget *parent) : QWidget(parent)
{
    setProperty("class", QString::fromLatin1(className));
}
