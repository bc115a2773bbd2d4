#pragma once

#include "model/contentviewer.h"

#include <QVariant>
#include <QWidget>

/// Edits one named value. It knows the value and its key and nothing of the item behind them: the limits are
/// asked for by signal, an edit is told by signal.
class VariableEdit : public QWidget
{
    Q_OBJECT

public:
    /// Shows the value and adopts the key.
    virtual void setValue(QString key, QVariant value) = 0;

    /// The key under which edits are told, unless an editor says otherwise.
    virtual QString getKey() = 0;

    virtual QVariant getValue() = 0;

    /// The kind of value that is edited: a ContentViewer::Parameters::ValueType as an int.
    virtual int getType() = 0;

    // The order of the signals is part of the interface.
signals:
    void valueEdited(QString key, QVariant value);

    /// Asks whoever is connected directly for the limit of the key; an invalid answer means no limit.
    QVariant getMin(QString key);
    QVariant getMax(QString key);

protected:
    /// The class name is what the style sheet addresses the editor by.
    VariableEdit(const char *className, QWidget *parent);
};
