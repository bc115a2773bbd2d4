#pragma once

#include <QJsonObject>

/// A layout with items of all kinds, of which the number tells which: texts in HTML of all sorts, fonts that
/// are not there and characters that fonts lack, shapes of all kinds, the pictures of a folder, values of the
/// wrong type, items partly outside.
QJsonObject generatedBoard(quint32 number, const QStringList &media);
