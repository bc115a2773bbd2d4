#include "render/boardletters.h"

#include "model/applicationfonts.h"
#include "model/boardfonts.h"
#include "model/keys.h"
#include "pictures/richtext.h"
#include "pictures/textkeys.h"

#include <QHash>
#include <QJsonArray>
#include <QRawFont>
#include <QSet>

#include <algorithm>

namespace
{
/// The characters that texts want of each font.
using Wanted = QHash<QString, QSet<QChar>>;

Wanted wantedBy(const QJsonObject &layout)
{
    Wanted wanted;
    const QJsonArray items = layout.value(Keys::items()).toArray();
    for (const QJsonValue &item : items) {
        if (item[Keys::type()].toString() != QLatin1String("Text"))
            continue;
        QSet<QChar> &characters = wanted[item[TextKeys::font()].toString()];
        const QString html = item[TextKeys::text()].toString();
        const QString text = RichText::excerpt(html, html.size());
        for (const QChar character : text)
            characters.insert(character);
    }
    return wanted;
}

/// What is left of entities may stand for any character.
bool isElsewhere(QChar character, const QRawFont &face)
{
    return character == QLatin1Char('&') || (character.isPrint() && !face.supportsCharacter(character));
}

bool hasAll(const QString &name, const QSet<QChar> &characters)
{
    QFont font(name);
    font.setFamilies(BoardFonts::shownFamilies(name));
    const QRawFont face = QRawFont::fromFont(font);
    return std::none_of(characters.begin(), characters.end(),
                        [&face](QChar character) { return isElsewhere(character, face); });
}
} // namespace

void BoardLetters::loadFonts(const QJsonObject &layout)
{
    const Wanted wanted = wantedBy(layout);
    loadFontsNamed(wanted.keys());
    for (auto font = wanted.begin(); font != wanted.end(); ++font) {
        if (!hasAll(font.key(), *font))
            return loadApplicationFonts();
    }
}
