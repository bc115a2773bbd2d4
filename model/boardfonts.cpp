#include "model/boardfonts.h"

#include "model/fontconfigrules.h"
#include "model/fontfamilies.h"

#include <QFontDatabase>
#include <QHash>

#include <algorithm>

namespace
{
constexpr qreal pixelsPerPoint = 96 / 72.0;
constexpr int largestLetter = 10000; // pixels
constexpr int plainLetter = 12;      // pixels

/// Names of single weights, which are in no list of families.
QStringList &weightNames()
{
    static QStringList names;
    return names;
}

/// What was found for the names so far.
QHash<QString, QStringList> &foundFamilies()
{
    static QHash<QString, QStringList> families;
    return families;
}

bool isLoaded(const QString &name)
{
    return FontFamilies::list().contains(name, Qt::CaseInsensitive) ||
           weightNames().contains(name, Qt::CaseInsensitive);
}

/// False for what the toolkit would take apart: a list of families, a family with its foundry, or nothing.
bool isPlainName(const QString &name)
{
    return !name.trimmed().isEmpty() && !name.contains(QLatin1Char(',')) && !name.contains(QLatin1Char('['));
}

/// For characters that the font of a text lacks: the face with the most letters, then the one with signs.
QStringList helpers()
{
    return {BoardFonts::plainFamily(), QStringLiteral("Noto Sans Symbols 2")};
}

QStringList findFamilies(const QString &name)
{
    QFont::insertSubstitutions(name, helpers());
    const bool isSafe = isPlainName(name) && (isLoaded(name) || !QFontDatabase().hasFamily(name));
    return isSafe ? QStringList{name} : QFont::substitutes(name);
}
} // namespace

void BoardFonts::clearVariables()
{
    for (const char *name : {"QT_MAX_CACHED_GLYPH_SIZE", "QT_NO_SYNTHESIZED_BOLD", "QT_NO_SYNTHESIZED_ITALIC",
                             "QT_HARFBUZZ", "HB_SHAPER_LIST", "FREETYPE_PROPERTIES"})
        qunsetenv(name);
}

void BoardFonts::settle()
{
    foundFamilies().clear();
    weightNames() = FontconfigRules::loadedNames();
    FontconfigRules::keepSmooth(FontFamilies::list());
}

QStringList BoardFonts::shownFamilies(const QString &name)
{
    const auto found = foundFamilies().constFind(name);
    return found != foundFamilies().cend() ? *found : *foundFamilies().insert(name, findFamilies(name));
}

QString BoardFonts::plainFamily()
{
    return QStringLiteral("Arimo");
}

int BoardFonts::pixelSize(qreal points)
{
    return qRound(std::clamp(points * pixelsPerPoint, qreal(1), qreal(largestLetter)));
}

qreal BoardFonts::points(int pixels)
{
    return pixels / pixelsPerPoint;
}

QFont BoardFonts::plainFont()
{
    const QStringList families = shownFamilies(plainFamily());
    QFont font(families.first());
    font.setPixelSize(plainLetter);
    font.setHintingPreference(QFont::PreferVerticalHinting);
    font.setStyleStrategy(QFont::NoSubpixelAntialias);
    return font;
}
