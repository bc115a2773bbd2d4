#pragma once

#include <QStringList>

/// The names of the font families that the program loaded by itself: one list for the whole process, empty at
/// start, in the order in which the families were first seen. For the main thread alone.
namespace FontFamilies
{
/// A copy of the list.
QStringList list();

/// Appends those of @p families that the list does not hold yet; names that differ in case only differ.
void append(const QStringList &families);
} // namespace FontFamilies
