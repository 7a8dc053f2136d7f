#include "qt/SaveFailure.h"

#include "qt/kit/TextConversion.h"

namespace sonavel {

namespace {

const char* keyOf(UserFile::Kind kind)
{
    switch (kind) {
    case UserFile::Kind::StationList:
        return "NOTICE_STATIONS_NOT_SAVED";
    case UserFile::Kind::Preferences:
        return "NOTICE_PREFERENCES_NOT_SAVED";
    default:
        return "NOTICE_FILE_NOT_SAVED";
    }
}

} // namespace

QString saveFailureText(const UserFile& file, const std::error_code& why)
{
    return filledIn(keyOf(file.kind), onOneLine(QString::fromStdString(why.message())));
}

} // namespace sonavel
