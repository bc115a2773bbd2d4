#include "model/fontconfigrules.h"

#ifdef BOARDWRIGHT_HAS_FONTCONFIG
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

/// Of the target "font": a rule for the pattern that is asked for would come before the desktop's own.
QString smoothRule(const QString &family)
{
    return QStringLiteral(
               "<match target=\"font\"><test name=\"family\" qual=\"any\"><string>%1</string></test>"
               "<edit name=\"antialias\" mode=\"assign\"><bool>true</bool></edit></match>")
        .arg(family.toHtmlEscaped());
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

void FontconfigRules::keepSmooth(const QStringList &families)
{
    QString rules;
    for (const QString &family : families)
        rules.append(smoothRule(family));
    const QByteArray file = QStringLiteral("<fontconfig>%1</fontconfig>").arg(rules).toUtf8();
    FcConfig *config = FcConfigGetCurrent();
    FcConfigParseAndLoadFromMemory(config, reinterpret_cast<const FcChar8 *>(file.constData()), FcTrue);
    // A configuration read anew, because its files have changed meanwhile, would lack these rules.
    FcConfigSetRescanInterval(config, 0);
}
#else
QStringList FontconfigRules::loadedNames()
{
    return {};
}

void FontconfigRules::keepSmooth(const QStringList &families)
{
    Q_UNUSED(families)
}
#endif
