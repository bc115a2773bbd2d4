#include "bench/floortext.h"

#include <QTextEdit>

namespace
{
QTextCharFormat charFormat(const QJsonObject &object)
{
    QTextCharFormat format;
    format.setFontFamily(object.value(QStringLiteral("Font")).toString());
    format.setFontPointSize(object.value(QStringLiteral("Size")).toInt());
    format.setFontWeight(object.value(QStringLiteral("Bold")).toBool() ? QFont::Bold : QFont::Normal);
    format.setFontItalic(object.value(QStringLiteral("Italic")).toBool());
    format.setFontUnderline(object.value(QStringLiteral("Underlined")).toBool());
    format.setForeground(QColor(object.value(QStringLiteral("Color")).toString()));
    return format;
}

void dress(QTextDocument &document, const QJsonObject &object)
{
    document.setUndoRedoEnabled(false);
    document.setHtml(object.value(QStringLiteral("Text")).toString());
    QTextCursor all(&document);
    all.select(QTextCursor::Document);
    all.mergeCharFormat(charFormat(object));
    QTextBlockFormat paragraph;
    paragraph.setAlignment(Qt::AlignCenter);
    all.mergeBlockFormat(paragraph);
}
} // namespace

QWidget *FloorText::create(const QJsonObject &object, QWidget *parent)
{
    auto *edit = new QTextEdit(parent);
    edit->setAttribute(Qt::WA_TransparentForMouseEvents);
    edit->setFrameShape(QFrame::NoFrame);
    edit->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    edit->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    edit->setReadOnly(true);
    dress(*edit->document(), object);
    return edit;
}
