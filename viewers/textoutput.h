#pragma once

#include "model/contentviewer.h"
#include "pictures/textalignment.h"

#include <QStringList>

class CustomTextEditor;

/// The content of a text item: rich text, set and placed by its parameters, and bound to a data field of the
/// game, which whoever shows the layout puts in its place. Edited in place after a double click.
class TextOutput : public ContentViewer
{
    Q_OBJECT

public:
    /// Takes position and size from the parent frame, from itself without one.
    explicit TextOutput(QWidget *parent);

    QVector<QPair<QString, ContentViewer::Parameters::ValueType>> getValueNameTypeDefinition() override;
    void anyValueChanged() override;
    QStringList getEnumsFor(QString enumName) override;
    /// Takes the keys of the six alignment buttons as well, and the value of a press does not matter. A value
    /// of another type than the parameter's reads as 0, false, an invalid colour or an empty text.
    void setValue(QString key, QVariant value) override;
    /// Geometry and alignment as they are, as numbers and booleans; everything else as a string, whatever its
    /// stored type, and empty when there is nothing. Schedules a repaint at every reading: on purpose.
    QVariant getValue(QString key) override;
    void applyGeometry(QRect geometry) override;
    void endEditing() override;
    QVariant getMinValue(QString key) override;
    QVariant getMaxValue(QString key) override;
    void buildSettingsPanel(QWidget *host) override;
    /// Starts editing in place, unless the text is too much to be shown whole.
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

public slots:
    void ValignTop();
    void ValignMiddle();
    void ValignBottom();

protected:
    /// Nothing: the editor inside paints the text.
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void beginReading() override;
    void endReading() override;
    void commitEditing() override;

private:
    void buildEditor();
    bool isEditing() const;
    void startEditing();
    void styleEmptyText();
    void storeShownText();
    void lodgeEditor(QWidget *parent);
    void tellEdit(bool isModified);
    void setAlignment(int code);
    void adoptCode(int code);
    void announceAlignment();
    void press(const TextAlignment::Button &button);
    bool isPressed(const TextAlignment::Button &button) const;
    void setText(const QVariant &text);
    void store(const QString &key, const QVariant &value);
    void showText();
    void dressText();
    void dressWithoutCode();
    void format(const QString &key);
    void applyFormat(const QStringList &keys);
    void finishFormat();
    void placeText();
    void placeAt(int vertical);

    CustomTextEditor *m_editor = nullptr;
    int m_vertical = TextAlignment::Middle;
    int m_horizontal = TextAlignment::Center;
    bool m_isReading = false;
    int m_codeBefore = 0; // when reading began
    bool m_isAnnouncing = false;
    bool m_isShownWhole = true;
};
