#include "pictures/largeletters.h"

#include <QAbstractTextDocumentLayout>
#include <QFont>
#include <QImage>
#include <QPainter>
#include <QRawFont>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>

namespace
{
constexpr int largestCached = 64; // pixels; larger letters are drawn from their outlines
constexpr int smallSize = 12;     // pixels

/// The letters of one format.
struct Letters {
    QFont font;
    QString text;
};

struct Inventory {
    QVector<Letters> large;
    bool hasSmall = false;
};

Inventory inventoryOf(const QTextDocument &document)
{
    Inventory found;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto at = block.begin(); !at.atEnd(); ++at) {
            const QFont font = at.fragment().charFormat().font();
            if (font.pixelSize() > largestCached)
                found.large.append({font, at.fragment().text()});
            else
                found.hasSmall = true;
        }
    }
    return found;
}

/// Loads one small letter at no shift: through an engine of its own, but from the face that all sizes share.
void straightenFace(QRawFont face)
{
    face.setPixelSize(smallSize);
    const QVector<quint32> glyphs = face.glyphIndexesForString(QStringLiteral("0"));
    face.alphaMapForGlyph(glyphs.value(0), QRawFont::PixelAntialiasing);
}

bool supportsAll(const QRawFont &face, const QString &text)
{
    return std::all_of(text.begin(), text.end(),
                       [&face](QChar character) { return face.supportsCharacter(character); });
}

void straightenFaces(const Letters &letters)
{
    QFont font = letters.font;
    const QStringList families = letters.font.families() + QFont::substitutes(letters.font.family());
    for (const QString &family : families) {
        font.setFamilies({family});
        font.setFamily(family);
        const QRawFont face = QRawFont::fromFont(font);
        straightenFace(face);
        // The others only help out.
        if (supportsAll(face, letters.text))
            return;
    }
}

/// After this all small letters are drawn from memory, and none of them shifts its face any more.
void paintAside(const QTextDocument &document)
{
    const QSize size = document.size().toSize().boundedTo(QSize(4096, 4096)).expandedTo(QSize(1, 1));
    QImage aside(size, QImage::Format_RGB32);
    QPainter painter(&aside);
    document.documentLayout()->draw(&painter, QAbstractTextDocumentLayout::PaintContext());
}
} // namespace

void LargeLetters::straighten(const QTextDocument &document)
{
    const Inventory letters = inventoryOf(document);
    if (letters.large.isEmpty())
        return;
    if (letters.hasSmall)
        paintAside(document);
    for (const Letters &large : letters.large)
        straightenFaces(large);
}
