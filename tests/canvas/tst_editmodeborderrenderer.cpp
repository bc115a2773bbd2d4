#include "canvas/editmodeborderrenderer.h"

#include "canvas/screen.h"
#include "canvas/screenitem.h"

#include "tests/canvas/paintwatcher.h"
#include "tests/support/strictmain.h"

#include <QImage>
#include <QPainter>
#include <QTest>

#include <functional>

namespace
{
const QColor green(0, 255, 0);

QImage transparent(QSize size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

/// The overlay alone, on transparent ground.
QImage painted(EditModeBorderRenderer &border)
{
    QImage image = transparent(border.size());
    border.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

/// The four edges by the toolkit's own lines.
QImage expectedEdges(QSize size, qreal width)
{
    QImage image = transparent(size);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::gray, width, Qt::DotLine, Qt::SquareCap, Qt::BevelJoin));
    const qreal near = width / 2;
    const qreal right = size.width() - near;
    const qreal bottom = size.height() - near;
    painter.drawLine(QLineF(near, near, right, near));
    painter.drawLine(QLineF(near, near, near, bottom));
    painter.drawLine(QLineF(near, bottom, right, bottom));
    painter.drawLine(QLineF(right, near, right, bottom));
    return image;
}

QImage withHandles(QImage image, const QList<QPoint> &corners)
{
    QPainter painter(&image);
    for (const QPoint &corner : corners)
        painter.fillRect(QRect(corner, QSize(3, 3)), green);
    return image;
}

int countPixels(const QImage &image, const QColor &color)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == color ? 1 : 0;
    }
    return count;
}

/// The area within which nothing is painted.
bool isEmptyWithin(const QImage &image, int margin)
{
    const QImage inner = image.copy(image.rect().adjusted(margin, margin, -margin, -margin));
    return inner == transparent(inner.size());
}
} // namespace

class tst_EditModeBorderRenderer : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void announcesPaintEventAsSlot();
    void takesNoMouse();
    void coversTheFrame();
    void staysAboveTheContent();
    void paintsNothingWhenNotSelected();
    void paintsNothingInRenderMode();
    void paintsThinDottedEdgesWhenInactive_data();
    void paintsThinDottedEdgesWhenInactive();
    void paintsThickEdgesAndHandlesWhenActive_data();
    void paintsThickEdgesAndHandlesWhenActive();
    void paintsHandlesInPureGreen();
    void staysInsideTheWidget();
    void paintsSmoothly();
    void losesHandlesWithFocus();
    void repaintsWhenItsLookChanges();

private:
    void makeActive();
    bool repaintsAfter(const std::function<void()> &change);

    QScopedPointer<Screen> m_screen;
    ScreenItem *m_frame = nullptr;
    EditModeBorderRenderer *m_border = nullptr;
};

void tst_EditModeBorderRenderer::init()
{
    m_screen.reset(new Screen);
    m_screen->setFixedSize(300, 200);
    m_screen->show();
    m_frame = new ScreenItem(m_screen.data());
    m_frame->resize(100, 50);
    m_border = m_frame->findChild<EditModeBorderRenderer *>();
    QVERIFY(m_border);
}

void tst_EditModeBorderRenderer::cleanup()
{
    m_screen.reset();
}

void tst_EditModeBorderRenderer::makeActive()
{
    m_frame->activate();
    QVERIFY(m_frame->isActive() && m_frame->isSelected());
}

void tst_EditModeBorderRenderer::announcesPaintEventAsSlot()
{
    const QMetaObject *type = m_border->metaObject();
    QCOMPARE(type->superClass()->className(), "QWidget");
    QCOMPARE(type->method(type->methodOffset()).methodSignature(), QByteArray("paintEvent(QPaintEvent*)"));
    QCOMPARE(type->method(type->methodOffset()).methodType(), QMetaMethod::Slot);
}

void tst_EditModeBorderRenderer::takesNoMouse()
{
    QVERIFY(m_border->testAttribute(Qt::WA_TransparentForMouseEvents));
    QCOMPARE(m_screen->childAt(m_frame->geometry().center()), m_frame);
}

void tst_EditModeBorderRenderer::coversTheFrame()
{
    QCOMPARE(m_border->parentWidget(), m_frame);
    QCOMPARE(m_border->geometry(), QRect(0, 0, 100, 50));
    m_frame->resize(61, 33);
    QCOMPARE(m_border->geometry(), QRect(0, 0, 61, 33));
}

void tst_EditModeBorderRenderer::staysAboveTheContent()
{
    auto *content = new QWidget(m_frame);
    QCOMPARE(m_frame->children().constLast(), content);
    m_frame->setContent(nullptr);
    QCOMPARE(m_frame->children().constLast(), m_border);
}

void tst_EditModeBorderRenderer::paintsNothingWhenNotSelected()
{
    makeActive();
    m_frame->deselect();
    QCOMPARE(painted(*m_border), transparent({100, 50}));
}

void tst_EditModeBorderRenderer::paintsNothingInRenderMode()
{
    makeActive();
    m_frame->enterRenderMode();
    QCOMPARE(painted(*m_border), transparent({100, 50}));
    m_frame->leaveRenderMode();
    QVERIFY(painted(*m_border) != transparent({100, 50}));
}

void tst_EditModeBorderRenderer::paintsThinDottedEdgesWhenInactive_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("usual") << QSize(100, 50);
    QTest::newRow("odd") << QSize(61, 33);
    QTest::newRow("smallest") << QSize(4, 4);
}

void tst_EditModeBorderRenderer::paintsThinDottedEdgesWhenInactive()
{
    QFETCH(QSize, size);
    m_frame->resize(size);
    m_frame->select();
    QVERIFY(!m_frame->isActive());
    const QImage image = painted(*m_border);
    QCOMPARE(image, expectedEdges(size, 1));
    QVERIFY(isEmptyWithin(image, 1));
    QVERIFY(image.pixelColor(0, 0).alpha() > 0);
    QCOMPARE(countPixels(image, green), 0);
}

void tst_EditModeBorderRenderer::paintsThickEdgesAndHandlesWhenActive_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("middleX");
    QTest::addColumn<int>("middleY");
    // Half of the length less 3, a half rounded up.
    QTest::newRow("even") << QSize(100, 50) << 49 << 24;
    QTest::newRow("odd") << QSize(61, 33) << 29 << 15;
    QTest::newRow("smallest") << QSize(4, 4) << 1 << 1;
    QTest::newRow("as long as a handle") << QSize(3, 3) << 0 << 0;
}

void tst_EditModeBorderRenderer::paintsThickEdgesAndHandlesWhenActive()
{
    QFETCH(QSize, size);
    QFETCH(int, middleX);
    QFETCH(int, middleY);
    m_frame->resize(size);
    makeActive();
    const int right = size.width() - 3;
    const int bottom = size.height() - 3;
    const QList<QPoint> handles = {{0, 0},      {middleX, 0},     {right, 0},        {0, middleY},
                                   {0, bottom}, {right, middleY}, {middleX, bottom}, {right, bottom}};
    QCOMPARE(painted(*m_border), withHandles(expectedEdges(size, 2), handles));
}

void tst_EditModeBorderRenderer::paintsHandlesInPureGreen()
{
    makeActive();
    QCOMPARE(countPixels(painted(*m_border), green), 8 * 9);
}

void tst_EditModeBorderRenderer::staysInsideTheWidget()
{
    makeActive();
    QVERIFY(isEmptyWithin(painted(*m_border), 3));
    // The picture of the canvas around the frame is that of an empty canvas.
    m_frame->move(50, 50);
    const QImage with = m_screen->grab().toImage();
    m_frame->deselect();
    QImage without = m_screen->grab().toImage();
    QVERIFY(with != without);
    QPainter(&without).drawImage(m_frame->pos(), with, m_frame->geometry());
    QCOMPARE(with, without);
}

void tst_EditModeBorderRenderer::paintsSmoothly()
{
    m_frame->select();
    QImage image = transparent({150, 75});
    QPainter painter(&image);
    painter.scale(1.5, 1.5);
    m_border->render(&painter, QPoint(), QRegion(), QWidget::RenderFlags());
    painter.end();
    // One and a half pixels wide: whole in the first row, half in the second.
    int translucent = 0;
    for (int x = 0; x < image.width(); ++x)
        translucent += image.pixelColor(x, 1).alpha() % 255 != 0 ? 1 : 0;
    QVERIFY(translucent > 0);
}

void tst_EditModeBorderRenderer::losesHandlesWithFocus()
{
    makeActive();
    QFocusEvent event(QEvent::FocusOut);
    QCoreApplication::sendEvent(m_frame, &event);
    QCOMPARE(painted(*m_border), expectedEdges({100, 50}, 1));
}

bool tst_EditModeBorderRenderer::repaintsAfter(const std::function<void()> &change)
{
    QCoreApplication::processEvents();
    PaintWatcher border(m_border);
    change();
    return QTest::qWaitFor([&] { return border.takeArea().contains(m_border->rect()); }, 2000);
}

void tst_EditModeBorderRenderer::repaintsWhenItsLookChanges()
{
    QVERIFY(QTest::qWaitForWindowExposed(m_screen.data()));
    QVERIFY(repaintsAfter([this] { m_frame->select(); }));
    QVERIFY(repaintsAfter([this] { m_frame->activate(); }));
    QVERIFY(repaintsAfter([this] {
        QFocusEvent event(QEvent::FocusOut);
        QCoreApplication::sendEvent(m_frame, &event);
    }));
    QVERIFY(repaintsAfter([this] { m_frame->enterRenderMode(); }));
    QVERIFY(repaintsAfter([this] { m_frame->leaveRenderMode(); }));
    QVERIFY(repaintsAfter([this] { m_frame->deselect(); }));
}

BOARDWRIGHT_TEST_MAIN(tst_EditModeBorderRenderer)
#include "tst_editmodeborderrenderer.moc"
