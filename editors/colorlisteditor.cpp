#include "editors/colorlisteditor.h"

#include <QVariant>

ColorListEditor::ColorListEditor(QWidget *parent) : QComboBox(parent)
{
    const QStringList names = QColor::colorNames();
    for (const QString &name : names) {
        addItem(name, QColor(name));
        setItemData(count() - 1, QColor(name), Qt::DecorationRole);
    }
    connect(this, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this] { emit colorChanged(color()); });
}

QColor ColorListEditor::color() const
{
    return currentData().value<QColor>();
}

void ColorListEditor::setColor(const QColor &color)
{
    setCurrentIndex(findData(color));
}
