#include "update/downloadname.h"

#include <QRegularExpression>
#include <QUrl>

namespace
{
/// Names that some platform takes for something else than a file of the folder at hand. Folders of the other
/// platforms are read there too, so the rule is the same everywhere.
bool isUnusable(const QString &name)
{
    static const QRegularExpression unusable(
        QStringLiteral("^[. ]*$"
                       "|[:[:cntrl:]]"
                       "|^(con|prn|aux|nul|conin\\$|conout\\$|(com|lpt)[0-9¹²³]) *(\\.|$)"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DontCaptureOption);
    return unusable.match(name).hasMatch();
}
} // namespace

QString downloadName(const QUrl &url)
{
    const QString path = url.path(QUrl::FullyDecoded);
    const int separator = qMax(path.lastIndexOf(QLatin1Char('/')), path.lastIndexOf(QLatin1Char('\\')));
    const QString name = path.mid(separator + 1);
    return isUnusable(name) ? QStringLiteral("download") : name;
}
