#pragma once

#include <QComboBox>

/// A combo box that shows in the application's colours which of its choices is the current one, and that it
/// has the focus, without which the wheel leaves it alone.
class ChoiceBox : public QComboBox
{
    Q_OBJECT

public:
    explicit ChoiceBox(QWidget *parent = nullptr);

    void showPopup() override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_hasList = false; // made with the first popup: a panel has boxes that nobody opens
};
