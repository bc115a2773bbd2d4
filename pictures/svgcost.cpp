#include "pictures/svgcost.h"

#include "pictures/svgaddress.h"
#include "pictures/svgrows.h"

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
constexpr double timeOfRule = 6000;
constexpr double timeOfMatch = 500;   // of a rule and an element
constexpr double timeOfRelation = 45; // of a rule, an element and one that it is in
constexpr int mostRelations = 256;
constexpr double timeOfStop = 4; // of a gradient, each time that it may be used
constexpr double timeOfText = 70000;
constexpr double timeOfLetter = 5000;
constexpr double wrapping = 20; // times, where each letter may need a line of its own
constexpr double timeOfLetterPixel = 2;
constexpr double timeOfPixel = 2;
constexpr double timeOfPicturePixel = 3; // of a picture in the drawing

constexpr double endless = std::numeric_limits<double>::infinity();

// What the outline of a letter is like.
constexpr double linesOfLetter = 40;
constexpr double linesOfLetterSide = 4; // that together are as long as the letter is high

constexpr double usualMiterLimit = 4; // few of such joints come near it

/// The outline of a line or a letter, px.
struct Stroke {
    double width = 1;
    double dash = 0;  // none
    double miter = 1; // times the width
};

/// What holds for all that is in an element.
struct Place {
    QTransform transform; // to pixels
    SvgPen pen;
    bool isText = false;
    bool isWrapped = false;
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

    double time(double timeOfEach)
    {
        m_timeOfEach = timeOfEach;
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
        m_time += m_timeOfEach;
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
        QTransform inner = figure.transform * outer;
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
        m_rows.gather(place.isMoving);
        for (const QPolygonF &line : figure.lines)
            fill(place.transform.map(line));
        m_time += m_rows.takeTime();
        if (place.pen.isDrawn)
            addStroke(figure, place);
        if (figure.kind == Kind::Text) {
            place.isText = true;
            m_time += timeOfText;
        }
        place.isWrapped = place.isWrapped || figure.isWrapped;
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

    static Stroke strokeIn(const Place &place)
    {
        const double scale = scaleOf(place.transform);
        Stroke stroke;
        stroke.width = std::max(1.0, place.pen.width * (place.pen.keepsWidth ? std::max(1.0, scale) : scale));
        stroke.dash = place.pen.dash * (place.pen.keepsWidth ? std::min(1.0, scale) : scale);
        stroke.miter = std::max(1.0, place.pen.miterLimit / usualMiterLimit);
        return stroke;
    }

    void addStroke(const SvgFigure &figure, const Place &place)
    {
        const Stroke stroke = strokeIn(place);
        for (const QPolygonF &line : figure.lines) {
            const QPolygonF pixels = place.transform.map(line);
            for (int i = 0; i < pixels.size(); ++i)
                addStroke({pixels.at(i), pixels.at((i + 1) % pixels.size())}, stroke);
        }
        m_time += m_rows.takeTime();
    }

    /// Both sides of a line, the joint at its beginning, and the ends of its dashes.
    void addStroke(const QLineF &line, const Stroke &stroke)
    {
        QLineF side = line.normalVector();
        side.setLength(stroke.width / 2);
        const QPointF away = line.length() > 0 ? QPointF(side.dx(), side.dy()) : QPointF();
        m_rows.addLine(line.translated(away));
        m_rows.addLine(line.translated(-away));
        const QPointF corner = QPointF(stroke.width, stroke.width) * (stroke.miter / 2);
        m_rows.addLine({line.p1() - corner, line.p1() + corner});
        m_rows.addLine({line.p1() + corner, line.p1() - corner});
        if (stroke.dash > 0)
            m_rows.addPieces(2 * line.length() / stroke.dash + 2,
                             std::min(line.y1(), line.y2()) - stroke.width / 2,
                             std::max(line.y1(), line.y2()) + stroke.width / 2, stroke.width);
    }

    void write(int letters, const Place &place)
    {
        const double largest = 2.0 * std::max(m_picture.width(), m_picture.height());
        const double side = std::min(place.pen.letters * scaleOf(place.transform), largest);
        m_time +=
            letters * (timeOfLetter * (place.isWrapped ? wrapping : 1) + side * side * timeOfLetterPixel);
        if (place.pen.isDrawn && letters > 0)
            outline(letters, side, strokeIn(place));
    }

    /// All letters of a text have one outline together.
    void outline(int letters, double side, const Stroke &stroke)
    {
        const double lines = 2.0 * letters * linesOfLetter;
        m_rows.gather(true);
        m_rows.addPieces(lines, 0, side, side * 2 / linesOfLetterSide);
        m_rows.addPieces(lines, 0, stroke.width * stroke.miter, 2 * stroke.width * stroke.miter);
        if (stroke.dash > 0)
            m_rows.addPieces(lines * (1 + side / linesOfLetterSide / stroke.dash), 0, stroke.width,
                             stroke.width);
        m_time += m_rows.takeTime();
    }

    const QVector<SvgFigure> &m_figures;
    const SvgElements &m_elements;
    const SvgPen &m_sheet;
    QSize m_picture;
    SvgRows m_rows;
    double m_timeOfEach = 0;
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
    m_stops += name == QLatin1String("stop") ? 1 : 0;
    m_figures.append(figure);
}

void SvgCost::addSheet(const QString &sheet)
{
    static const QRegularExpression comment(QStringLiteral("/\\*.*?(\\*/|$)"),
                                            QRegularExpression::DotMatchesEverythingOption);
    QString style = SvgAddress::plain(sheet).remove(comment);
    m_isEndless = m_isEndless || SvgFigure::turns(style);
    countRules(style);
    static const QRegularExpression declaration(QStringLiteral("([\\w-]+)\\s*:([^;}]*)"));
    for (auto matches = declaration.globalMatch(style); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        SvgPen pen = SvgPen::cheapest();
        pen.take(match.captured(1).toLower(), match.captured(2).trimmed());
        m_sheet.worsen(pen);
    }
}

void SvgCost::countRules(const QString &style)
{
    static const QRegularExpression rule(QStringLiteral("([^{}]*)\\{"));
    static const QRegularExpression relation(QStringLiteral("[^\\s,][\\s>+]+[^\\s,]"));
    for (auto matches = rule.globalMatch(style); matches.hasNext();) {
        const QString selectors = matches.next().captured(1).trimmed();
        m_rules += 1 + selectors.count(QLatin1Char(','));
        m_relations += selectors.contains(relation) ? 1 + selectors.count(QLatin1Char(',')) : 0;
        // All the elements before one are looked at.
        m_isEndless = m_isEndless || selectors.contains(QLatin1Char('~'));
    }
}

double SvgCost::readingTime() const
{
    if (m_isEndless)
        return endless;
    const double elements = m_figures.size();
    const double around = std::min(m_figures.size(), mostRelations);
    return m_rules * (timeOfRule + elements * timeOfMatch) +
           m_relations * elements * around * timeOfRelation + double(m_stops) * m_stops * timeOfStop;
}

double SvgCost::drawingTime(const SvgElements &elements, const QSize &picture) const
{
    return m_figures.isEmpty()
               ? 0
               : Drawing(m_figures, elements, m_sheet, picture).time(timeOfElement + m_stops * timeOfStop);
}
