#include "model/fontconfigrules.h"

#ifdef BOARDWRIGHT_HAS_FONTCONFIG
#include <QSet>

#include <fontconfig/fontconfig.h>

namespace
{
QStringList namesOf(FcPattern *font)
{
    QStringList names;
    FcChar8 *name = nullptr;
    for (int i = 0; FcPatternGetString(font, FC_FAMILY, i, &name) == FcResultMatch; ++i)
        names.append(QString::fromUtf8(reinterpret_cast<const char *>(name)));
    return names;
}

/// Upper and lower case make no other font.
QSet<QString> inOneCase(const QStringList &names)
{
    QSet<QString> folded;
    for (const QString &name : names)
        folded.insert(name.toCaseFolded());
    return folded;
}

/// Of the target "font": a rule for the pattern that is asked for would come before the desktop's own.
QByteArray smoothRule(const QString &family)
{
    return QStringLiteral("<fontconfig><match target=\"font\">"
                          "<test name=\"family\" qual=\"any\"><string>%1</string></test>"
                          "<edit name=\"antialias\" mode=\"assign\"><bool>true</bool></edit>"
                          "</match></fontconfig>")
        .arg(family.toHtmlEscaped())
        .toUtf8();
}
} // namespace

QStringList FontconfigRules::loadedNames()
{
    QStringList names;
    const FcFontSet *fonts = FcConfigGetFonts(FcConfigGetCurrent(), FcSetApplication);
    for (int i = 0; fonts && i < fonts->nfont; ++i)
        names.append(namesOf(fonts->fonts[i]));
    names.removeDuplicates();
    return names;
}

bool FontconfigRules::hideNamesakes()
{
    FcFontSet *fonts = FcConfigGetFonts(FcConfigGetCurrent(), FcSetSystem);
    const QSet<QString> loaded = inOneCase(loadedNames());
    if (!fonts)
        return false;
    const int before = fonts->nfont;
    fonts->nfont = 0;
    for (int i = 0; i < before; ++i) {
        FcPattern *font = fonts->fonts[i];
        if (inOneCase(namesOf(font)).intersects(loaded))
            FcPatternDestroy(font);
        else
            fonts->fonts[fonts->nfont++] = font;
    }
    return fonts->nfont < before;
}

void FontconfigRules::forgetLoaded()
{
    FcConfigAppFontClear(FcConfigGetCurrent());
}

void FontconfigRules::keepSmooth(const QStringList &families)
{
    FcConfig *config = FcConfigGetCurrent();
    // One by one: a name that no rule can hold, as fonts of the user may have, takes no other rule along.
    for (const QString &family : families)
        FcConfigParseAndLoadFromMemory(
            config, reinterpret_cast<const FcChar8 *>(smoothRule(family).constData()), FcTrue);
    // A configuration read anew, because its files have changed meanwhile, would lack these rules.
    FcConfigSetRescanInterval(config, 0);
}
#else
QStringList FontconfigRules::loadedNames()
{
    return {};
}

bool FontconfigRules::hideNamesakes()
{
    return false;
}

void FontconfigRules::forgetLoaded() {}

void FontconfigRules::keepSmooth(const QStringList &families)
{
    Q_UNUSED(families)
}
#endif
