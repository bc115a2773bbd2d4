#include "editors/focusmark.h"

#include <QStyleOptionFocusRect>
#include <QStylePainter>

void drawFocusMark(QWidget *widget)
{
    if (!widget->hasFocus())
        return;
    QStyleOptionFocusRect option;
    option.initFrom(widget);
    QStylePainter(widget).drawPrimitive(QStyle::PE_FrameFocusRect, option);
}
