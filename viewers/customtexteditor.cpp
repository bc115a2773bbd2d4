#include "viewers/customtexteditor.h"

#include "model/contenthost.h"
#include "pictures/largeletters.h"
#include "pictures/richtext.h"
#include "pictures/textbounds.h"
#include "pictures/textdocument.h"
#include "pictures/textletters.h"

#include <QApplication>
#include <QContextMenuEvent>
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

/// The name of the item around the editor, wherever it is lodged; empty without one.
QString nameOfItem(const QWidget &editor)
{
    for (QWidget *around = editor.parentWidget(); around; around = around->parentWidget()) {
        if (const auto *host = dynamic_cast<const ContentHost *>(around))
            return host->name();
    }
    return {};
}

/// Whether words are being dragged out of the editor, or were until just now.
bool hasDrag(const QTextEdit &editor)
{
    return editor.viewport()->findChild<QDrag *>(QString(), Qt::FindDirectChildrenOnly);
}
} // namespace

CustomTextEditor::CustomTextEditor(QWidget *parent) : QTextEdit(parent)
{
    TextDocument::prepare(*document());
}

bool CustomTextEditor::showHtml(const QString &html)
{
    m_pictures.clear();
    return TextDocument::show(*document(), html);
}

QVariant CustomTextEditor::loadResource(int type, const QUrl &name)
{
    return m_pictures.resource(type, name, nameOfItem(*this));
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
    // Not between the two halves of one character.
    if (!text.isEmpty() && text.at(text.size() - 1).isHighSurrogate())
        text.chop(1);
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
