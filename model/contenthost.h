#pragma once

#include <QString>

class ContentViewer;
class QRect;

/// What a content needs to know of the frame that it is made in: that the frame takes it, hears of edits and
/// is told where the item was stored, and what it is called.
class ContentHost
{
public:
    virtual ~ContentHost() = default;

    /// Takes the content as the one thing shown by this host, which owns it from now on. Null is allowed.
    virtual void setContent(ContentViewer *content) = 0;

    /// The content was edited in place: there is something to save.
    virtual void contentEdited() = 0;

    /// The content was read from an item object that holds this geometry (canvas pixels). A host on a screen
    /// takes what lies wholly on it as it is; anything else stays as the values, set one by one, have made
    /// it.
    virtual void placeAsStored(const QRect &stored) = 0;

    /// The item's name, for the log; empty when it has none.
    virtual QString name() const { return QString(); }
};
