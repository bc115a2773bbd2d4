#include "viewers/textoutput.h"

#include "model/contenthost.h"
#include "model/keys.h"
#include "model/widgetgeometry.h"
#include "pictures/datafields.h"
#include "pictures/textdocument.h"
#include "pictures/textkeys.h"
#include "pictures/textlayout.h"
#include "pictures/textletters.h"
#include "pictures/textstyle.h"
#include "viewers/customtexteditor.h"
#include "viewers/textpanel.h"

#include <QDebug>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QTextCursor>

namespace
{
constexpr int smallestFont = 1;  // points
constexpr int largestFont = 512; // points
constexpr int cursorStep = 4;    // characters

/// What a new text and a text that was read are dressed in, in this order.
QStringList everyFormat()
{
    return TextDocument::styleKeys() + QStringList(TextKeys::aligment());
}

bool isMouseOfFrame(QEvent::Type type)
{
    return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease ||
           type == QEvent::MouseMove;
}
} // namespace

TextOutput::TextOutput(QWidget *parent) : ContentViewer(parent)
{
    initValues(QStringLiteral("Text"));
    m_values.insert(TextKeys::size(), 8);
    m_values.insert(TextKeys::font(), QStringLiteral("Arial"));
    m_values.insert(TextKeys::color(), QStringLiteral("white"));
    m_values.insert(
        TextKeys::text(),
        QStringLiteral("<html><body><p align = \"center\" width = \"100%\">Text</p></body></html>"));
    m_values.insert(TextKeys::textType(), QStringLiteral("Text"));
    // Left and top, while the text is shown in the middle: on purpose.
    m_values.insert(TextKeys::alignment(), TextAlignment::Left + TextAlignment::Top);
    m_values.insert(TextKeys::autoSize(), true);
    m_values.insert(TextKeys::underlined(), false);
    m_values.insert(TextKeys::bold(), false);
    m_values.insert(TextKeys::italic(), false);
    buildEditor();
    dressText();
}

void TextOutput::buildEditor()
{
    m_editor = new CustomTextEditor(this);
    m_editor->move(0, 0);
    m_editor->setFrameShape(QFrame::NoFrame);
    m_editor->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_editor->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_editor->setFocusPolicy(Qt::NoFocus);
    m_editor->setReadOnly(true);
    m_editor->setAcceptRichText(true);
    // What the program does to a text is nothing for the user to undo.
    m_editor->document()->setUndoRedoEnabled(false);
    m_editor->show();
    connect(m_editor->document(), &QTextDocument::modificationChanged, this, &TextOutput::tellEdit);
}

QVector<QPair<QString, ContentViewer::Parameters::ValueType>> TextOutput::getValueNameTypeDefinition()
{
    return {{TextKeys::text(), Parameters::Text},
            {TextKeys::textType(), Parameters::Enum},
            {Keys::x(), Parameters::Int},
            {Keys::y(), Parameters::Int},
            {Keys::w(), Parameters::Int},
            {Keys::h(), Parameters::Int},
            {TextKeys::font(), Parameters::Font},
            {TextKeys::size(), Parameters::Int},
            {TextKeys::autoSize(), Parameters::Check},
            {TextKeys::bold(), Parameters::Check},
            {TextKeys::italic(), Parameters::Check},
            {TextKeys::underlined(), Parameters::Check},
            {TextKeys::alignment(), Parameters::Int},
            {TextKeys::color(), Parameters::Color}};
}

void TextOutput::anyValueChanged()
{
    qDebug("void TextOutput::anyValueChanged()");
    ContentViewer::anyValueChanged();
}

QStringList TextOutput::getEnumsFor(QString enumName)
{
    return enumName == TextKeys::textType() ? DataFields::names() : QStringList();
}

void TextOutput::setValue(QString key, QVariant value)
{
    qDebug(" void TextOutput::setValue(QString key, QVariant value)");
    const TextAlignment::Button *button = TextAlignment::button(key);
    if (key == TextKeys::alignment())
        setAlignment(value.toInt());
    if (button && !isPressed(*button) && !m_isAnnouncing)
        press(*button);
    else if (key == TextKeys::text())
        setText(value);
    else
        store(key, value);
}

void TextOutput::setAlignment(int code)
{
    adoptCode(code);
    announceAlignment();
    format(TextKeys::aligment());
    update();
}

void TextOutput::adoptCode(int code)
{
    m_vertical = code % 10;
    m_horizontal = code - m_vertical;
}

void TextOutput::announceAlignment()
{
    // An open panel answers with the keys of the buttons that it turns on and off: those are no presses.
    const QScopedValueRollback<bool> announcing(m_isAnnouncing, true);
    for (const TextAlignment::Button &button : TextAlignment::announced)
        emit valueChanged(QLatin1String(button.key), isPressed(button));
}

void TextOutput::press(const TextAlignment::Button &button)
{
    const bool isVertical = TextAlignment::isVertical(button);
    // Told before it is done: what an open panel answers is then the repetition of a state, not a press.
    for (const TextAlignment::Button &other :
         isVertical ? TextAlignment::vertical : TextAlignment::horizontal) {
        if (other.part != button.part)
            emit valueChanged(QLatin1String(other.key), false);
    }
    emit valueChanged(QLatin1String(button.key), true);
    (isVertical ? m_vertical : m_horizontal) = button.part;
    m_values.insert(TextKeys::alignment(), m_horizontal + m_vertical);
    update();
    format(TextKeys::aligment());
}

bool TextOutput::isPressed(const TextAlignment::Button &button) const
{
    return button.part == (TextAlignment::isVertical(button) ? m_vertical : m_horizontal);
}

void TextOutput::setText(const QVariant &text)
{
    m_values.insert(TextKeys::text(), text);
    emit valueChanged(TextKeys::text(), text);
    showText();
    update();
    format(TextKeys::aligment());
}

void TextOutput::store(const QString &key, const QVariant &value)
{
    // Also the key of a button that is pressed already: on purpose.
    m_values.insert(key, value);
    if (TextStyle::isStyle(key))
        format(key);
    anyValueChanged();
    update();
}

QVariant TextOutput::getValue(QString key)
{
    update();
    const QWidget *frame = parentWidget() ? parentWidget() : this;
    if (key == Keys::x())
        return frame->x();
    if (key == Keys::y())
        return frame->y();
    if (key == Keys::w())
        return frame->width();
    if (key == Keys::h())
        return frame->height();
    if (key == TextKeys::alignment())
        return m_horizontal + m_vertical;
    if (const TextAlignment::Button *button = TextAlignment::button(key))
        return isPressed(*button);
    return m_values.value(key).toString();
}

void TextOutput::applyGeometry(QRect geometry)
{
    ContentViewer::applyGeometry(geometry);
}

QVariant TextOutput::getMinValue(QString key)
{
    return key == TextKeys::size() ? QVariant(smallestFont) : ContentViewer::getMinValue(key);
}

QVariant TextOutput::getMaxValue(QString key)
{
    return key == TextKeys::size() ? QVariant(largestFont) : ContentViewer::getMaxValue(key);
}

void TextOutput::buildSettingsPanel(QWidget *host)
{
    TextPanel::build(*this, host);
}

void TextOutput::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
}

void TextOutput::resizeEvent(QResizeEvent *event)
{
    Q_UNUSED(event)
    // Dressed first: its sheet decides about its margins.
    m_editor->ensurePolished();
    resizeNow(m_editor, size());
    // The toolkit's editor lays its text out when the area inside it is told its size.
    sendHeldGeometryEvents(m_editor->viewport());
    format(TextKeys::aligment());
}

void TextOutput::beginReading()
{
    m_isReading = !isEditing();
    m_codeBefore = m_horizontal + m_vertical;
}

void TextOutput::endReading()
{
    if (!m_isReading)
        return;
    m_isReading = false;
    if (TextAlignment::flags(m_horizontal + m_vertical))
        dressText();
    else
        dressWithoutCode();
}

void TextOutput::dressWithoutCode()
{
    // A number that is no code leaves the text where the code before it puts it, seen or not yet.
    const int code = m_horizontal + m_vertical;
    adoptCode(m_codeBefore);
    dressText();
    if (parentWidget())
        resizeNow(this, parentWidget()->size());
    sendHeldGeometryEvents(this);
    adoptCode(code);
    placeText();
}

void TextOutput::dressText()
{
    // In one step, so that the text is laid out once.
    QTextCursor step(m_editor->document());
    step.beginEditBlock();
    showText();
    applyFormat(everyFormat());
    step.endEditBlock();
    finishFormat();
}

void TextOutput::showText()
{
    if (m_isReading)
        return;
    m_isShownWhole = m_editor->showHtml(m_values.value(TextKeys::text()).toString());
}

void TextOutput::format(const QString &key)
{
    if (m_isReading)
        return;
    applyFormat({key});
    finishFormat();
}

void TextOutput::applyFormat(const QStringList &keys)
{
    QTextCursor cursor = m_editor->textCursor();
    if (!isEditing())
        cursor.select(QTextCursor::Document);
    TextDocument::style(cursor, keys, m_values);
    if (keys.contains(TextKeys::aligment()))
        TextLayout::align(cursor, m_horizontal + m_vertical);
    if (isEditing())
        m_editor->setTextCursor(cursor);
}

void TextOutput::finishFormat()
{
    m_editor->show();
    if (!isEditing()) {
        // Four characters before the end of what was formatted: on purpose.
        QTextCursor cursor = m_editor->textCursor();
        cursor.movePosition(QTextCursor::End);
        cursor.movePosition(QTextCursor::Left, QTextCursor::MoveAnchor, cursorStep);
        m_editor->setTextCursor(cursor);
    }
    disconnect(m_editor, &QTextEdit::textChanged, this, nullptr);
    placeText();
}

void TextOutput::placeText()
{
    if (m_vertical == TextAlignment::Middle)
        ValignMiddle();
    else
        placeAt(m_vertical);
}

void TextOutput::ValignTop()
{
    placeAt(TextAlignment::Top);
}

void TextOutput::ValignMiddle()
{
    qDebug("void TextOutput::ValignMiddle()");
    placeAt(TextAlignment::Middle);
}

void TextOutput::ValignBottom()
{
    placeAt(TextAlignment::Bottom);
}

void TextOutput::placeAt(int vertical)
{
    {
        const QSignalBlocker silence(m_editor);
        TextLayout::place(*m_editor->document(), vertical, m_editor->height());
    }
    // A text that is larger than its item is cut, it does not scroll.
    if (!isEditing())
        m_editor->showBeginning();
}

bool TextOutput::isEditing() const
{
    return !m_editor->isReadOnly();
}

void TextOutput::mouseDoubleClickEvent(QMouseEvent *event)
{
    event->accept();
    // What is not there to be seen would be lost by storing what is.
    if (!isEditing() && m_isShownWhole && parentWidget())
        startEditing();
}

void TextOutput::startEditing()
{
    parentWidget()->installEventFilter(this);
    lodgeEditor(parentWidget());
    m_editor->setFocusPolicy(Qt::StrongFocus);
    m_editor->setFocus(Qt::OtherFocusReason);
    m_editor->setReadOnly(false);
    styleEmptyText();
    m_editor->moveCursor(QTextCursor::End);
    m_editor->document()->setUndoRedoEnabled(true);
    m_editor->document()->setModified(false);
}

void TextOutput::styleEmptyText()
{
    // For what is typed where there is nothing, or nothing any more.
    QTextDocument *document = m_editor->document();
    QTextCursor(document).mergeBlockCharFormat(TextDocument::format(TextDocument::styleKeys(), m_values));
    // The toolkit takes the first paragraph's layout away for that and makes no new one.
    document->markContentsDirty(0, document->characterCount());
}

void TextOutput::endEditing()
{
    if (!isEditing())
        return;
    storeShownText();
    emit valueChanged(TextKeys::text(), m_values.value(TextKeys::text()));
    parentWidget()->removeEventFilter(this);
    // Otherwise it would go on to any widget of the window.
    if (m_editor->hasFocus())
        parentWidget()->setFocus(Qt::OtherFocusReason);
    lodgeEditor(this);
    m_editor->resize(size());
    m_editor->setReadOnly(true);
    m_editor->setFocusPolicy(Qt::NoFocus);
    m_editor->document()->setUndoRedoEnabled(false);
    // What was typed may need another margin above it.
    format(TextKeys::aligment());
    m_editor->moveCursor(QTextCursor::End);
    m_editor->showBeginning();
}

void TextOutput::lodgeEditor(QWidget *parent)
{
    m_editor->setParent(parent);
    m_editor->move(0, 0);
    m_editor->show();
}

void TextOutput::tellEdit(bool isModified)
{
    auto *host = dynamic_cast<ContentHost *>(parentWidget());
    if (host && isModified && isEditing())
        host->contentEdited();
}

void TextOutput::commitEditing()
{
    QTextDocument *document = m_editor->document();
    if (!isEditing() || !document->isModified())
        return;
    storeShownText();
    document->setModified(false);
}

void TextOutput::storeShownText()
{
    if (m_isShownWhole)
        m_values.insert(TextKeys::text(), TextLetters::storedHtml(*m_editor->document()));
}

bool TextOutput::eventFilter(QObject *watched, QEvent *event)
{
    // The frame shall neither move nor change its size while the mouse selects text.
    if (isEditing() && watched == parentWidget() && isMouseOfFrame(event->type()))
        return true;
    return ContentViewer::eventFilter(watched, event);
}
