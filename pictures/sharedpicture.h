#pragma once

#include "pictures/memoryclaim.h"

#include <QImage>

#include <memory>

/// A decoded picture with its part of the memory for all media, which is counted once for all who show it.
class SharedPicture
{
public:
    /// The picture in the file, the same for all who ask while it is in use and the file as it was. Null for
    /// a file that cannot be read as such, with the limit that it is beyond, if any, as the reason.
    static std::shared_ptr<const SharedPicture> in(const QString &path, QString *reason = nullptr);

    const QImage &image() const { return m_image; }

private:
    QImage m_image;
    MemoryClaim m_claim;
};
