#pragma once

#include <QTextEdit>

/// The editor inside a text item. A class of its own, so that the style sheet can address it; otherwise the
/// toolkit's, but for what a clipboard may bring and for the look of its context menu.
class CustomTextEditor : public QTextEdit
{
    Q_OBJECT

public:
    explicit CustomTextEditor(QWidget *parent = nullptr);

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;
    /// Of what is too much to be shown only the beginning is inserted.
    void insertFromMimeData(const QMimeData *source) override;
};
