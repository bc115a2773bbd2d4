#include "fuzz/fuzztarget.h"

#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "canvas/screenpicture.h"
#include "viewers/animationviewer.h"
#include "viewers/imagevieweritem.h"

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QMovie>
#include <QTemporaryDir>

#include <cstdlib>

namespace
{
constexpr int maximumFrames = 12;

void ignoreMessages(QtMsgType, const QMessageLogContext &, const QString &) {}

const QString &mediaPath()
{
    static const QTemporaryDir folder;
    static const QString path = folder.filePath(QStringLiteral("media"));
    return path;
}

void write(const std::uint8_t *data, std::size_t size)
{
    QFile file(mediaPath());
    file.remove(); // a file that is cut short and written anew is flushed to the disk
    const auto length = qint64(size);
    if (!file.open(QIODevice::WriteOnly) ||
        file.write(reinterpret_cast<const char *>(data), length) != length)
        std::abort();
}

template <class Content>
ContentViewer *addItem(Screen &screen)
{
    auto *frame = new ScreenItem(&screen);
    frame->resize(20, 10);
    auto *content = new Content(frame);
    content->setValue(QStringLiteral("Path"), mediaPath());
    if (frame->width() > screen.width() || frame->height() > screen.height())
        std::abort();
    return content;
}

void play(QMovie &movie)
{
    for (int i = 0; i < maximumFrames && movie.jumpToNextFrame(); ++i) {
        if (movie.currentPixmap().size() != movie.scaledSize())
            std::abort();
    }
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
    return 0;
}

/// Any bytes are shown as a picture and played as a movie. Neither is ever larger than the screen, and the
/// frames of a movie follow the size of its item.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    write(data, size);
    Screen screen;
    screen.setWidgth(64);
    screen.setHeight(48);
    addItem<ImageViewerItem>(screen);
    const ContentViewer *animation = addItem<AnimationViewer>(screen);
    pictureOf(screen);
    if (QMovie *movie = animation->findChild<QLabel *>()->movie())
        play(*movie);
    pictureOf(screen);
    return 0;
}
