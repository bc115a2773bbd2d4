#include "editors/keylabel.h"

KeyLabel::KeyLabel(QWidget *parent) : QLabel(parent)
{
    hide();
}

void KeyLabel::showText(const QString &text)
{
    setText(text);
    setVisible(!text.isEmpty());
}
