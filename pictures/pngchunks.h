#pragma once

#include <QByteArray>

/// The pieces that PNG files are made of.
namespace PngChunks
{
/// True for bytes that begin like a PNG file.
bool isPng(const QByteArray &bytes);

/// The file without what its picture can do without: texts, colour profiles, notes, and what follows the end.
/// Kilobytes of packed texts may unpack to gigabytes. A piece that is cut short is kept for the reader to
/// judge; bytes that are no PNG file come back as they are.
QByteArray slimmed(QByteArray png);
} // namespace PngChunks
