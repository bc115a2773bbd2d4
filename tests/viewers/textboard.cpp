#include "tests/viewers/textboard.h"

#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "viewers/customtexteditor.h"
#include "viewers/textoutput.h"

#include <QTest>
#include <QTextBlock>
#include <QTextFrame>
#include <QTextFrameFormat>

namespace
{
QString described(const QTextCharFormat &format)
{
    const QFont font = format.font();
    const QString family = font.families().isEmpty() ? font.family() : font.families().join(',');
    return QString("%1 %2pt weight %3%4%5 %6")
        .arg(family, QString::number(format.fontPointSize()), QString::number(format.fontWeight()),
             format.fontItalic() ? " italic" : "", format.fontUnderline() ? " underlined" : "",
             format.foreground().style() == Qt::NoBrush ? "none" : format.foreground().color().name());
}
} // namespace

QJsonObject textObject(const QString &name, const QRect &geometry, const QJsonObject &others)
{
    QJsonObject object = {{"Type", "Text"},        {"ScreenItemName", name},
                          {"Text", "<p>Away</p>"}, {"Text Type", "Home Score"},
                          {"X", geometry.x()},     {"Y", geometry.y()},
                          {"W", geometry.width()}, {"H", geometry.height()},
                          {"Font", "Oswald"},      {"Size", 14},
                          {"Auto Size", false},    {"Bold", true},
                          {"Italic", true},        {"Underlined", true},
                          {"Align_int", 33},       {"Color", "#ff8000"}};
    for (auto other = others.begin(); other != others.end(); ++other)
        object.insert(other.key(), other.value());
    return object;
}

QStringList described(const QTextDocument &document)
{
    QStringList lines{QString("margin %1").arg(document.rootFrame()->frameFormat().topMargin())};
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        lines << QString("paragraph 0x%1 %2")
                     .arg(int(block.blockFormat().alignment()), 2, 16, QChar('0'))
                     .arg(described(block.charFormat()));
        for (auto piece = block.begin(); !piece.atEnd(); ++piece)
            lines << piece.fragment().text() + ": " + described(piece.fragment().charFormat());
    }
    return lines;
}

ScreenItem *TextBoard::addText(const QRect &geometry, const QString &name)
{
    auto *frame = new ScreenItem(screen());
    frame->resize(100, 50);
    new TextOutput(frame);
    frame->setGeometry(geometry);
    frame->setMyName(name);
    return frame;
}

void TextBoard::startEditing(const ScreenItem *frame)
{
    doubleClick(frame->geometry().center());
}

void TextBoard::write(const QString &text)
{
    for (const QChar character : text)
        QTest::keyClick(window()->windowHandle(), character.toLatin1());
}

TextOutput *textIn(const ScreenItem *frame)
{
    return frame->findChild<TextOutput *>();
}

CustomTextEditor *editorIn(const ScreenItem *frame)
{
    return frame->findChild<CustomTextEditor *>();
}

bool isEditing(const ScreenItem *frame)
{
    return !editorIn(frame)->isReadOnly();
}

int topMargin(const ScreenItem *frame)
{
    return int(editorIn(frame)->document()->rootFrame()->frameFormat().topMargin());
}
