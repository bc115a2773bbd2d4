#include "editors/fontcoloredit.h"

#include <QHBoxLayout>
#include <QToolButton>

FontColorEdit::FontColorEdit(QWidget *parent)
    : ColorValueEdit("FontColorEdit", new QToolButton, QStringLiteral("QToolButton{color:%1;}"), parent)
{
    auto *row = new QHBoxLayout(this);
    row->addWidget(button());
    button()->setText(QStringLiteral(" A  "));
}

QString FontColorEdit::getKey()
{
    return button()->text();
}
