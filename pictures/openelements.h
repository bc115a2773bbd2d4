#pragma once

#include <QStringList>
#include <QVector>

/// The elements of a page that are open at one place, with the toolkit's rules for what closes what, and the
/// cells that its tables will have.
class OpenElements
{
public:
    /// With its display changed, any element may be one that a paragraph ends, even a cell.
    explicit OpenElements(bool mayChangeDisplay = false) : m_mayChangeDisplay(mayChangeDisplay) {}

    /// An element begins. Spans less than 1 count as 1; only cells have any.
    void open(const QString &name, int columns = 1, int rows = 1);

    /// An element ends, with all that was left open in it; nothing happens when there is none.
    void close(const QString &name);

    int depth() const { return m_open.size(); }
    /// Leaves one table that is open out of account.
    void discountTable() { --m_misplaced; }

    /// How many tables are open, in one another. One that stands in a table but in none of its cells counts
    /// for ever: what follows it is put into it.
    int tables() const { return m_tables.size() + m_misplaced; }
    /// The cells of all tables so far: each as wide as its widest row is at most.
    qint64 cells() const { return m_cells; }
    /// The same, each cell doubled for each table around its own.
    qint64 weight() const { return m_weight; }
    /// The cells that extend over others, each counted as often as its table has had cells when it came.
    qint64 merging() const { return m_merging; }
    /// True where characters are not for reading.
    bool isHidden() const { return !m_open.isEmpty() && isHidden(m_open.last()); }
    /// True for elements whose own characters are not for reading.
    static bool isHidden(const QString &name);
    /// True in a style sheet.
    bool isInStyle() const;

private:
    struct Table {
        qint64 rows = 0;
        qint64 columns = 0;
        qint64 inRow = 0;       // columns
        qint64 hanging = 0;     // columns that may reach here from the rows above
        qint64 hangingNext = 0; // columns that reach from here into the rows below
        qint64 cells() const { return rows * columns; }
    };

    int innermost(const QStringList &names) const;
    void closeFrom(int index);
    void closeWhatEndsBefore(const QString &name);
    void doubtParagraph();
    void placeRow();
    void placeCell(const QString &name);
    void push(const QString &name);
    void addTable();
    void addRow();
    void count(const Table &before);
    void addCell(int columns, int rows);

    bool m_mayChangeDisplay;
    QStringList m_open; // without a name: those that may have ended
    QVector<Table> m_tables;
    int m_misplaced = 0;
    qint64 m_cells = 0;
    qint64 m_weight = 0;
    qint64 m_merging = 0;
};
