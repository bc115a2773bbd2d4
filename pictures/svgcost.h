#pragma once

#include "pictures/svgelements.h"
#include "pictures/svgfigure.h"

#include <QSize>

/// How long a drawing takes to be read and drawn: never far below what the toolkit takes, often above.
class SvgCost
{
public:
    /// The longest time that any drawing may take, with what it carries, in nanoseconds.
    static constexpr double maximum = 5e8;

    /// Takes the next element, in the order in which they are opened.
    void addElement(const QString &name, const QXmlStreamAttributes &attributes);

    /// So many letters lie in the element of this number.
    void addLetters(int element, int letters) { m_figures[element].letters += letters; }

    /// What a style sheet says, which may be meant for any of the elements.
    void addSheet(const QString &sheet);

    /// True when the drawing itself tells what fills the picture; else all its figures are measured for that.
    bool hasView() const { return !m_figures.isEmpty() && !m_figures.first().view.isEmpty(); }

    /// Of reading, before anything is drawn, in nanoseconds.
    double readingTime() const;

    /// Of drawing a picture of this size, in nanoseconds; gives up somewhere beyond the maximum. The elements
    /// are within their limits.
    double drawingTime(const SvgElements &elements, const QSize &picture) const;

private:
    void countRules(const QString &style);

    QVector<SvgFigure> m_figures;
    SvgPen m_sheet = SvgPen::cheapest();
    double m_whole = 0; // what 100% comes to
    int m_rules = 0;
    int m_relations = 0; // rules about elements in or beside others
    int m_stops = 0;
    bool m_isEndless = false;
};
