#include "canvas/editmodeborderrenderer.h"

#include "canvas/screenitem.h"

#include <QEvent>
#include <QPainter>

namespace
{
constexpr int handleLength = 3;
}

EditModeBorderRenderer::EditModeBorderRenderer(ScreenItem *owner) : QWidget(owner), m_owner(owner)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

bool EditModeBorderRenderer::event(QEvent *event)
{
    // Nothing that a style sheet says shows here, and dressing the border would cost as much as making it.
    return event->type() == QEvent::Polish || QWidget::event(event);
}

void EditModeBorderRenderer::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    if (!m_owner->showsBorder())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawEdges(painter, m_owner->isActive() ? 2 : 1);
    if (m_owner->isActive())
        drawHandles(painter);
}

void EditModeBorderRenderer::drawEdges(QPainter &painter, qreal penWidth)
{
    painter.setPen(QPen(Qt::gray, penWidth, Qt::DotLine, Qt::SquareCap, Qt::BevelJoin));
    const qreal inset = penWidth / 2;
    const QRectF edges = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
    painter.drawLine(edges.topLeft(), edges.topRight());
    painter.drawLine(edges.topLeft(), edges.bottomLeft());
    painter.drawLine(edges.bottomLeft(), edges.bottomRight());
    painter.drawLine(edges.topRight(), edges.bottomRight());
}

void EditModeBorderRenderer::drawHandles(QPainter &painter)
{
    const QColor handleColor(0, 255, 0);
    const int right = width() - handleLength;
    const int bottom = height() - handleLength;
    const int middleX = qRound(right / 2.0);
    const int middleY = qRound(bottom / 2.0);
    for (const QPoint corner :
         {QPoint(0, 0), QPoint(middleX, 0), QPoint(right, 0), QPoint(0, middleY), QPoint(right, middleY),
          QPoint(0, bottom), QPoint(middleX, bottom), QPoint(right, bottom)})
        painter.fillRect(QRect(corner, QSize(handleLength, handleLength)), handleColor);
}
