#pragma once

#include <QStringList>

/// Which of the bundled fonts a name stands for, without opening any of them. Needs initAssets().
namespace FontIndex
{
/// The paths (":/assets/fonts/...") of all fonts of the family or weight with this name, in whatever case;
/// empty for a name that no bundled font has.
QStringList filesOf(const QString &name);
} // namespace FontIndex
