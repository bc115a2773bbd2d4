#pragma once

#include <QStringList>

/// The data fields of a game that a text can be bound to. Layout files carry these names.
namespace DataFields
{
/// Every name in the order in which it is offered; the first one stands for no binding.
QStringList names();
} // namespace DataFields
