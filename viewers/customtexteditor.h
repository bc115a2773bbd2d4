#pragma once

#include <QTextEdit>

/// The editor inside a text item. A class of its own, so that the style sheet can address it; otherwise the
/// toolkit's, but for what files and clipboard may bring and for the look of its context menu.
class CustomTextEditor : public QTextEdit
{
    Q_OBJECT

public:
    explicit CustomTextEditor(QWidget *parent = nullptr);

    /// Reaches for nothing outside: pictures that the HTML carries with it are shown, those that it only
    /// names (on a server, in a file) are left out, and so are style sheets.
    QVariant loadResource(int type, const QUrl &name) override;

    /// Scrolls to the start of the text.
    void showBeginning();

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;
    /// Keeps every key while the text is edited, shift alone included: the frame would move, be deleted, or
    /// tell its geometry to the whole selection.
    void keyPressEvent(QKeyEvent *event) override;
    /// A text that is larger than the editor shows its beginning; the toolkit would look for its cursor.
    void showEvent(QShowEvent *event) override;
    /// Of what is too much to be shown only the beginning is inserted.
    void insertFromMimeData(const QMimeData *source) override;
};
