#include "model/applicationfonts.h"

#include "assets/fontindex.h"
#include "assets/fontsresource.h"
#include "model/boardfonts.h"
#include "model/fontconfigrules.h"
#include "model/fontfamilies.h"

#include <QDebug>
#include <QDir>
#include <QFont>
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

void loadFiles(const QStringList &paths)
{
    for (const QString &path : paths)
        FontFamilies::append(QFontDatabase::applicationFontFamilies(addFont(path)));
}

QStringList filesIn(const QString &folder)
{
    const QDir dir(folder);
    QStringList paths;
    const QStringList names = dir.entryList(QDir::Files);
    for (const QString &name : names)
        paths.append(dir.absoluteFilePath(name));
    return paths;
}

/// The bundled files of the fonts that letters with these names are shown in, as they lie in their folder: of
/// two files with one face the last one wins.
QStringList filesFor(const QStringList &names)
{
    QStringList files = FontIndex::filesOf(BoardFonts::plainFamily());
    for (const QString &name : names) {
        files.append(FontIndex::filesOf(name));
        const QStringList standIns = QFont::substitutes(name);
        for (const QString &standIn : standIns)
            files.append(FontIndex::filesOf(standIn));
    }
    files.removeDuplicates();
    files.sort();
    return files;
}

void loadBundledAndLocal(const QStringList &bundled)
{
    // Fonts added to a database that was never asked are registered a second time at the first text.
    QFontDatabase().families();
    loadFiles(bundled);
    loadFontFolder(QStringLiteral("./fonts/"));
}

void loadFonts(const QStringList &bundled)
{
    loadBundledAndLocal(bundled);
    if (FontconfigRules::hideNamesakes()) {
        // The toolkit forgets fonts of the desktop only together with all others.
        QFontDatabase::removeAllApplicationFonts();
        FontconfigRules::forgetLoaded();
        loadBundledAndLocal(bundled);
    }
    BoardFonts::settle();
    qDebug() << "Font families:" << FontFamilies::list() << "bundled files missing:" << missingFontFiles();
}
} // namespace

void loadFontFolder(const QString &folder)
{
    loadFiles(filesIn(folder));
}

void loadApplicationFonts()
{
    loadFonts(filesIn(QStringLiteral(":/assets/fonts/")));
}

void loadFontsNamed(const QStringList &names)
{
    loadFonts(filesFor(names));
}
