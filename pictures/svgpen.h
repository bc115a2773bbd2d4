#pragma once

#include <QString>

/// How the outlines and letters of a drawing's figures are drawn, in the drawing's units.
struct SvgPen {
    double width = 1;
    double dash = 0;       ///< mean length of the dashes and gaps; 0 for a solid line
    double miterLimit = 4; ///< of its width
    double letters = 16;   ///< their height
    bool isDrawn = false;
    bool keepsWidth = false; ///< in pixels, whatever the scale

    /// A pen that costs nothing.
    static SvgPen cheapest();

    /// Takes over the property of this name; nothing for an unknown one. What may not be in
    /// force only makes it worse.
    void take(const QString &property, const QString &value);

    /// Takes over what is more costly in the other one.
    void worsen(const SvgPen &other);

    /// Takes over every property in a list of them, with the same care.
    void takeStyle(const QString &style);

    /// Of a text such as "2mm" or "150%", in units; that of the whole is 100%.
    static double lengthOf(const QString &text, double whole);

private:
    void set(const QString &property, const QString &value);
};
