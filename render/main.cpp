#include "assets/assets.h"
#include "model/boardfonts.h"
#include "model/fontsubstitutions.h"
#include "render/boardrenderer.h"

#include <QGuiApplication>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace
{
/// Standard error carries nothing but the renderer's own line: what the toolkit and the items log stays out
/// of it.
void keepLogQuiet(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    Q_UNUSED(context)
    if (type == QtFatalMsg)
        std::fprintf(stderr, "boardwright-render: %s\n", qPrintable(message));
}

/// File names may hold line ends and other control characters.
QString onOneLine(QString message)
{
    std::replace_if(
        message.begin(), message.end(),
        [](QChar character) { return character.category() == QChar::Other_Control; }, QLatin1Char('?'));
    return message;
}

/// A picture has the pixels of its board, whatever the user's desktop is scaled by.
void clearScales()
{
    for (const char *name : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_AUTO_SCREEN_SCALE_FACTOR",
                             "QT_DEVICE_PIXEL_RATIO", "QT_ENABLE_HIGHDPI_SCALING", "QT_FONT_DPI"})
        qunsetenv(name);
}

int fail(const QString &message)
{
    std::fprintf(stderr, "boardwright-render: %s\n", qPrintable(onOneLine(message)));
    return EXIT_FAILURE;
}
} // namespace

int main(int argc, char *argv[])
{
    qInstallMessageHandler(keepLogQuiet);
    // No window is ever shown, so no display is needed, and no scale of one.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The theme of a desktop could still ask for one.
    qunsetenv("QT_QPA_PLATFORMTHEME");
    clearScales();
    BoardFonts::clearVariables();
    QGuiApplication application(argc, argv);
    initAssets();
    registerFontSubstitutions();
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3)
        return fail(QStringLiteral("usage: boardwright-render LAYOUT.lay PICTURE.png"));
    const QString error = BoardRenderer::render(arguments.at(1), arguments.at(2));
    const int code = error.isNull() ? EXIT_SUCCESS : fail(error);
    // The file is written. To take fonts and pictures apart would take longer than to leave them to the
    // system.
    std::fflush(nullptr);
    std::_Exit(code);
}
