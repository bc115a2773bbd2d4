#pragma once

#include "model/contentviewer.h"

class StretchedPicture;

/// The plan that the contents which show a file have in common: the path and the geometry are all their
/// values. Each kind says what becomes of the file.
class MediaViewer : public ContentViewer
{
    Q_OBJECT

public:
    QVector<QPair<QString, ContentViewer::Parameters::ValueType>> getValueNameTypeDefinition() override;
    void anyValueChanged() override;
    /// Answers "Align" as well, though it is no parameter and changes nothing: on purpose.
    QStringList getEnumsFor(QString enumName) override;
    /// Opens the file when the path is set, be it the same one. A file that cannot be read leaves what is
    /// shown as it is, and the path is stored all the same.
    void setValue(QString key, QVariant value) override;
    void applyGeometry(QRect geometry) override;
    QVariant getMinValue(QString key) override;
    QVariant getMaxValue(QString key) override;
    void buildSettingsPanel(QWidget *host) override;

    /// Asks the user for the file. Cancelling stores an empty path: on purpose. The item may be gone when
    /// this returns.
    void chooseFile();

protected:
    /// Takes position and size from the parent frame, from itself without one.
    MediaViewer(const QString &typeName, QWidget *parent);

    /// The path was set.
    virtual void openFile(const QString &path) = 0;

    /// Gives the item the size of what is shown (px), width and height each held to the screen's on its own.
    /// An item that is being read gets its size from its own values instead.
    void takeSize(QSize size);

    /// Writes to the debug log which file the item leaves out, and the limit that is the reason. Nothing
    /// without a reason.
    void tellOfLimit(const QString &path, const QString &reason) const;

    /// Paints the whole item with the picture.
    void paintPicture(StretchedPicture &picture);

    void beginReading() override;
    void endReading() override;

private:
    bool m_isReading = false;
};
