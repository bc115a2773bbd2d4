#include "editors/fontcoloredit.h"

#include "editors/focusmark.h"

#include <QHBoxLayout>
#include <QToolButton>

namespace
{
class LetterButton : public QToolButton
{
protected:
    void paintEvent(QPaintEvent *event) override
    {
        QToolButton::paintEvent(event);
        drawFocusMark(this);
    }
};
} // namespace

FontColorEdit::FontColorEdit(QWidget *parent)
    : ColorValueEdit("FontColorEdit", new LetterButton, QStringLiteral("QToolButton{color:%1;}"), parent)
{
    auto *row = new QHBoxLayout(this);
    row->addWidget(button());
    button()->setText(QStringLiteral(" A  "));
}

QString FontColorEdit::getKey()
{
    return button()->text();
}
