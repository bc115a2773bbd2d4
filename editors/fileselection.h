#pragma once

#include <QString>

#include <optional>

class QWidget;

/// Asks in the toolkit's dialog for an existing file of any kind. Answers an empty path when the user
/// cancels, and nothing when the parent was deleted meanwhile: then the dialog has gone with it.
std::optional<QString> selectFile(QWidget *parent);
