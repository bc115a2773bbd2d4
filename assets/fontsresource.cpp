#include "assets/fontsresource.h"

#include <QDir>

void initFontsResource()
{
    Q_INIT_RESOURCE(fonts);
}

int missingFontFiles()
{
    return BOARDWRIGHT_MISSING_FONTS;
}
