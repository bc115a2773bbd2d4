#include "editors/panels/screensettings.h"

#include "canvas/screen.h"
#include "editors/coloredit.h"
#include "editors/wheelguard.h"
#include "model/keys.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>

namespace
{
constexpr int minimumLength = 10;    // pixels
constexpr int maximumLength = 10000; // pixels

QSpinBox *addLength(QHBoxLayout *row, const QString &name, QWidget *parent)
{
    auto *label = new QLabel(name, parent);
    auto *box = new QSpinBox(parent);
    box->setRange(minimumLength, maximumLength);
    new WheelGuard(box);
    label->setBuddy(box);
    row->addWidget(label);
    row->addWidget(box);
    return box;
}
} // namespace

ScreenSettings::ScreenSettings(QWidget *parent) : QWidget(parent)
{
    auto *row = new QHBoxLayout(this);
    // Height before width: on purpose.
    m_height = addLength(row, tr("Height"), this);
    m_width = addLength(row, tr("Width"), this);
    m_color = new ColorEdit(this);
    m_color->setValue(Keys::backgroundColor(), QStringLiteral("#000000"));
    row->addWidget(m_color);
    row->addItem(new QSpacerItem(10, 50, QSizePolicy::Expanding, QSizePolicy::Minimum));
}

void ScreenSettings::setScreen(Screen *screen)
{
    m_screen = screen;
    updateFromScreen();
    connect(m_width, SIGNAL(valueChanged(int)), screen, SLOT(setWidgth(int)));
    connect(m_height, SIGNAL(valueChanged(int)), screen, SLOT(setHeight(int)));
    connect(m_color, SIGNAL(colorChanged(QColor)), screen, SLOT(setBackgrounColor(QColor)));
}

void ScreenSettings::updateFromScreen()
{
    if (!m_screen)
        return;
    m_width->setValue(m_screen->width());
    m_height->setValue(m_screen->height());
    m_color->setValue(Keys::backgroundColor(), m_screen->backgroundColor());
}
