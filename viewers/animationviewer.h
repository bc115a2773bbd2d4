#pragma once

#include "pictures/memoryclaim.h"
#include "viewers/mediaviewer.h"

#include <QSize>
#include <QTimer>

#include <memory>

class QLabel;
class QMovie;

/// The content of an animation item: it plays a movie file, stretched over the item, for as long as it lives.
class AnimationViewer : public MediaViewer
{
    Q_OBJECT

public:
    explicit AnimationViewer(QWidget *parent);
    ~AnimationViewer() override;

protected:
    void openFile(const QString &path) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void layOut();
    void fitMovie();
    bool claim(const QMovie &movie, QSize frame);
    void scaleFrames(QSize size);
    void startAnew();
    void startAnewIfResized();
    void playAgain();
    void restIfHurried();
    void pauseOrResume();

    QLabel *m_label = nullptr;
    std::unique_ptr<QMovie> m_movie;
    QSize m_ownSize;     // of the movie's frames
    QSize m_frameSize;   // that the movie was started with, not valid for its own
    MemoryClaim m_claim; // of a frame, and of what the movie's reader keeps
    QTimer m_rest;       // runs while a movie that leaves the window no time is held up
    bool m_isHidden = false;
};
