#pragma once

#include <QWidget>

class QLabel;
class QTreeWidget;
class QTreeWidgetItem;

/// The header of a category in a property tree: its name and an arrow. A press, or Space and Enter, opens and
/// closes the category. To screen readers it is a button that can be open.
class CategoryButton : public QWidget
{
    Q_OBJECT

public:
    /// The item, which belongs to the tree, is opened at once. The tree has to outlive the button, as it does
    /// when it shows the button as the item's widget.
    CategoryButton(QString text, QTreeWidget *tree, QTreeWidgetItem *item);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private slots:
    void ButtonPressed();

private:
    class Accessible;

    void showState();

    QTreeWidgetItem *m_item;
    QLabel *m_icon;
};
