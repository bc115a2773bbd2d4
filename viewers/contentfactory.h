#pragma once

#include <QPair>
#include <QString>
#include <QVector>

class ContentViewer;
class QWidget;

/// The kinds of content by type name, and the roads on which each kind enters the canvas.
namespace ContentFactory
{
/// Makes a content of the kind inside the frame, which takes and owns it; null for an unknown kind.
ContentViewer *create(const QString &type, QWidget *frame);

/// The kinds that the item bar offers, from left to right: type name and path of the icon.
QVector<QPair<QString, QString>> clickableTypes();

/// True for kinds that a click in the item bar creates.
bool isClickable(const QString &type);

/// True for kinds that a drop on the canvas creates.
bool isDroppable(const QString &type);

/// True for kinds that come from files and from the clipboard.
bool isReadable(const QString &type);

/// The first word of the name of an item that a click creates; kinds with the same word are counted together.
QString namePrefix(const QString &type);
} // namespace ContentFactory
