#include "viewers/customtexteditor.h"

#include "pictures/largeletters.h"
#include "pictures/mediafile.h"
#include "pictures/richtext.h"
#include "pictures/textletters.h"

#include <QApplication>
#include <QBuffer>
#include <QContextMenuEvent>
#include <QDrag>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QScrollBar>
#include <QUrl>

namespace
{
constexpr qint64 maximumBytes = 8 * 1024 * 1024; // of all pictures in one text, a full board among them

/// Not null: for a picture that is null the toolkit would look into files by itself.
QImage leftOut()
{
    QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

/// The bytes in a "data:" address; empty when they are not written in base 64.
QByteArray carriedBytes(const QUrl &address)
{
    const QByteArray data = address.path(QUrl::FullyDecoded).toLatin1();
    const int comma = data.indexOf(',');
    return comma > 0 && data.left(comma).endsWith(";base64") ? QByteArray::fromBase64(data.mid(comma + 1))
                                                             : QByteArray();
}

QImage carriedImage(const QUrl &address, qint64 room)
{
    QByteArray bytes = carriedBytes(address);
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return MediaFile::readPicture(buffer, room / MediaFile::bytesOf({1, 1}));
}

/// Plain text as the markup that it becomes.
QString markupOf(const QString &text)
{
    return text.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("</span></p><p><span>"));
}

/// What the toolkit would insert, in its order of preference.
QString markupOf(const QMimeData &source)
{
    const QString ownFormat = QStringLiteral("application/x-qrichtext");
    if (source.hasFormat(ownFormat))
        return QString::fromUtf8(source.data(ownFormat));
    return source.hasHtml() ? source.html() : markupOf(source.text());
}

/// Whether words are being dragged out of the editor, or were until just now.
bool hasDrag(const QTextEdit &editor)
{
    return editor.viewport()->findChild<QDrag *>(QString(), Qt::FindDirectChildrenOnly);
}
} // namespace

CustomTextEditor::CustomTextEditor(QWidget *parent) : QTextEdit(parent)
{
    TextLetters::prepare(*document());
}

void CustomTextEditor::showHtml(const QString &html)
{
    m_pictureBytes = 0;
    m_claim.take(0);
    document()->setHtml(TextLetters::withoutRelativeLengths(html));
    TextLetters::settle(*document());
}

QVariant CustomTextEditor::loadResource(int type, const QUrl &name)
{
    if (type != QTextDocument::ImageResource)
        return QByteArray("");
    const QImage image =
        name.scheme() == QLatin1String("data") ? carriedImage(name, maximumBytes - m_pictureBytes) : QImage();
    if (image.isNull())
        return leftOut();
    m_pictureBytes += MediaFile::bytesOf(image.size());
    m_claim.take(m_pictureBytes);
    return image;
}

void CustomTextEditor::contextMenuEvent(QContextMenuEvent *event)
{
    QMenu *menu = createStandardContextMenu(event->pos());
    menu->setAttribute(Qt::WA_DeleteOnClose);
    // The see-through sheet of the area around the canvas reaches down to here.
    menu->setStyleSheet(qApp->styleSheet() + QStringLiteral("QMenu::item:disabled{color:#909090;}"));
    // Not run: the item may go while its menu is open.
    menu->popup(event->globalPos());
}

void CustomTextEditor::keyPressEvent(QKeyEvent *event)
{
    QTextEdit::keyPressEvent(event);
    if (!isReadOnly())
        event->accept();
}

void CustomTextEditor::mousePressEvent(QMouseEvent *event)
{
    m_hasDragged = false;
    m_pressPosition = event->pos();
    QTextEdit::mousePressEvent(event);
}

void CustomTextEditor::mouseMoveEvent(QMouseEvent *event)
{
    if (m_hasDragged || hasDrag(*this))
        return;
    QTextEdit::mouseMoveEvent(event);
    m_hasDragged = hasDrag(*this);
    if (!m_hasDragged)
        return;
    // The drag has kept the button's release to itself. Outside the editor the toolkit would go on scrolling,
    // and begin the same drag again and again: no other event would ever be served.
    QMouseEvent back(QEvent::MouseMove, m_pressPosition, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QTextEdit::mouseMoveEvent(&back);
}

void CustomTextEditor::showEvent(QShowEvent *event)
{
    QTextEdit::showEvent(event);
    if (isReadOnly())
        showBeginning();
}

void CustomTextEditor::showBeginning()
{
    horizontalScrollBar()->setValue(0);
    verticalScrollBar()->setValue(0);
}

void CustomTextEditor::insertFromMimeData(const QMimeData *source)
{
    // What is there already counts as well: a text that grows beyond its limits could not be opened again.
    if (RichText::isShowable(toHtml() + markupOf(*source)))
        QTextEdit::insertFromMimeData(source);
    else
        insertPlainText(RichText::excerpt(source->hasText() ? markupOf(source->text()) : markupOf(*source)));
    TextLetters::settle(*document());
}

void CustomTextEditor::changeEvent(QEvent *event)
{
    QTextEdit::changeEvent(event);
    // The toolkit has just given the document the font of the interface.
    if (event->type() == QEvent::FontChange || event->type() == QEvent::ApplicationFontChange)
        TextLetters::prepare(*document());
}

void CustomTextEditor::paintEvent(QPaintEvent *event)
{
    LargeLetters::straighten(*document());
    QTextEdit::paintEvent(event);
}
