#pragma once

#include <QString>

class QUrl;

/// The plain name under which a download is kept: what follows the last separator of the address's decoded
/// path. "download" when that names no ordinary file of a folder on one of the platforms: it is empty or dots
/// alone, it is a device, or it holds a colon or a control character.
QString downloadName(const QUrl &url);
