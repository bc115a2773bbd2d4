#pragma once

#include <QPointer>
#include <QScrollArea>

class QLabel;
class QLineEdit;
class QVBoxLayout;
class ScreenItem;

/// The column in which the active item is edited: its name, and below it the panel that its content builds.
class SettingsEditor : public QScrollArea
{
    Q_OBJECT

public:
    explicit SettingsEditor(QWidget *parent = nullptr);

public slots:
    /// Shows this item's panel; none with null. The item that is shown already keeps its panel.
    void setActiveItem(ScreenItem *item);

    /// Empties the panel of an item that is going.
    void itemDeleted(QObject *sndr);

private:
    void addNameRow();
    void showName(bool isShown);
    void followName(ScreenItem &item);
    void putNameLast();
    void buildPanel(ScreenItem &item);
    void dropContainer();
    void forgetItemOf(const QWidget &container);

    // Never a dead item, since a new one may get its address; and no frame while it is going.
    QPointer<QObject> m_item;
    QPointer<QWidget> m_container;
    QMetaObject::Connection m_ending; // the end of the item, as it reaches itemDeleted()
    QVBoxLayout *m_layout;
    QLabel *m_nameLabel;
    QLineEdit *m_nameEdit;
};
