#include "viewers/animationviewer.h"

#include "pictures/mediafile.h"
#include "viewers/movielabel.h"

#include <QIODevice>
#include <QLayout>
#include <QMovie>

namespace
{
/// What a movie leaves to everything else between two frames, in milliseconds.
constexpr int shortestRest = 5;
} // namespace

AnimationViewer::AnimationViewer(QWidget *parent)
    : MediaViewer(QStringLiteral("Animation Viewer"), parent),
      m_label(new MovieLabel(this))
{
    m_label->move(0, 0);
    m_label->show();
    m_rest.setSingleShot(true);
    connect(&m_rest, &QTimer::timeout, this, &AnimationViewer::pauseOrResume);
}

AnimationViewer::~AnimationViewer() = default;

bool AnimationViewer::claim(const QMovie &movie, QSize frame)
{
    return m_claim.take(MediaFile::bytesBeside(movie) + MediaFile::bytesOf(frame));
}

void AnimationViewer::openFile(const QString &path)
{
    QString reason;
    std::unique_ptr<QMovie> movie = MediaFile::readMovie(path, &reason);
    if (!movie)
        return tellOfLimit(path, reason);
    movie->start();
    const QSize frame = movie->currentPixmap().size();
    if (frame.isEmpty())
        return;
    if (!claim(*movie, frame))
        return tellOfLimit(path, QStringLiteral("all media together take too much memory"));
    m_label->setMovie(movie.get());
    m_movie = std::move(movie);
    m_ownSize = frame;
    m_frameSize = frame;
    connect(m_movie.get(), &QMovie::frameChanged, this, &AnimationViewer::restIfHurried);
    connect(m_movie.get(), &QMovie::finished, this, &AnimationViewer::playAgain);
    takeSize(frame);
    layOut();
    fitMovie();
    // The first frame is there already, in its own size.
    startAnewIfResized();
    pauseOrResume();
}

void AnimationViewer::layOut()
{
    // A frame that was not shown yet may not have given its content a size.
    if (QLayout *layout = parentWidget() ? parentWidget()->layout() : nullptr)
        layout->activate();
}

void AnimationViewer::startAnew()
{
    m_frameSize = m_movie->scaledSize();
    m_movie->stop();
    // The movie's own way back looks for the beginning where it has stopped reading.
    m_movie->device()->seek(0);
    m_movie->start();
}

void AnimationViewer::startAnewIfResized()
{
    if (m_movie->scaledSize() != m_frameSize)
        startAnew();
}

void AnimationViewer::fitMovie()
{
    m_label->move(0, 0);
    m_label->resize(size());
    if (!m_movie)
        return;
    // A frame stretched to nothing would end the movie. One too large is stretched by the label.
    scaleFrames(size().expandedTo(QSize(1, 1)));
    // No frame in the new size will follow a single one.
    if (m_movie->state() == QMovie::NotRunning)
        startAnewIfResized();
}

void AnimationViewer::scaleFrames(QSize size)
{
    if (MediaFile::isWithin(size, MediaFile::maximumFrameArea) && claim(*m_movie, size))
        m_movie->setScaledSize(size);
    else if (claim(*m_movie, m_ownSize))
        m_movie->setScaledSize(QSize());
}

void AnimationViewer::playAgain()
{
    // Also a file that is to be played a few times only. A single frame has nothing to play.
    if (m_movie->currentFrameNumber() > 0)
        startAnew();
    else
        startAnewIfResized();
}

void AnimationViewer::restIfHurried()
{
    if (m_movie->nextFrameDelay() >= shortestRest)
        return;
    m_rest.start(shortestRest);
    pauseOrResume();
}

void AnimationViewer::pauseOrResume()
{
    const bool isToPause = m_isHidden || m_rest.isActive();
    const QMovie::MovieState state = m_movie ? m_movie->state() : QMovie::NotRunning;
    if (state == (isToPause ? QMovie::Running : QMovie::Paused))
        m_movie->setPaused(isToPause);
}

void AnimationViewer::resizeEvent(QResizeEvent *event)
{
    Q_UNUSED(event)
    fitMovie();
}

void AnimationViewer::showEvent(QShowEvent *event)
{
    m_isHidden = false;
    pauseOrResume();
    MediaViewer::showEvent(event);
}

void AnimationViewer::hideEvent(QHideEvent *event)
{
    // Nobody sees it; nothing is decoded until it is in view again.
    m_isHidden = true;
    pauseOrResume();
    MediaViewer::hideEvent(event);
}
