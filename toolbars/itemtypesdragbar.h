#pragma once

#include <QPair>
#include <QVector>
#include <QWidget>

class QHBoxLayout;

/// The row of large buttons along the top of the window: a click asks for a new item of the button's kind.
class ItemTypesDragBar : public QWidget
{
    Q_OBJECT

public:
    explicit ItemTypesDragBar(QWidget *parent = nullptr);

    /// Adds a button for each pair of type name and path of the icon, in order, behind those that are there.
    void addItemTypes(const QVector<QPair<QString, QString>> &types);

signals:
    void signalNewItem(QString str);

private:
    void addButton(const QString &type, const QString &iconPath);

    QHBoxLayout *m_layout;
};
