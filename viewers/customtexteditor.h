#pragma once

#include "pictures/carriedpictures.h"

#include <QSharedPointer>
#include <QTextEdit>

class QTextDocumentFragment;

/// The editor inside a text item. A class of its own, so that the style sheet can address it; otherwise the
/// toolkit's, but for what files and clipboard may bring and for the look of its context menu.
class CustomTextEditor : public QTextEdit
{
    Q_OBJECT

public:
    explicit CustomTextEditor(QWidget *parent = nullptr);

    /// Replaces the document's content, with new room for pictures. Of what is too much only the beginning is
    /// shown, as plain text; answers whether all of it is.
    bool showHtml(const QString &html);

    /// Only what the text carries with it (CarriedPictures).
    QVariant loadResource(int type, const QUrl &name) override;

    /// Scrolls to the start of the text.
    void showBeginning();

protected:
    /// The text's own letters do not follow those of the interface.
    void changeEvent(QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    /// Keeps every key while the text is edited, shift alone included: the frame would move, be deleted, or
    /// tell its geometry to the whole selection.
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    /// With one press selected words are dragged once.
    void mouseMoveEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    /// A text that is larger than the editor shows its beginning; the toolkit would look for its cursor.
    void showEvent(QShowEvent *event) override;
    /// Of what is too much for one text only the beginning is inserted, as plain text: as much as there is
    /// room.
    void insertFromMimeData(const QMimeData *source) override;

private:
    void insertBeginning(const QMimeData &source);
    QSharedPointer<QTextDocument> withoutSelection() const;
    bool hasRoomFor(const QTextDocumentFragment &addition) const;

    QPoint m_pressPosition;
    bool m_hasDragged = false; // with the latest press
    CarriedPictures m_pictures;
};
