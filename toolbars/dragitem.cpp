#include "toolbars/dragitem.h"

#include "canvas/screen.h"

#include <QMimeData>

DragItem::DragItem(QObject *source) : QDrag(source)
{
    setMimeData(new QMimeData);
    setItemType(QString());
}

void DragItem::setItemType(const QString &type)
{
    mimeData()->setData(Screen::dragFormat(), type.toUtf8());
}
