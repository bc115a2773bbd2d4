#include "tests/app/exportprocess.h"
#include "pictures/picturefile.h"

#include "app/mainwindow.h"
#include "app/startup.h"
#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "canvas/screenpicture.h"
#include "tests/support/files.h"
#include "viewers/customtexteditor.h"

#include <QApplication>
#include <QProcess>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>
#include <QWindow>

#include <cstring>

namespace
{
const char *const mark = "--export-board";
constexpr int patience = 90000; // milliseconds

QString linesOf(const QTextDocument &document)
{
    QString lines;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (int line = 0; line < block.layout()->lineCount(); ++line)
            lines += QString::number(block.layout()->lineAt(line).textStart()) + ' ';
        lines += '/';
    }
    return lines;
}

QString linesOf(const Screen &screen)
{
    QString lines;
    for (const ScreenItem *item : screen.items()) {
        for (const CustomTextEditor *editor : item->findChildren<CustomTextEditor *>())
            lines += item->name() + ": " + linesOf(*editor->document()) + '\n';
    }
    return lines;
}

/// As it comes to the eye, one pixel of the picture for each of the display.
QImage seen(MainWindow &window)
{
    Screen *canvas = window.canvas();
    canvas->goToRenderMode();
    canvas->repaint();
    const QImage whole = window.windowHandle()->screen()->grabWindow(window.winId()).toImage();
    const qreal ratio = whole.devicePixelRatio();
    return whole.copy(QRect(canvas->mapTo(&window, QPoint()) * ratio, canvas->size() * ratio));
}

QImage picture(const QString &path)
{
    return QImage(path).convertToFormat(QImage::Format_RGB32);
}
} // namespace

ExportProcess::Result ExportProcess::run(const QString &layout, const QStringList &variables)
{
    const QTemporaryDir folder;
    QProcess process;
    process.setEnvironment(QProcess::systemEnvironment() + variables);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setWorkingDirectory(folder.path());
    process.start(QCoreApplication::applicationFilePath(), {mark, layout});
    process.waitForFinished(patience);
    const auto file = [&folder](const char *name) {
        return folder.filePath(name);
    };
    return {picture(file("first.png")), picture(file("second.png")), picture(file("window.png")),
            readFile(file("lines.txt")), process.readAll().right(2000)};
}

bool ExportProcess::isStarted(int argc, char **argv)
{
    return argc == 3 && std::strcmp(argv[1], mark) == 0;
}

int ExportProcess::exportBoard(int argc, char **argv)
{
    prepareStart();
    QApplication application(argc, argv);
    MainWindow window(nullptr);
    window.resize(1260, 780);
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        return 1;
    window.openFile(argv[2]);
    QCoreApplication::processEvents();
    PictureFile::save(pictureOf(*window.canvas()), "first.png");
    PictureFile::save(pictureOf(*window.canvas()), "second.png");
    seen(window).save("window.png");
    return writeFile("lines.txt", linesOf(*window.canvas()).toUtf8()) ? 0 : 1;
}
