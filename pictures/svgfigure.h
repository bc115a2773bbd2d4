#pragma once

#include "pictures/svgpen.h"

#include <QPolygonF>
#include <QRectF>
#include <QTransform>
#include <QVector>
#include <QXmlStreamAttributes>

/// What one element of a drawing draws, in its own units.
struct SvgFigure {
    enum class Kind { Other, Drawing, Picture, Text, Motion };

    Kind kind = Kind::Other;
    QVector<QPolygonF> lines;     ///< no shorter than its outlines
    QTransform transform;         ///< to the units of what it is in
    bool isTurnedByStyle = false; ///< its transform is not known
    QRectF view;                  ///< of a drawing: what fills the picture; empty when that is not told
    double growth = 1;            ///< of a motion: how many times as large it may make what it is in
    bool isWrapped = false;       ///< a text that is broken into lines
    int letters = 0;
    QVector<QPair<QString, QString>> properties; ///< of the pen, beside the style
    QString style;

    /// Of the element of this name. The whole is what a length of 100% comes to.
    static SvgFigure of(const QString &name, const QXmlStreamAttributes &attributes, double whole);

    /// True for a style that sets a transform.
    static bool turns(const QString &style);

    /// The pen of the figure in something that has this one.
    SvgPen penIn(SvgPen pen) const;
};
