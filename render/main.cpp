#include "assets/assets.h"
#include "render/boardrenderer.h"

#include <QApplication>

#include <cstdio>

namespace
{
int fail(const QString &message)
{
    std::fprintf(stderr, "boardwright-render: %s\n", qPrintable(message));
    return EXIT_FAILURE;
}
} // namespace

int main(int argc, char *argv[])
{
    // No window is ever shown, so no display is needed.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    initAssets();
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3)
        return fail(QStringLiteral("usage: boardwright-render LAYOUT.lay PICTURE.png"));
    const QString error = BoardRenderer::render(arguments.at(1), arguments.at(2));
    return error.isNull() ? EXIT_SUCCESS : fail(error);
}
