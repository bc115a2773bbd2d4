#include "pictures/svgpen.h"

#include "pictures/svgpath.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace
{
struct Unit {
    const char *name;
    double units;
};

/// The mean of the dashes; what the toolkit makes of less than nothing is not known.
double meanOf(const QVector<double> &dashes)
{
    double sum = 0;
    for (const double dash : dashes)
        sum += std::max(0.0, dash);
    return dashes.isEmpty() ? 0 : std::max(sum / dashes.size(), std::numeric_limits<double>::min());
}

bool isPlain(const QString &value)
{
    static const QRegularExpression plain(QStringLiteral("^(none|[0-9.][^/]*|#[0-9A-Fa-f]+|[a-z]+)$"));
    return plain.match(value).hasMatch();
}
} // namespace

SvgPen SvgPen::cheapest()
{
    SvgPen pen;
    pen.width = 0;
    pen.miterLimit = 0;
    pen.letters = 0;
    return pen;
}

double SvgPen::lengthOf(const QString &text, double whole)
{
    static constexpr std::array<Unit, 5> units = {
        {{"in", 96}, {"cm", 38}, {"mm", 3.8}, {"pc", 16}, {"pt", 1.34}}};
    const QVector<double> numbers = SvgPath::numbersIn(text);
    const double number = numbers.isEmpty() ? 0 : numbers.first();
    if (text.contains(QLatin1Char('%')))
        return number / 100 * whole;
    for (const Unit &unit : units) {
        if (text.contains(QLatin1String(unit.name)))
            return number * unit.units;
    }
    return number;
}

void SvgPen::take(const QString &property, const QString &value)
{
    const SvgPen before = *this;
    set(property, value);
    // The toolkit may leave what is inherited in force.
    if (!isPlain(value))
        worsen(before);
}

void SvgPen::set(const QString &property, const QString &value)
{
    if (property == QLatin1String("stroke"))
        isDrawn = value != QLatin1String("none");
    else if (property == QLatin1String("stroke-width"))
        width = std::abs(lengthOf(value, 100));
    else if (property == QLatin1String("stroke-miterlimit"))
        miterLimit = std::abs(lengthOf(value, 1));
    else if (property == QLatin1String("stroke-dasharray"))
        dash = meanOf(SvgPath::numbersIn(value));
    else if (property == QLatin1String("vector-effect"))
        keepsWidth = value != QLatin1String("none");
    else if (property == QLatin1String("font-size"))
        letters = value.contains(QLatin1String("em")) ? letters * lengthOf(value, 1)
                                                      : std::abs(lengthOf(value, letters));
}

void SvgPen::worsen(const SvgPen &other)
{
    width = std::max(width, other.width);
    miterLimit = std::max(miterLimit, other.miterLimit);
    letters = std::max(letters, other.letters);
    isDrawn = isDrawn || other.isDrawn;
    keepsWidth = keepsWidth || other.keepsWidth;
    if (other.dash > 0)
        dash = dash > 0 ? std::min(dash, other.dash) : other.dash;
}

void SvgPen::takeStyle(const QString &style)
{
    static const QRegularExpression list(QStringLiteral("^(\\s*[\\w-]+\\s*:[^:;{}@\\\\/'\"]+;?)*\\s*$"));
    static const QRegularExpression declaration(QStringLiteral("([\\w-]+)\\s*:([^;}]*)"));
    const bool isList = list.match(style).hasMatch();
    for (auto matches = declaration.globalMatch(style); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const QString property = match.captured(1).toLower();
        const SvgPen before = *this;
        take(property, match.captured(2).trimmed());
        if (!isList || style.count(property + QLatin1Char(':')) > 1)
            worsen(before);
    }
}
