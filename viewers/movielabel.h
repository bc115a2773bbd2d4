#pragma once

#include <QLabel>

/// A label that paints its movie's frame over its whole size, and of that only what is exposed: a label of
/// the toolkit would first make a copy as large as itself.
class MovieLabel : public QLabel
{
    Q_OBJECT

public:
    explicit MovieLabel(QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;
};
