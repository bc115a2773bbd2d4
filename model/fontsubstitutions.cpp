#include "model/fontsubstitutions.h"

#include <QFont>

namespace
{
struct Substitution {
    const char *name;
    const char *standIn;
};

// A substitution needs the whole name, hence a row for each weight that is a family of its own.
constexpr Substitution substitutions[] = {
    {"Amino", "Exo 2"},
    {"Amino Alt", "Exo"},
    {"Amino Thin", "Exo 2 Thin"},
    {"Amino ExtraLight", "Exo 2 ExtraLight"},
    {"Amino Light", "Exo 2 Light"},
    {"Amino Medium", "Exo 2 Medium"},
    {"Amino SemiBold", "Exo 2 SemiBold"},
    {"Amino ExtraBold", "Exo 2 ExtraBold"},
    {"Amino Black", "Exo 2 Black"},
    {"DS-DIGI", "DSEG14 Classic"},
    {"DS-Digital", "DSEG14 Classic"},
    {"digital-7", "DSEG14 Modern"},
    {"digital-7 mono", "DSEG14 Modern"},
    {"digital-7 (mono)", "DSEG14 Modern"},
    {"digital-7 italic", "DSEG14 Modern"},
    {"Open 24 Display St", "DSEG14 Modern Mini"},
    {"scoreboard", "Handjet"},
    {"forgotten futurist", "Quantico"},
    {"Fredoka dingbats", "Noto Sans Symbols 2"},
    {"ITC Franklin Gothic Std", "Libre Franklin"},
    {"ITC Franklin Gothic Std Book", "Libre Franklin"},
    {"ITC Franklin Gothic Std Medium", "Libre Franklin Medium"},
    {"ITC Franklin Gothic Std Demi", "Libre Franklin SemiBold"},
    {"ITC Franklin Gothic Std Heavy", "Libre Franklin Black"},
    {"ITC Franklin Gothic Std Condensed", "Roboto Condensed"},
    {"ITC Franklin Gothic Std Compressed", "Oswald"},
    {"Lobster 1.3", "Lobster"},
    {"Lobster 1.4", "Lobster"},
    {"Raleway Heavy", "Raleway Black"},
    {"DSEG7 SEGG CHAN", "DSEG7 7SEGGCHAN"},
    {"DSEG77 SEGG CHAN", "DSEG7 7SEGGCHAN"},
    {"DSEG7 SEGG CHAN MINI", "DSEG7 7SEGGCHAN MINI"},
    {"DSEG77 SEGG CHAN MINI", "DSEG7 7SEGGCHAN MINI"},
    {"Arial", "Arimo"},
};
} // namespace

void registerFontSubstitutions()
{
    for (const Substitution &substitution : substitutions)
        QFont::insertSubstitution(QLatin1String(substitution.name), QLatin1String(substitution.standIn));
}
