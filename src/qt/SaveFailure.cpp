#include "qt/SaveFailure.h"

#include "qt/kit/TextConversion.h"

namespace sonavel {

namespace {

const char* keyOf(const QString& path)
{
    if (path.endsWith(QStringLiteral("/radiolist.rdb")))
        return "NOTICE_STATIONS_NOT_SAVED";
    if (path.endsWith(QStringLiteral(".plist")))
        return "NOTICE_PREFERENCES_NOT_SAVED";
    return "NOTICE_FILE_NOT_SAVED";
}

} // namespace

QString saveFailureText(const Text& path, const Text& why)
{
    return qtTrId(keyOf(toQString(path))).replace(QStringLiteral("%@"), onOneLine(toQString(why)));
}

} // namespace sonavel
