#pragma once

#include "model/contentviewer.h"

#include <QList>
#include <QPointer>
#include <QTreeWidget>

class QGridLayout;
class VariableEdit;

/// The property tree of one content: categories that open and close, with a value editor for each parameter.
/// Edits go to the content, through its frame where it has one, and changes of the content go to the editors.
class PropertyPanel : public QTreeWidget
{
    Q_OBJECT

public:
    /// Lays itself out in the host, which owns it.
    PropertyPanel(ContentViewer *content, QWidget *host);

    /// Gives the editor the parameter: its current value first, then the connections both ways.
    void bind(VariableEdit *editor, const QString &key);

    /// Gives the labels of the editors one width, so that what is edited lines up.
    static void alignLabels(const QList<VariableEdit *> &editors);

    /// Adds a category and answers the grid for its rows.
    QGridLayout *addCategory(const QString &text);

    /// Lets the tab key walk the finished panel from top to bottom, whatever the order in which it was made.
    void orderFocus();

    /// Adds the category "Area (px)" with the editors of the four geometry values.
    void addAreaCategory();

private:
    void connectLimits(VariableEdit *editor);
    QTreeWidgetItem *addRow(QTreeWidgetItem *category);
    QObject *announcer() const;

private slots:
    void editValue(const QString &key, const QVariant &value);
    void showValue(QString key, QVariant value);

private:
    QPointer<ContentViewer> m_content;
    QList<VariableEdit *> m_editors;
};
