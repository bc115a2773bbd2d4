#include "model/pixels.h"

#include <cmath>

int toPixels(const QVariant &value)
{
    if (value.userType() != QMetaType::Double)
        return qBound(-maximumPixels, value.toInt(), maximumPixels);
    const double number = value.toDouble();
    if (qIsNaN(number))
        return 0;
    return qRound(qBound(-double(maximumPixels), number, double(maximumPixels)));
}

int wholeNumber(const QJsonValue &value)
{
    return QJsonValue(std::round(value.toDouble())).toInt();
}
