#pragma once

#include "editors/variableedit.h"

#include <QStringList>

/// A content that notes the values that are read.
template <class Content>
class Watched : public Content
{
public:
    using Content::Content;

    QVariant getValue(QString key) override
    {
        readings << key;
        return Content::getValue(key);
    }

    QStringList readings;
};

/// The editor in a panel that answers to the key; there has to be one.
inline VariableEdit *editorFor(const QString &key, const QWidget &panel)
{
    const auto edits = panel.findChildren<VariableEdit *>();
    for (VariableEdit *edit : edits) {
        if (edit->getKey() == key)
            return edit;
    }
    qFatal("no editor for %s", qPrintable(key));
}
