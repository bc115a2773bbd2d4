#include "pictures/textalignment.h"

#include <algorithm>

namespace
{
constexpr int tightMargin = 2; // pixels, above a text that fills its rectangle
} // namespace

const TextAlignment::Button *TextAlignment::button(const QString &key)
{
    const auto found = std::find_if(announced.begin(), announced.end(), [&key](const Button &candidate) {
        return key == QLatin1String(candidate.key);
    });
    return found == announced.end() ? nullptr : found;
}

std::optional<Qt::Alignment> TextAlignment::flags(int code)
{
    switch (code) {
    // This row and the one of the right top have no vertical flag, unlike the others: on purpose.
    case Left + Top:
        return Qt::AlignLeft;
    case Center + Top:
        return Qt::AlignTop | Qt::AlignHCenter;
    case Right + Top:
        return Qt::AlignRight;
    case Left + Middle:
        return Qt::AlignVCenter | Qt::AlignLeft;
    case Center + Middle:
        return Qt::AlignVCenter | Qt::AlignHCenter;
    case Right + Middle:
        return Qt::AlignVCenter | Qt::AlignRight;
    case Left + Bottom:
        return Qt::AlignBottom | Qt::AlignLeft;
    case Center + Bottom:
        return Qt::AlignBottom | Qt::AlignHCenter;
    case Right + Bottom:
        return Qt::AlignBottom | Qt::AlignRight;
    default:
        return {};
    }
}

int TextAlignment::topMargin(int contentHeight, int height)
{
    Q_UNUSED(contentHeight)
    Q_UNUSED(height)
    return 0;
}

int TextAlignment::middleMargin(int contentHeight, int height)
{
    return contentHeight < height ? ((height - contentHeight) >> 1) - tightMargin : tightMargin;
}

int TextAlignment::bottomMargin(int contentHeight, int height)
{
    return contentHeight < height ? height - contentHeight : tightMargin;
}
