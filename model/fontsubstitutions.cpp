#include "model/fontsubstitutions.h"

#include <QFont>

namespace
{
struct Substitution {
    QLatin1String name;
    QLatin1String standIn;
};

// A substitution needs the whole name, hence a row for each weight that is a family of its own.
constexpr Substitution substitutions[] = {
    {QLatin1String("Amino"), QLatin1String("Exo 2")},
    {QLatin1String("Amino Alt"), QLatin1String("Exo")},
    {QLatin1String("Amino Thin"), QLatin1String("Exo 2 Thin")},
    {QLatin1String("Amino ExtraLight"), QLatin1String("Exo 2 ExtraLight")},
    {QLatin1String("Amino Light"), QLatin1String("Exo 2 Light")},
    {QLatin1String("Amino Medium"), QLatin1String("Exo 2 Medium")},
    {QLatin1String("Amino SemiBold"), QLatin1String("Exo 2 SemiBold")},
    {QLatin1String("Amino ExtraBold"), QLatin1String("Exo 2 ExtraBold")},
    {QLatin1String("Amino Black"), QLatin1String("Exo 2 Black")},
    {QLatin1String("DS-DIGI"), QLatin1String("DSEG14 Classic")},
    {QLatin1String("DS-Digital"), QLatin1String("DSEG14 Classic")},
    {QLatin1String("digital-7"), QLatin1String("DSEG14 Modern")},
    {QLatin1String("digital-7 mono"), QLatin1String("DSEG14 Modern")},
    {QLatin1String("digital-7 (mono)"), QLatin1String("DSEG14 Modern")},
    {QLatin1String("digital-7 italic"), QLatin1String("DSEG14 Modern")},
    {QLatin1String("Open 24 Display St"), QLatin1String("DSEG14 Modern Mini")},
    {QLatin1String("scoreboard"), QLatin1String("Handjet")},
    {QLatin1String("forgotten futurist"), QLatin1String("Quantico")},
    {QLatin1String("Fredoka dingbats"), QLatin1String("Noto Sans Symbols 2")},
    {QLatin1String("ITC Franklin Gothic Std"), QLatin1String("Libre Franklin")},
    {QLatin1String("ITC Franklin Gothic Std Book"), QLatin1String("Libre Franklin")},
    {QLatin1String("ITC Franklin Gothic Std Medium"), QLatin1String("Libre Franklin Medium")},
    {QLatin1String("ITC Franklin Gothic Std Demi"), QLatin1String("Libre Franklin SemiBold")},
    {QLatin1String("ITC Franklin Gothic Std Heavy"), QLatin1String("Libre Franklin Black")},
    {QLatin1String("ITC Franklin Gothic Std Condensed"), QLatin1String("Roboto Condensed")},
    {QLatin1String("ITC Franklin Gothic Std Compressed"), QLatin1String("Oswald")},
    {QLatin1String("Lobster 1.3"), QLatin1String("Lobster")},
    {QLatin1String("Lobster 1.4"), QLatin1String("Lobster")},
    {QLatin1String("Raleway Heavy"), QLatin1String("Raleway Black")},
    {QLatin1String("DSEG7 SEGG CHAN"), QLatin1String("DSEG7 7SEGGCHAN")},
    {QLatin1String("DSEG77 SEGG CHAN"), QLatin1String("DSEG7 7SEGGCHAN")},
    {QLatin1String("DSEG7 SEGG CHAN MINI"), QLatin1String("DSEG7 7SEGGCHAN MINI")},
    {QLatin1String("DSEG77 SEGG CHAN MINI"), QLatin1String("DSEG7 7SEGGCHAN MINI")},
    {QLatin1String("Arial"), QLatin1String("Arimo")},
};
} // namespace

void registerFontSubstitutions()
{
    for (const Substitution &substitution : substitutions)
        QFont::insertSubstitution(substitution.name, substitution.standIn);
}
