#include "model/applicationfonts.h"

#include "assets/fontsresource.h"
#include "model/boardfonts.h"
#include "model/fontconfigrules.h"
#include "model/fontfamilies.h"

#include <QDebug>
#include <QDir>
#include <QFontDatabase>
#include <QResource>

namespace
{
// Adding a resource by its path copies it; bundled fonts are stored uncompressed to be used where they lie.
int addFont(const QString &path)
{
    if (!path.startsWith(QLatin1Char(':')))
        return QFontDatabase::addApplicationFont(path);
    const QResource file(path);
    if (file.compressionAlgorithm() != QResource::NoCompression)
        return QFontDatabase::addApplicationFont(path);
    const auto *data = reinterpret_cast<const char *>(file.data());
    return QFontDatabase::addApplicationFontFromData(QByteArray::fromRawData(data, int(file.size())));
}

void loadFontFolders()
{
    loadFontFolder(QStringLiteral(":/assets/fonts/"));
    loadFontFolder(QStringLiteral("./fonts/"));
}

/// The toolkit forgets fonts of the desktop only together with all others.
void loadFontFoldersAnew()
{
    QFontDatabase::removeAllApplicationFonts();
    FontconfigRules::forgetLoaded();
    QFontDatabase().families();
    loadFontFolders();
}
} // namespace

void loadFontFolder(const QString &folder)
{
    const QDir dir(folder);
    const QStringList names = dir.entryList(QDir::Files);
    for (const QString &name : names) {
        const int id = addFont(dir.absoluteFilePath(name));
        FontFamilies::append(QFontDatabase::applicationFontFamilies(id));
    }
}

void loadApplicationFonts()
{
    // Fonts added to a database that was never asked are registered a second time at the first text.
    QFontDatabase().families();
    loadFontFolders();
    if (FontconfigRules::hideNamesakes())
        loadFontFoldersAnew();
    BoardFonts::settle();
    qDebug() << "Font families:" << FontFamilies::list() << "bundled files missing:" << missingFontFiles();
}
