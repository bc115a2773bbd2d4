#include "model/pixels.h"

int toPixels(const QVariant &value)
{
    if (value.userType() != QMetaType::Double)
        return qBound(-maximumPixels, value.toInt(), maximumPixels);
    const double number = value.toDouble();
    if (qIsNaN(number))
        return 0;
    return qRound(qBound(-double(maximumPixels), number, double(maximumPixels)));
}
