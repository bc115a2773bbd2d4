#include "viewers/svgcost.h"

#include "viewers/svgaddress.h"
#include "viewers/svgrows.h"

#include <QLineF>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{
using Kind = SvgFigure::Kind;

// Measured, in nanoseconds.
constexpr double timeOfElement = 4000;
constexpr double timeOfRule = 200; // for each element
constexpr double timeOfText = 70000;
constexpr double timeOfLetter = 3000;
constexpr double timeOfLetterPixel = 1;
constexpr double timeOfStrokedPixel = 5; // of a letter
constexpr double timeOfPixel = 2;
constexpr double timeOfPicturePixel = 3; // of a picture in the drawing

constexpr double endless = std::numeric_limits<double>::infinity();

/// What holds for all that is in an element.
struct Place {
    QTransform transform; // to pixels
    SvgPen pen;
    bool isText = false;
    bool isMoving = false;
};

/// The largest factor by which lengths grow.
double scaleOf(const QTransform &transform)
{
    const double sum = transform.m11() * transform.m11() + transform.m12() * transform.m12() +
                       transform.m21() * transform.m21() + transform.m22() * transform.m22();
    const double area = 2 * transform.determinant();
    return std::sqrt((sum + std::sqrt(std::max(0.0, sum * sum - area * area))) / 2);
}

/// Goes over all that is drawn, as often as it is used.
class Drawing
{
public:
    Drawing(const QVector<SvgFigure> &figures, const SvgElements &elements, const SvgPen &sheet,
            const QSize &picture)
        : m_figures(figures),
          m_elements(elements),
          m_sheet(sheet),
          m_picture(picture),
          m_rows(picture)
    {
        m_time = double(picture.width()) * picture.height() * timeOfPixel;
    }

    double time()
    {
        visit(0, start());
        return m_time;
    }

private:
    /// Without a view the figures themselves tell what is shown: then they may lie in any row.
    Place start()
    {
        Place place;
        if (m_figures.first().view.isEmpty())
            place.isMoving = true;
        return place;
    }

    void visit(int element, Place place)
    {
        if (!(m_time <= SvgCost::maximum))
            return;
        const SvgFigure &figure = m_figures.at(element);
        const QVector<int> parts = m_elements.partsOf(element);
        place.transform = transformIn(figure, place.transform, element);
        place.pen = figure.penIn(place.pen);
        place.pen.worsen(m_sheet);
        for (const int part : parts)
            takeMotion(m_figures.at(part), place);
        m_time += timeOfElement;
        draw(figure, place);
        for (const int part : parts)
            visit(part, place);
    }

    void takeMotion(const SvgFigure &figure, Place &place)
    {
        if (figure.kind != Kind::Motion)
            return;
        place.isMoving = true;
        place.transform = QTransform::fromScale(figure.growth, figure.growth) * place.transform;
    }

    QTransform transformIn(const SvgFigure &figure, const QTransform &outer, int element)
    {
        if (figure.isTurnedByStyle)
            m_time = endless;
        const QTransform inner = figure.transform * outer;
        if (figure.kind != Kind::Drawing)
            return inner;
        const QRectF &view = figure.view;
        if (view.isEmpty()) {
            // A drawing in a drawing would be stretched by nobody knows how much.
            m_time = element == 0 ? m_time : endless;
            return inner;
        }
        return QTransform::fromTranslate(-view.x(), -view.y()) *
               QTransform::fromScale(m_picture.width() / view.width(), m_picture.height() / view.height()) *
               inner;
    }

    void draw(const SvgFigure &figure, Place &place)
    {
        if (place.isMoving)
            m_rows.gather();
        for (const QPolygonF &line : figure.lines)
            fill(place.transform.map(line));
        m_time += m_rows.takeTime();
        if (place.pen.isDrawn)
            stroke(figure, place);
        if (figure.kind == Kind::Text) {
            place.isText = true;
            m_time += timeOfText;
        }
        if (place.isText)
            write(figure.letters, place);
        if (figure.kind == Kind::Picture && figure.lines.first().boundingRect().isEmpty())
            m_time += double(m_picture.width()) * m_picture.height() * timeOfPicturePixel;
    }

    void fill(const QPolygonF &line)
    {
        for (int i = 0; i < line.size(); ++i)
            m_rows.addLine({line.at(i), line.at((i + 1) % line.size())});
    }

    void stroke(const SvgFigure &figure, const Place &place)
    {
        const double scale = scaleOf(place.transform);
        const double width = place.pen.width * (place.pen.keepsWidth ? std::max(1.0, scale) : scale);
        const double dash = place.pen.dash * (place.pen.keepsWidth ? std::min(1.0, scale) : scale);
        for (const QPolygonF &line : figure.lines) {
            const QPolygonF pixels = place.transform.map(line);
            for (int i = 0; i < pixels.size(); ++i)
                stroke({pixels.at(i), pixels.at((i + 1) % pixels.size())}, std::max(1.0, width), dash,
                       std::max(1.0, place.pen.miterLimit / 4));
        }
        m_time += m_rows.takeTime();
    }

    /// Both sides of a line, the joint at its beginning, and the ends of its dashes.
    void stroke(const QLineF &line, double width, double dash, double miter)
    {
        QLineF side = line.normalVector();
        side.setLength(width / 2);
        const QPointF away = line.length() > 0 ? QPointF(side.dx(), side.dy()) : QPointF();
        m_rows.addLine(line.translated(away));
        m_rows.addLine(line.translated(-away));
        const QPointF corner(width / 2 * miter, width / 2 * miter);
        m_rows.addLine({line.p1() - corner, line.p1() + corner});
        m_rows.addLine({line.p1() + corner, line.p1() - corner});
        if (dash > 0)
            m_rows.addPieces(2 * line.length() / dash + 2, std::min(line.y1(), line.y2()) - width / 2,
                             std::max(line.y1(), line.y2()) + width / 2, width);
    }

    void write(int letters, const Place &place)
    {
        const double largest = 2.0 * std::max(m_picture.width(), m_picture.height());
        const double border = place.pen.isDrawn ? place.pen.width : 0;
        const double side = std::min((place.pen.letters + border) * scaleOf(place.transform), largest);
        const double time = place.pen.isDrawn ? timeOfStrokedPixel : timeOfLetterPixel;
        m_time += letters * (timeOfLetter + side * side * time);
    }

    const QVector<SvgFigure> &m_figures;
    const SvgElements &m_elements;
    const SvgPen &m_sheet;
    QSize m_picture;
    SvgRows m_rows;
    double m_time = 0;
};
} // namespace

void SvgCost::addElement(const QString &name, const QXmlStreamAttributes &attributes)
{
    SvgFigure figure = SvgFigure::of(name, attributes, m_whole);
    if (m_figures.isEmpty())
        m_whole = std::max(figure.view.width(), figure.view.height());
    // Letters of its own are outlines that are drawn for each letter of a text.
    m_isEndless = m_isEndless || name == QLatin1String("glyph") || name == QLatin1String("missing-glyph");
    m_figures.append(figure);
}

void SvgCost::addSheet(const QString &sheet)
{
    static const QRegularExpression comment(QStringLiteral("/\\*.*?(\\*/|$)"),
                                            QRegularExpression::DotMatchesEverythingOption);
    QString style = SvgAddress::plain(sheet).remove(comment);
    m_isEndless = m_isEndless || SvgFigure::turns(style);
    m_rules += style.count(QLatin1Char('{')) + style.count(QLatin1Char(','));
    static const QRegularExpression declaration(QStringLiteral("([\\w-]+)\\s*:([^;}]*)"));
    for (auto matches = declaration.globalMatch(style); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        SvgPen pen = SvgPen::cheapest();
        pen.take(match.captured(1).toLower(), match.captured(2).trimmed());
        m_sheet.worsen(pen);
    }
}

double SvgCost::readingTime() const
{
    return m_isEndless ? endless : double(m_rules) * m_figures.size() * timeOfRule;
}

double SvgCost::drawingTime(const SvgElements &elements, const QSize &picture) const
{
    return m_figures.isEmpty() ? 0 : Drawing(m_figures, elements, m_sheet, picture).time();
}
