#include "viewers/textpanel.h"

#include "editors/enumedit.h"
#include "editors/fontcoloredit.h"
#include "editors/fontfamilyedit.h"
#include "editors/intedit.h"
#include "editors/propertypanel.h"
#include "editors/styledcheckedit.h"
#include "pictures/textalignment.h"
#include "pictures/textkeys.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>

namespace
{
constexpr int buttonSide = 30;   // pixels
constexpr int buttonSpacing = 5; // pixels
constexpr int groupSpacing = 15; // pixels
constexpr int sizeWidth = 70;    // pixels

/// A button with the three images of one name.
StyledCheckEdit *addButton(PropertyPanel &panel, const QString &key, const QString &image)
{
    auto *button = new StyledCheckEdit(&panel);
    const QString path = QStringLiteral(":/assets/style/textSettingsStyle/%1_%2.png");
    button->setImages(path.arg(image, QStringLiteral("checked")),
                      path.arg(image, QStringLiteral("unchecked")),
                      path.arg(image, QStringLiteral("unchecked_hover")));
    button->setFixedWidth(buttonSide);
    panel.bind(button, key);
    return button;
}

StyledCheckEdit *addButton(PropertyPanel &panel, const TextAlignment::Button &button, const QString &image)
{
    return addButton(panel, QLatin1String(button.key), image);
}

QHBoxLayout *addRow(QGridLayout &grid)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(buttonSpacing);
    grid.addLayout(row, grid.rowCount(), 0, 1, 2);
    return row;
}

EnumEdit *addType(PropertyPanel &panel, ContentViewer &text)
{
    auto *type = new EnumEdit(&panel);
    type->setAvailableValues(text.getEnumsFor(TextKeys::textType()));
    panel.bind(type, TextKeys::textType());
    type->setLabelText(QCoreApplication::translate("TextPanel", "Type"));
    PropertyPanel::alignLabels({type});
    return type;
}

void addFont(PropertyPanel &panel, QGridLayout &grid)
{
    auto *font = new FontFamilyEdit(&panel);
    panel.bind(font, TextKeys::font());
    auto *size = new IntEdit(&panel);
    panel.bind(size, TextKeys::size());
    size->setLabelText(QString());
    size->setFixedWidth(sizeWidth);
    grid.addWidget(font, 1, 0);
    grid.addWidget(size, 1, 1);
}

void addStyle(PropertyPanel &panel, QGridLayout &grid)
{
    QHBoxLayout *row = addRow(grid);
    row->addWidget(addButton(panel, TextKeys::autoSize(), QStringLiteral("Auto")));
    row->addWidget(addButton(panel, TextKeys::bold(), QStringLiteral("Bold")));
    row->addWidget(addButton(panel, TextKeys::italic(), QStringLiteral("Italic")));
    row->addWidget(addButton(panel, TextKeys::underlined(), QStringLiteral("Underline")));
    row->addSpacing(groupSpacing);
    auto *color = new FontColorEdit(&panel);
    panel.bind(color, TextKeys::color());
    row->addWidget(color);
    row->addStretch();
}

void addAlignment(PropertyPanel &panel, QGridLayout &grid)
{
    using namespace TextAlignment;
    QHBoxLayout *row = addRow(grid);
    auto *center = addButton(panel, centerButton, QStringLiteral("align/h/HAlignC"));
    row->addWidget(addButton(panel, leftButton, QStringLiteral("align/h/HAlignL")));
    row->addWidget(center);
    row->addWidget(addButton(panel, rightButton, QStringLiteral("align/h/HAlignR")));
    row->addSpacing(groupSpacing);
    auto *middle = addButton(panel, middleButton, QStringLiteral("align/v/VAlignC"));
    row->addWidget(addButton(panel, topButton, QStringLiteral("align/v/VAlignT")));
    row->addWidget(middle);
    row->addWidget(addButton(panel, bottomButton, QStringLiteral("align/v/VAlignB")));
    row->addStretch();
}
} // namespace

void TextPanel::build(ContentViewer &text, QWidget *host)
{
    auto *panel = new PropertyPanel(&text, host);
    panel->addAreaCategory();
    EnumEdit *type = addType(*panel, text);
    QGridLayout *grid = panel->addCategory(QCoreApplication::translate("PropertyPanel", "Basic Properties"));
    grid->addWidget(type, 0, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    addFont(*panel, *grid);
    addStyle(*panel, *grid);
    addAlignment(*panel, *grid);
    panel->orderFocus();
}
