#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

/// What the attributes and styles of a drawing point to.
namespace SvgAddress
{
/// True for what lies in the drawing itself: "#..." and "data:" pictures. The latter, written in base 64, are
/// added to the pictures.
bool isInside(const QString &address, QVector<QByteArray> &pictures);

/// The same for every "url()" in a style or an attribute. A style that imports another reaches outside.
bool staysInside(const QString &style, QVector<QByteArray> &pictures);

/// The style in plain letters, without the escapes that could hide an address or a number.
QString plain(const QString &style);
} // namespace SvgAddress
