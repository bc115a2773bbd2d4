#include "pictures/svgrows.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace
{
// Measured: what the toolkit takes for each, in nanoseconds.
constexpr double timeOfStep = 11;      // along a line, once for each band that it touches
constexpr double timeOfLook = 3;       // at a line, once for each band of the figure
constexpr double timeOfSearch = 1;     // for a pixel among those of its row, for each of them
constexpr double timeOfPixel = 2;      // that is painted
constexpr double timeOfPiece = 500;    // of an outline, made and brought into the picture
constexpr double timeOfOutside = 2000; // for a piece that is cut off

constexpr double pixelsOfBand = 200;
constexpr double farthest = 65536; // px; lines are cut before they are longer
constexpr double infinite = std::numeric_limits<double>::infinity();
} // namespace

SvgRows::SvgRows(const QSize &picture)
    : m_picture(picture.expandedTo(QSize(1, 1))),
      m_changes(m_picture.height() + 1),
      m_bands(m_picture.height() + 1)
{
    clear();
}

void SvgRows::addLine(const QLineF &line)
{
    const QRectF box = QRectF(line.p1(), line.p2()).normalized();
    addPieces(1, box.top(), box.bottom(), box.width() + box.height());
    m_left = std::min(m_left, box.left());
    m_right = std::max(m_right, box.right());
}

void SvgRows::addPieces(double count, double top, double bottom, double pixels)
{
    const double last = m_picture.height() - 1;
    m_top = std::min(m_top, top);
    m_bottom = std::max(m_bottom, bottom);
    if (!std::isfinite(count) || !std::isfinite(bottom - top) || !std::isfinite(pixels))
        m_outside = infinite;
    else if (!m_isGathered && (bottom < 0 || top > last))
        m_outside += count;
    else
        add({count, m_isGathered ? 0 : int(std::max(top, 0.0)),
             int(m_isGathered ? last : std::min(bottom, last)), std::min(pixels, 2 * farthest) + 2,
             std::min(bottom - top, farthest) + 1});
}

void SvgRows::add(const Pieces &pieces)
{
    m_pieces.append(pieces);
    const double rows = m_isGathered ? m_picture.height() : pieces.height;
    const double crossed = pieces.count * pieces.pixels / rows;
    m_changes[pieces.top] += crossed;
    m_changes[pieces.bottom + 1] -= crossed;
    m_first = std::min(m_first, pieces.top);
    m_last = std::max(m_last, pieces.bottom);
}

double SvgRows::takeTime()
{
    double time = m_outside * timeOfOutside;
    if (m_last >= m_first)
        time += timeOfRows() + timeOfArea();
    for (const Pieces &pieces : qAsConst(m_pieces))
        time += timeOf(pieces, m_bands.at(m_last + 1));
    clear();
    return time;
}

void SvgRows::clear()
{
    m_pieces.clear();
    m_outside = 0;
    m_first = m_picture.height();
    m_last = -1;
    m_left = m_top = infinite;
    m_right = m_bottom = -infinite;
}

/// Counts the bands, and tells the time for what the rows cross.
double SvgRows::timeOfRows()
{
    double crossed = 0;
    double time = 0;
    m_bands[m_first] = 0;
    for (int row = m_first; row <= m_last; ++row) {
        crossed = std::max(0.0, crossed + std::exchange(m_changes[row], 0));
        m_bands[row + 1] = m_bands.at(row) + std::min(1.0, crossed / pixelsOfBand);
        time += crossed * std::min(crossed, double(m_picture.width())) * timeOfSearch;
    }
    m_changes[m_last + 1] = 0;
    return time;
}

double SvgRows::timeOfArea() const
{
    const double width = m_picture.width();
    const double height = m_picture.height();
    const double longest = std::max(0.0, m_right - m_left) + m_bottom - m_top + 2;
    if (m_isGathered)
        return std::min(width, longest) * std::min(height, longest) * timeOfPixel;
    const double columns = std::min(m_right, width) - std::max(m_left, 0.0) + 1;
    return std::max(0.0, columns) * (m_last - m_first + 1) * timeOfPixel;
}

double SvgRows::timeOf(const Pieces &pieces, double bands) const
{
    const double rows = pieces.bottom - pieces.top + 1;
    const double near = m_bands.at(pieces.bottom + 1) - m_bands.at(pieces.top);
    const double touched =
        m_isGathered ? std::min(bands, pieces.pixels) : near * std::min(1.0, pieces.pixels / rows);
    return pieces.count * (pieces.pixels * (touched + 1) * timeOfStep + bands * timeOfLook + timeOfPiece);
}
