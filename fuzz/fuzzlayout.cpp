#include "fuzz/fuzztarget.h"

#include "assets/assets.h"
#include "canvas/screen.h"
#include "canvas/screenpicture.h"

#include <QApplication>
#include <QJsonDocument>

#include <cstdlib>

namespace
{
void ignoreMessages(QtMsgType, const QMessageLogContext &, const QString &) {}

QJsonObject reloaded(Screen &screen, const QJsonObject &layout)
{
    screen.loadLayout(layout);
    return screen.saveLayout();
}
} // namespace

// The fuzzer says what the parameters look like.
// NOLINTNEXTLINE(readability-non-const-parameter)
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("QT_QPA_PLATFORMTHEME");
    qInstallMessageHandler(ignoreMessages);
    static QApplication application(*argc, *argv);
    initAssets();
    return 0;
}

/// Any bytes are loaded as a layout and painted. A first load may clamp items; after it nothing changes any
/// more.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char *>(data), int(size));
    Screen screen;
    const QJsonObject first = reloaded(screen, QJsonDocument::fromJson(bytes).object());
    const QJsonObject second = reloaded(screen, first);
    if (reloaded(screen, second) != second)
        std::abort();
    if (screen.width() <= 2000 && screen.height() <= 2000)
        pictureOf(screen);
    QCoreApplication::processEvents();
    return 0;
}
