#include "pictures/openelements.h"

namespace
{
constexpr int deepestTable = 20; // any deeper is as heavy

QStringList row()
{
    return {QStringLiteral("tr")};
}

QStringList table()
{
    return {QStringLiteral("table")};
}

QStringList cell()
{
    return {QStringLiteral("td"), QStringLiteral("th")};
}

QStringList placesForRows()
{
    return {QStringLiteral("table"), QStringLiteral("thead"), QStringLiteral("tbody"),
            QStringLiteral("tfoot")};
}

bool isCell(const QString &name)
{
    return cell().contains(name);
}

bool isPartOfTable(const QString &name)
{
    return name == QLatin1String("caption") ||
           (name != QLatin1String("table") && placesForRows().contains(name));
}

/// True for elements that have no content.
bool isVoid(const QString &name)
{
    return name == QLatin1String("br") || name == QLatin1String("img") || name == QLatin1String("hr") ||
           name == QLatin1String("meta");
}
} // namespace

void OpenElements::open(const QString &name, int columns, int rows)
{
    if (isVoid(name))
        return;
    closeWhatEndsBefore(name);
    push(name);
    if (isCell(name) && !m_tables.isEmpty())
        addCell(qMax(columns, 1), qMax(rows, 1));
}

void OpenElements::close(const QString &name)
{
    const int index = innermost({name});
    if (index >= 0)
        closeFrom(index);
}

bool OpenElements::isHidden(const QString &name)
{
    static const QStringList hidden = {QStringLiteral("head"), QStringLiteral("script"),
                                       QStringLiteral("style"), QStringLiteral("title")};
    return hidden.contains(name);
}

bool OpenElements::isInStyle() const
{
    return !m_open.isEmpty() && m_open.last() == QLatin1String("style");
}

int OpenElements::innermost(const QStringList &names) const
{
    for (int i = m_open.size() - 1; i >= 0; --i) {
        if (names.contains(m_open.at(i)))
            return i;
    }
    return -1;
}

void OpenElements::closeFrom(int index)
{
    while (m_open.size() > index) {
        if (m_open.takeLast() == QLatin1String("table"))
            m_tables.removeLast();
    }
}

void OpenElements::closeWhatEndsBefore(const QString &name)
{
    const bool isAlone = name == QLatin1String("p") || name == QLatin1String("li");
    if (isAlone && !m_open.isEmpty() && m_open.last() == name)
        closeFrom(m_open.size() - 1);
    else if (name == QLatin1String("p"))
        doubtParagraph();
    else if (name == QLatin1String("tr"))
        placeRow();
    else if (isCell(name))
        placeCell(name);
    else if (isPartOfTable(name))
        closeFrom(innermost(table()) + 1);
    else if (name == QLatin1String("dt") || name == QLatin1String("dd"))
        closeFrom(innermost({QStringLiteral("dl")}) + 1);
}

void OpenElements::doubtParagraph()
{
    // A paragraph may end the one around it and all between the two: no closing tag shall count on these.
    const int border = m_mayChangeDisplay ? -1 : innermost(cell());
    const int paragraph = innermost({QStringLiteral("p")});
    for (int i = paragraph; paragraph > border && i < m_open.size(); ++i) {
        m_misplaced += m_open.at(i) == QLatin1String("table") ? deepestTable : 0;
        m_open[i].clear();
    }
}

void OpenElements::placeRow()
{
    if (m_tables.isEmpty())
        push(QStringLiteral("table"));
    closeFrom(innermost(placesForRows()) + 1);
}

void OpenElements::placeCell(const QString &name)
{
    // A cell without a row is given one, in a table of its own, but for a header.
    if (innermost(row()) < 0 && name == QLatin1String("td")) {
        push(QStringLiteral("table"));
        push(QStringLiteral("tr"));
    }
    closeFrom(innermost(row()) + 1);
}

void OpenElements::push(const QString &name)
{
    if (name == QLatin1String("table"))
        addTable();
    else if (name == QLatin1String("tr"))
        addRow();
    m_open.append(name);
}

void OpenElements::addTable()
{
    if (!m_tables.isEmpty() && innermost(cell()) < innermost(table()))
        ++m_misplaced;
    m_tables.append(Table());
}

void OpenElements::addRow()
{
    Table &table = m_tables.last();
    const Table before = table;
    ++table.rows;
    table.hanging += table.hangingNext;
    table.inRow = table.hanging;
    table.hangingNext = 0;
    count(before);
}

void OpenElements::addCell(int columns, int rows)
{
    Table &table = m_tables.last();
    const Table before = table;
    table.inRow += columns;
    table.columns = qMax(table.columns, table.inRow);
    if (rows > 1)
        table.hangingNext += columns;
    count(before);
    if (rows > 1 || columns > 1)
        m_merging += table.cells();
}

void OpenElements::count(const Table &before)
{
    const qint64 more = m_tables.last().cells() - before.cells();
    m_cells += more;
    m_weight += more << qBound(0, tables() - 1, deepestTable);
}
