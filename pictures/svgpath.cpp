#include "pictures/svgpath.h"

#include <algorithm>
#include <cmath>

namespace
{
bool isDigit(QChar letter)
{
    return letter >= QLatin1Char('0') && letter <= QLatin1Char('9');
}

bool isSign(QChar letter)
{
    return letter == QLatin1Char('+') || letter == QLatin1Char('-');
}

/// Reads numbers and letters off a text.
class Scanner
{
public:
    explicit Scanner(const QString &text) : m_text(text) {}

    bool isAtEnd() const { return m_place >= m_text.size(); }
    QChar letter() const { return isAtEnd() ? QChar() : m_text.at(m_place); }
    QChar take() { return m_text.at(m_place++); }

    void skipGaps()
    {
        while (letter().isSpace() || letter() == QLatin1Char(','))
            ++m_place;
    }

    bool isAtNumber() const { return isDigit(letter()) || isSign(letter()) || letter() == QLatin1Char('.'); }

    double number()
    {
        const int start = m_place;
        if (isSign(letter()))
            ++m_place;
        skipDigits();
        if (letter() == QLatin1Char('.'))
            ++m_place;
        skipDigits();
        skipExponent();
        return m_text.midRef(start, m_place - start).toDouble();
    }

    /// One digit, which needs no gap behind it.
    double flag() { return isDigit(letter()) ? take().digitValue() : number(); }

private:
    void skipDigits()
    {
        while (isDigit(letter()))
            ++m_place;
    }

    void skipExponent()
    {
        if (letter().toLower() != QLatin1Char('e'))
            return;
        const int sign = m_place + 1 < m_text.size() && isSign(m_text.at(m_place + 1)) ? 1 : 0;
        const int digits = m_place + 1 + sign;
        if (digits >= m_text.size() || !isDigit(m_text.at(digits)))
            return;
        m_place = digits;
        skipDigits();
    }

    const QString &m_text;
    int m_place = 0;
};

constexpr int numbersOfArc = 7;

/// Follows the commands of a path.
class Path
{
public:
    explicit Path(const QString &data) : m_scanner(data) {}

    QVector<QPolygonF> lines()
    {
        for (m_scanner.skipGaps(); !m_scanner.isAtEnd(); m_scanner.skipGaps()) {
            const QChar command = m_scanner.take();
            m_command = command.toLower().toLatin1();
            m_isRelative = command.isLower();
            if (!follow())
                break;
        }
        return m_lines;
    }

private:
    int numbersNeeded() const
    {
        switch (m_command) {
        case 'm':
        case 'l':
        case 't':
            return 2;
        case 'h':
        case 'v':
            return 1;
        case 's':
        case 'q':
            return 4;
        case 'c':
            return 6;
        case 'a':
            return numbersOfArc;
        case 'z':
            return 0;
        default:
            return -1;
        }
    }

    bool follow()
    {
        const int needed = numbersNeeded();
        if (needed == 0)
            close();
        for (m_scanner.skipGaps(); needed > 0 && m_scanner.isAtNumber(); m_scanner.skipGaps())
            draw(numbers(needed));
        return needed >= 0;
    }

    QVector<double> numbers(int count)
    {
        QVector<double> values;
        for (int i = 0; i < count && m_scanner.isAtNumber(); ++i) {
            const bool isFlag = count == numbersOfArc && (i == 3 || i == 4);
            values.append(isFlag ? m_scanner.flag() : m_scanner.number());
            m_scanner.skipGaps();
        }
        values.resize(count);
        return values;
    }

    QPointF place(double x, double y) const { return QPointF(x, y) + (m_isRelative ? m_here : QPointF()); }

    void draw(const QVector<double> &numbers)
    {
        const QPointF end = place(numbers.at(qMax(0, numbers.size() - 2)), numbers.last());
        if (m_command == 'm')
            begin(end);
        else if (m_command == 'h')
            lineTo(QPointF(numbers.first() + (m_isRelative ? m_here.x() : 0), m_here.y()));
        else if (m_command == 'v')
            lineTo(QPointF(m_here.x(), numbers.first() + (m_isRelative ? m_here.y() : 0)));
        else if (m_command == 'a')
            arcTo(end, numbers);
        else
            curveTo(end, numbers);
    }

    void begin(const QPointF &start)
    {
        m_lines.append(QPolygonF({start}));
        m_here = start;
        m_control = start;
        // Further pairs of numbers are lines.
        m_command = 'l';
    }

    void lineTo(const QPointF &end)
    {
        append(end);
        m_here = end;
        m_control = end;
    }

    void curveTo(const QPointF &end, const QVector<double> &numbers)
    {
        QPolygonF controls;
        if (m_command == 's' || m_command == 't')
            controls.append(m_here * 2 - m_control);
        for (int i = 0; i + 2 < numbers.size(); i += 2)
            controls.append(place(numbers.at(i), numbers.at(i + 1)));
        for (const QPointF &control : qAsConst(controls))
            append(control);
        const QPointF control = controls.isEmpty() ? end : controls.last();
        lineTo(end);
        m_control = control;
    }

    void arcTo(const QPointF &end, const QVector<double> &numbers)
    {
        const QPointF way = end - m_here;
        const double radius =
            std::max({std::abs(numbers.at(0)), std::abs(numbers.at(1)), std::hypot(way.x(), way.y())});
        const QPolygonF box = SvgPath::around(m_here + way / 2, 2 * radius, 2 * radius);
        for (const QPointF &corner : box)
            append(corner);
        lineTo(end);
    }

    void append(const QPointF &point)
    {
        if (m_lines.isEmpty())
            m_lines.append(QPolygonF({m_here}));
        m_lines.last().append(point);
    }

    void close()
    {
        if (m_lines.isEmpty())
            return;
        const QPointF start = m_lines.last().first();
        append(start);
        begin(start);
    }

    Scanner m_scanner;
    QVector<QPolygonF> m_lines;
    QPointF m_here;
    QPointF m_control; // the last one
    char m_command = 0;
    bool m_isRelative = false;
};
} // namespace

QVector<QPolygonF> SvgPath::ofData(const QString &data)
{
    return Path(data).lines();
}

QVector<double> SvgPath::numbersIn(const QString &text)
{
    QVector<double> numbers;
    for (Scanner scanner(text); !scanner.isAtEnd();) {
        if (scanner.isAtNumber())
            numbers.append(scanner.number());
        else
            scanner.take();
    }
    return numbers;
}

QPolygonF SvgPath::around(const QPointF &centre, double radiusX, double radiusY)
{
    const QPointF corner(std::abs(radiusX), std::abs(radiusY));
    return QPolygonF(QRectF(centre - corner, centre + corner));
}
