#include "editors/coloredit.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace
{
constexpr int side = 20; // pixels

/// Shows its colour only: the text would be cut off.
class ColorButton : public QPushButton
{
protected:
    void paintEvent(QPaintEvent *) override
    {
        QStyleOptionButton option;
        initStyleOption(&option);
        option.text.clear();
        QStylePainter(this).drawControl(QStyle::CE_PushButton, option);
    }
};

void layOut(QWidget *holder, QAbstractButton *button)
{
    auto *row = new QHBoxLayout(holder);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(button, 0, Qt::AlignLeft);
    // The application's style sheet makes push buttons higher; here they are 20 pixels with their border.
    holder->setStyleSheet(QStringLiteral("QPushButton{min-height:18px;border:1px solid #808080;padding:0;}"));
}
} // namespace

ColorEdit::ColorEdit(QWidget *parent)
    : ColorValueEdit("ColorEdit", new ColorButton, QStringLiteral("background-color:%1"), parent)
{
    auto *holder = new QWidget(this);
    auto *row = new QHBoxLayout(this);
    row->addWidget(holder);
    layOut(holder, button());
    button()->setFixedSize(side, side);
}

void ColorEdit::setValue(QString key, QVariant value)
{
    button()->setText(key);
    ColorValueEdit::setValue(key, value);
}

QString ColorEdit::getKey()
{
    return button()->text();
}
