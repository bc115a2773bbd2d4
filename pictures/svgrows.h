#pragma once

#include <QLineF>
#include <QRectF>
#include <QSize>
#include <QVector>

/// Tells how long a figure takes to be filled. The toolkit fills in bands of rows: a band ends where the
/// outline has crossed so many pixels, and every line that touches a band is followed over its whole length
/// again. Long lines beside many others so take the square of their length.
class SvgRows
{
public:
    /// For a picture of this size, px.
    explicit SvgRows(const QSize &picture);

    /// A line of the outline, px.
    void addLine(const QLineF &line);

    /// So many pieces that cross so many pixels each and lie somewhere between these rows.
    void addPieces(double count, double top, double bottom, double pixels);

    /// Whether what is added is counted as if it could lie in any row, for what may be turned anyhow.
    void gather(bool isGathered) { m_isGathered = isGathered; }

    /// Of all that was added since the last time, in nanoseconds; not a number for lines without an end.
    double takeTime();

private:
    struct Pieces {
        double count = 0;
        int top = 0;
        int bottom = 0; // the last row
        double pixels = 0;
        double height = 0; // from the first row to the last, in the picture or not
    };

    void add(const Pieces &pieces);
    void clear();
    double timeOfRows();
    double timeOfArea() const;
    double timeOf(const Pieces &pieces, double bands) const;

    QSize m_picture;
    QVector<Pieces> m_pieces;
    QVector<double> m_changes; // of the pixels crossed from one row to the next
    QVector<double> m_bands;   // up to each row
    int m_first = 0;
    int m_last = -1;
    double m_left = 0; // of the figure, wherever it is
    double m_right = 0;
    double m_top = 0;
    double m_bottom = 0;
    double m_outside = 0; // pieces that are not in the picture
    bool m_isGathered = false;
};
