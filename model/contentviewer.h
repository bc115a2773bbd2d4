#pragma once

#include <QJsonObject>
#include <QMap>
#include <QPair>
#include <QStringList>
#include <QVariant>
#include <QVector>
#include <QWidget>

/// What an item shows: a widget described by named, typed values in one map. A kind of content derives from
/// this class and fills in the pure operations; some of those have a body here that the kinds share.
/// Canvas, panels, clipboard and files see nothing but these operations.
class ContentViewer : public QWidget
{
    Q_OBJECT

public:
    /// Holder of the vocabulary of parameters.
    struct Parameters {
        /// The type of a parameter's value; the numbers are stable.
        enum ValueType { Int, Text, Enum, Font, Check, Color, FilePath };
    };

    using Definition = QPair<QString, Parameters::ValueType>;

    /// The parent, when it is a frame (a ContentHost), takes the content and owns it.
    explicit ContentViewer(QWidget *parent);

    /// The parameters in the order in which panels and files visit them. "Type" is not among them.
    virtual QVector<QPair<QString, ContentViewer::Parameters::ValueType>> getValueNameTypeDefinition() = 0;

    /// Applies the whole value map anew: geometry to the frame, everything else to the content.
    /// The shared body does the geometry, each key in turn so that the frame's clamps see every step.
    virtual void anyValueChanged() = 0;

    /// The allowed values of an Enum parameter in display order; empty for any other name.
    virtual QStringList getEnumsFor(QString enumName);

    /// Replaces the whole value map (keys that are not in it are gone) and applies it.
    virtual void setValues(QMap<QString, QVariant> values);

    /// A copy of the value map, "Type" included.
    virtual QMap<QString, QVariant> getValues();

    /// Stores the value, whether or not the kind defines the key, and applies the map. Emits nothing itself:
    /// what listeners hear comes from the frame's changed geometry.
    virtual void setValue(QString key, QVariant value);

    /// The stored value; invalid when there is none.
    virtual QVariant getValue(QString key);

    /// Takes over the frame's geometry (canvas pixels) and announces it through valueChanged().
    virtual void applyGeometry(QRect geometry) = 0;

    /// Ends editing in place, for kinds that have it.
    virtual void endEditing();

    /// The lower limit of a parameter; invalid when there is none.
    virtual QVariant getMinValue(QString key) = 0;

    /// The upper limit of a parameter as frame and canvas stand now; invalid when there is none.
    virtual QVariant getMaxValue(QString key) = 0;

    /// Builds the editors of this content into the host, which owns them.
    virtual void buildSettingsPanel(QWidget *host) = 0;

    /// Reads every defined parameter from the object; one that is missing there becomes an invalid value.
    /// A geometry that lies on the screen is taken as it is stored, whatever the frame's clamps would make of
    /// its values on their way.
    /// False when the value map lacked a defined parameter, which is then skipped.
    bool fromJson(QJsonObject object);

    /// "Type" and every defined parameter. A parameter that the map lacks is added to it as an invalid value
    /// and written as null.
    QJsonObject toJson();

    /// Accepts the event and does nothing else. Public, since the frame hands its double clicks on.
    void mouseDoubleClickEvent(QMouseEvent *event) override;

signals:
    /// A value was changed by something else than setValue() and setValues().
    void valueChanged(QString, QVariant);

public slots:
    void newGeometrySlot(QRect geometry);

protected:
    bool event(QEvent *event) override;

    /// Starts the value map off with the type name and the geometry of the frame (this widget's own without
    /// one).
    void initValues(const QString &typeName);

    /// Brackets the many values of fromJson(), for kinds that apply them better at once.
    virtual void beginReading();
    virtual void endReading();

    /// Takes what is being edited in place into the map, without ending it: values are about to be written.
    virtual void commitEditing();

    /// Writes the four geometry values into the map, without a signal.
    void storeGeometry(const QRect &geometry);

    QMap<QString, QVariant> m_values;

private:
    void placeHost(const QJsonObject &object);
};
