#include "assets/assets.h"

#include "assets/fontsresource.h"

#include <QDir>

void initAssets()
{
    Q_INIT_RESOURCE(assets);
    initFontsResource();
}
