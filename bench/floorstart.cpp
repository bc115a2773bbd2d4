// The least that an editor like this one does at its start, done plainly: the style sheet, every bundled font
// added by its path, a menu bar and some sixty ordinary widgets.
#include "bench/floorapplication.h"

#include <QApplication>
#include <QComboBox>
#include <QGridLayout>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QSpinBox>

namespace
{
QWidget *ordinaryWidgets()
{
    auto *host = new QWidget;
    auto *layout = new QGridLayout(host);
    for (int row = 0; row < 20; ++row) {
        auto *box = new QComboBox;
        box->addItem(QStringLiteral("Choice %1").arg(row));
        layout->addWidget(box, row, 0);
        layout->addWidget(new QSpinBox, row, 1);
        layout->addWidget(new QPushButton(QStringLiteral("Button %1").arg(row)), row, 2);
    }
    return host;
}
} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    dressFloor(application);
    QMainWindow window;
    window.menuBar()->addMenu(QStringLiteral("File"))->addAction(QStringLiteral("Exit"));
    window.setCentralWidget(ordinaryWidgets());
    window.showMaximized();
    return QApplication::exec();
}
