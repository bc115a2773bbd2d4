#include "pictures/svgfigure.h"

#include "pictures/svgaddress.h"
#include "pictures/svgpath.h"

#include <QRegularExpression>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace
{
using Kind = SvgFigure::Kind;

Kind kindOf(const QString &name)
{
    if (name == QLatin1String("svg"))
        return Kind::Drawing;
    if (name == QLatin1String("image"))
        return Kind::Picture;
    if (name == QLatin1String("text") || name == QLatin1String("tspan") || name == QLatin1String("textArea"))
        return Kind::Text;
    return name == QLatin1String("animateTransform") ? Kind::Motion : Kind::Other;
}

/// One step of a transform; nothing for what is none.
QTransform stepOf(const QString &name, QVector<double> numbers)
{
    const int count = numbers.size();
    numbers.resize(6);
    const double first = numbers.at(0);
    const double second = numbers.at(1);
    if (name == QLatin1String("matrix"))
        return {first, second, numbers.at(2), numbers.at(3), numbers.at(4), numbers.at(5)};
    if (name == QLatin1String("translate"))
        return QTransform::fromTranslate(first, second);
    if (name == QLatin1String("scale"))
        return QTransform::fromScale(first, count > 1 ? second : first);
    if (name == QLatin1String("rotate"))
        return QTransform().translate(second, numbers.at(2)).rotate(first).translate(-second, -numbers.at(2));
    const double slope = std::tan(qDegreesToRadians(first));
    if (name == QLatin1String("skewX"))
        return {1, 0, slope, 1, 0, 0};
    return name == QLatin1String("skewY") ? QTransform(1, slope, 0, 1, 0, 0) : QTransform();
}

/// Up to the first step that cannot be read.
QTransform transformOf(const QString &text)
{
    static const QRegularExpression step(QStringLiteral("[\\s,]*([A-Za-z]+)\\s*\\(([^)]*)\\)"));
    QTransform transform;
    // The whole text is checked once for all steps, not for each of them.
    for (auto steps = step.globalMatch(text, 0, QRegularExpression::NormalMatch,
                                       QRegularExpression::AnchoredMatchOption);
         steps.hasNext();) {
        const QRegularExpressionMatch match = steps.next();
        transform = stepOf(match.captured(1), SvgPath::numbersIn(match.captured(2))) * transform;
    }
    return transform;
}

/// Reads the attributes of one element.
class Reading
{
public:
    Reading(const QXmlStreamAttributes &attributes, double whole) : m_attributes(attributes), m_whole(whole)
    {
    }

    QString text(const char *name) const { return m_attributes.value(QLatin1String(name)).toString(); }
    double length(const char *name) const { return SvgPen::lengthOf(text(name), m_whole); }

    QRectF box() const { return {length("x"), length("y"), length("width"), length("height")}; }

    QRectF view() const
    {
        const QVector<double> numbers = SvgPath::numbersIn(text("viewBox"));
        return numbers.size() < 4 ? QRectF(0, 0, length("width"), length("height"))
                                  : QRectF(numbers.at(0), numbers.at(1), numbers.at(2), numbers.at(3));
    }

    QVector<QPolygonF> lines(const QString &name) const
    {
        if (name == QLatin1String("path"))
            return SvgPath::ofData(text("d"));
        return {polygon(name)};
    }

    double growth() const
    {
        double growth = 1;
        if (text("type") != QLatin1String("scale"))
            return growth;
        for (const char *name : {"from", "to", "by", "values"}) {
            const QVector<double> numbers = SvgPath::numbersIn(text(name));
            for (const double number : numbers)
                growth += std::abs(number);
        }
        return growth;
    }

private:
    QPolygonF polygon(const QString &name) const
    {
        if (name == QLatin1String("rect") || name == QLatin1String("image"))
            return QPolygonF(box());
        if (name == QLatin1String("circle"))
            return SvgPath::around({length("cx"), length("cy")}, length("r"), length("r"));
        if (name == QLatin1String("ellipse"))
            return SvgPath::around({length("cx"), length("cy")}, length("rx"), length("ry"));
        if (name == QLatin1String("line"))
            return {QVector<QPointF>{{length("x1"), length("y1")}, {length("x2"), length("y2")}}};
        return name.startsWith(QLatin1String("poly")) ? corners() : QPolygonF();
    }

    QPolygonF corners() const
    {
        const QVector<double> numbers = SvgPath::numbersIn(text("points"));
        QPolygonF polygon;
        for (int i = 0; i + 1 < numbers.size(); i += 2)
            polygon.append({numbers.at(i), numbers.at(i + 1)});
        return polygon;
    }

    const QXmlStreamAttributes &m_attributes;
    double m_whole;
};

bool isOfPen(const QString &name)
{
    return name.startsWith(QLatin1String("stroke")) || name == QLatin1String("font-size") ||
           name == QLatin1String("vector-effect");
}
} // namespace

SvgFigure SvgFigure::of(const QString &name, const QXmlStreamAttributes &attributes, double whole)
{
    const Reading reading(attributes, whole);
    SvgFigure figure;
    figure.kind = kindOf(name);
    figure.isWrapped = name == QLatin1String("textArea");
    figure.lines = reading.lines(name);
    figure.transform = transformOf(reading.text("transform"));
    figure.style = SvgAddress::plain(reading.text("style"));
    figure.isTurnedByStyle = turns(figure.style);
    if (name == QLatin1String("use"))
        figure.transform.translate(reading.length("x"), reading.length("y"));
    if (figure.kind == Kind::Drawing)
        figure.view = reading.view();
    if (figure.kind == Kind::Motion)
        figure.growth = reading.growth();
    for (const QXmlStreamAttribute &attribute : attributes) {
        if (isOfPen(attribute.qualifiedName().toString()))
            figure.properties.append({attribute.qualifiedName().toString(), attribute.value().toString()});
    }
    return figure;
}

bool SvgFigure::turns(const QString &style)
{
    static const QRegularExpression turn(QStringLiteral("(?<![\\w-])transform\\s*:"),
                                         QRegularExpression::CaseInsensitiveOption);
    return turn.match(style).hasMatch();
}

SvgPen SvgFigure::penIn(SvgPen pen) const
{
    for (const auto &property : properties)
        pen.take(property.first, property.second);
    pen.takeStyle(style);
    return pen;
}
