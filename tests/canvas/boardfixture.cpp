#include "tests/canvas/boardfixture.h"

#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "viewers/shape.h"

#include <QApplication>
#include <QTest>
#include <QWindow>

namespace
{
constexpr QPoint canvasPosition(400, 150);
}

BoardFixture::BoardFixture() : m_screen(new Screen(&m_window))
{
    m_screen->setWidgth(800);
    m_screen->setHeight(400);
    m_screen->move(canvasPosition);
    m_window.setGeometry(0, 0, 1300, 700);
    m_window.show();
}

bool BoardFixture::isReady()
{
    // A menu that has closed may still count as the active window.
    m_window.activateWindow();
    return QTest::qWaitFor([this] { return QApplication::activeWindow() == &m_window; });
}

ScreenItem *BoardFixture::addShape(const QRect &geometry, const QString &name)
{
    auto *frame = new ScreenItem(m_screen);
    new Shape(frame);
    frame->setGeometry(geometry);
    frame->setMyName(name);
    return frame;
}

QPoint BoardFixture::windowPosition(QPoint position) const
{
    return m_screen->mapTo(&m_window, position);
}

QPoint BoardFixture::globalPosition(QPoint position) const
{
    return m_screen->mapToGlobal(position);
}

void BoardFixture::press(QPoint position, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    m_mouse = position;
    QTest::mousePress(m_window.windowHandle(), button, modifiers, windowPosition(position));
}

void BoardFixture::release(Qt::MouseButton button)
{
    QTest::mouseRelease(m_window.windowHandle(), button, Qt::NoModifier, windowPosition(m_mouse));
}

void BoardFixture::click(QPoint position, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    press(position, button, modifiers);
    release(button);
}

void BoardFixture::doubleClick(QPoint position)
{
    m_mouse = position;
    QTest::mouseDClick(m_window.windowHandle(), Qt::LeftButton, Qt::NoModifier, windowPosition(position));
}

void BoardFixture::moveTo(QPoint position)
{
    m_mouse = position;
    QTest::mouseMove(m_window.windowHandle(), windowPosition(position));
}

void BoardFixture::drag(QPoint from, QPoint to)
{
    click(from);
    moveTo(from + QPoint(0, 1));
    press(from);
    moveTo(to);
    release();
}

void BoardFixture::type(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(m_window.windowHandle(), key, modifiers);
}

QList<QRect> geometries(const QList<ScreenItem *> &frames)
{
    QList<QRect> result;
    for (const ScreenItem *frame : frames)
        result.append(frame->geometry());
    return result;
}
