#pragma once

#include <QDrag>

/// A drag that carries a kind of item to the canvas.
class DragItem : public QDrag
{
    Q_OBJECT

public:
    /// A drag of no kind yet; the source owns it.
    explicit DragItem(QObject *source);

    /// The type name of what a drop is to create.
    void setItemType(const QString &type);
};
