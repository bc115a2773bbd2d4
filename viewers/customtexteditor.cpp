#include "viewers/customtexteditor.h"

#include "pictures/largeletters.h"
#include "pictures/mediafile.h"
#include "pictures/richtext.h"
#include "pictures/textbounds.h"
#include "pictures/textletters.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDebug>
#include <QDrag>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTextDocumentFragment>
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

/// Of an address that carries megabytes, the beginning says which it is.
void tellOfLimit(const QUrl &address, const QString &reason)
{
    constexpr int beginning = 60;
    qDebug().nospace() << "A text leaves out a picture, " << address.toString().left(beginning) << ": "
                       << qPrintable(reason);
}

QImage carriedImage(const QUrl &address, qint64 room)
{
    QString reason;
    QImage image = MediaFile::pictureIn(carriedBytes(address), room / MediaFile::bytesOf({1, 1}), &reason);
    if (!reason.isEmpty())
        tellOfLimit(address, reason);
    return image;
}

/// What the image takes, in its own format and in that of the screen.
qint64 bytesOf(const QImage &image)
{
    return qMax(qint64(image.sizeInBytes()), MediaFile::bytesOf(image.size()));
}

/// The rich text that the toolkit would insert, in its order of preference; empty when it would insert plain
/// text.
QString htmlOf(const QMimeData &source)
{
    const QString ownFormat = QStringLiteral("application/x-qrichtext");
    if (source.hasFormat(ownFormat))
        return QString::fromUtf8(source.data(ownFormat));
    return source.hasHtml() ? source.html() : QString();
}

/// All of a source that a text could hold, as plain text.
QString plainTextOf(const QMimeData &source)
{
    const int length = 2 * RichText::maximumText; // with the breaks between lines
    return source.hasText() ? source.text().left(length) : RichText::excerpt(htmlOf(source), length);
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
    // Told before the layout hears of a change, whatever made it.
    connect(document(), &QTextDocument::contentsChange, this, [this] { TextBounds::clamp(*document()); });
}

bool CustomTextEditor::showHtml(const QString &html)
{
    m_pictureBytes = 0;
    m_claim.take(0);
    // Not laid out before it was judged.
    QTextCursor step(document());
    step.beginEditBlock();
    const bool isWhole = readHtml(html);
    if (!isWhole)
        document()->setPlainText(RichText::excerpt(html));
    TextLetters::settle(*document());
    step.endEditBlock();
    return isWhole;
}

bool CustomTextEditor::readHtml(const QString &html)
{
    if (!RichText::isShowable(html))
        return false;
    document()->setHtml(TextLetters::withoutRelativeLengths(html));
    return TextBounds::isShowable(*document());
}

QVariant CustomTextEditor::loadResource(int type, const QUrl &name)
{
    if (type != QTextDocument::ImageResource)
        return QByteArray("");
    const QImage image =
        name.scheme() == QLatin1String("data") ? carriedImage(name, maximumBytes - m_pictureBytes) : QImage();
    if (image.isNull())
        return leftOut();
    if (!m_claim.take(m_pictureBytes + bytesOf(image))) {
        tellOfLimit(name, QStringLiteral("all media together take too much memory"));
        return leftOut();
    }
    m_pictureBytes += bytesOf(image);
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
    const QString html = htmlOf(*source);
    if (!html.isEmpty() && RichText::isShowable(html) &&
        hasRoomFor(QTextDocumentFragment::fromHtml(html, document())))
        QTextEdit::insertFromMimeData(source);
    else
        insertBeginning(*source);
    TextLetters::settle(*document());
}

void CustomTextEditor::insertBeginning(const QMimeData &source)
{
    QString text = TextBounds::beginning(plainTextOf(source), *withoutSelection());
    while (!text.isEmpty() && !hasRoomFor(QTextDocumentFragment::fromPlainText(text)))
        text.truncate(text.size() / 2);
    insertPlainText(text);
}

QSharedPointer<QTextDocument> CustomTextEditor::withoutSelection() const
{
    QSharedPointer<QTextDocument> copy(document()->clone());
    QTextCursor cursor(copy.data());
    cursor.setPosition(textCursor().anchor());
    cursor.setPosition(textCursor().position(), QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    return copy;
}

bool CustomTextEditor::hasRoomFor(const QTextDocumentFragment &addition) const
{
    // Together with what is there already: a text that grows beyond its limits could not be opened again.
    const QSharedPointer<QTextDocument> whole = withoutSelection();
    QTextCursor cursor(whole.data());
    cursor.setPosition(qMin(textCursor().selectionStart(), whole->characterCount() - 1));
    cursor.insertFragment(addition);
    return TextBounds::isShowable(*whole) && RichText::isShowable(whole->toHtml());
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
