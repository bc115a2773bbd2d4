#include "editors/choicebox.h"

#include "editors/focusmark.h"
#include "editors/wheelguard.h"

#include <QStyledItemDelegate>

ChoiceBox::ChoiceBox(QWidget *parent) : QComboBox(parent)
{
    new WheelGuard(this);
}

void ChoiceBox::showPopup()
{
    // The toolkit's own delegate paints choices as a menu does, under a style sheet the current one on the
    // common ground.
    if (!m_hasList)
        setItemDelegate(new QStyledItemDelegate(this));
    m_hasList = true;
    QComboBox::showPopup();
}

void ChoiceBox::paintEvent(QPaintEvent *event)
{
    QComboBox::paintEvent(event);
    drawFocusMark(this);
}
