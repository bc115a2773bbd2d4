#include "pictures/sharedpicture.h"

#include "pictures/filecache.h"
#include "pictures/mediafile.h"

std::shared_ptr<const SharedPicture> SharedPicture::in(const QString &path, QString *reason)
{
    static FileCache<SharedPicture> pictures;
    return pictures.get(path, [reason](const QString &file) -> std::shared_ptr<const SharedPicture> {
        auto picture = std::make_shared<SharedPicture>();
        picture->m_image = MediaFile::readPicture(file, reason);
        // The picture was found to fit before it was read.
        const bool isKept =
            !picture->m_image.isNull() && picture->m_claim.take(picture->m_image.sizeInBytes());
        return isKept ? picture : nullptr;
    });
}
