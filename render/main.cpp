#include "model/applicationfonts.h"
#include "model/applicationstyle.h"
#include "model/fontsubstitutions.h"
#include "render/boardrenderer.h"

#include <QApplication>

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

int fail(const QString &message)
{
    std::fprintf(stderr, "boardwright-render: %s\n", qPrintable(onOneLine(message)));
    return EXIT_FAILURE;
}
} // namespace

int main(int argc, char *argv[])
{
    qInstallMessageHandler(keepLogQuiet);
    // No window is ever shown, so no display is needed.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The theme of a desktop could still ask for one.
    qunsetenv("QT_QPA_PLATFORMTHEME");
    QApplication application(argc, argv);
    // As in the editor, whose picture this is to be.
    applyApplicationStyle();
    loadApplicationFonts();
    registerFontSubstitutions();
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3)
        return fail(QStringLiteral("usage: boardwright-render LAYOUT.lay PICTURE.png"));
    const QString error = BoardRenderer::render(arguments.at(1), arguments.at(2));
    return error.isNull() ? EXIT_SUCCESS : fail(error);
}
