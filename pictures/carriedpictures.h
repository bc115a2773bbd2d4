#pragma once

#include "pictures/memoryclaim.h"

#include <QVariant>

class QUrl;

/// The pictures that the HTML of one text carries with it. Nothing outside is reached for: what a text only
/// names (on a server, in a file) is left out, and so are style sheets, and pictures that are too much for
/// one text or for the memory that all media share.
class CarriedPictures
{
public:
    /// What a document asks for by a type of QTextDocument's and an address. Never nothing, since the toolkit
    /// would then look for itself. What a limit leaves out is told to the log, under the name of the item.
    QVariant resource(int type, const QUrl &address, const QString &item = QString());

    /// Gives the room of all pictures so far back.
    void clear();

private:
    qint64 m_bytes = 0; // of all pictures so far
    MemoryClaim m_claim;
};
