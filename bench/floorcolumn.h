#pragma once

#include <QPointer>
#include <QScrollArea>

class QVBoxLayout;

/// A column for the panel of a shape, all of it bare widgets that show the same and tell nobody.
class FloorColumn : public QScrollArea
{
public:
    explicit FloorColumn(QWidget *parent = nullptr);

    /// Shows one panel, which is laid out when the event loop runs.
    void buildPanel();

    /// Deletes the panel, if there is one, when the event loop runs.
    void dropPanel();

private:
    QVBoxLayout *m_layout;
    QPointer<QWidget> m_panel;
};
