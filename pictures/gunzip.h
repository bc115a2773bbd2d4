#pragma once

#include <QByteArray>

/// What a gzip file holds; null when it holds more bytes than the maximum, and when it is damaged or cut
/// short. Takes no more memory than the maximum, whatever the file says.
QByteArray gunzip(const QByteArray &packed, int maximum);
