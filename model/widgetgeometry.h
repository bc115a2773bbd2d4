#pragma once

#include <QPoint>
#include <QSize>

class QWidget;

// The toolkit keeps the move and resize events of a hidden widget back until it is shown. A frame's clamps
// and reports live in those events, so a board that is filled while hidden would come out different from one
// that is filled in view. These functions deliver the events at once, shown or not.

/// Moves the widget within its parent (px).
void moveNow(QWidget *widget, QPoint position);

/// Resizes the widget (px); negative lengths become 0, as everywhere in the toolkit.
void resizeNow(QWidget *widget, QSize size);

/// Delivers the move and resize events that the toolkit holds back for a hidden widget, if any.
void sendHeldGeometryEvents(QWidget *widget);
