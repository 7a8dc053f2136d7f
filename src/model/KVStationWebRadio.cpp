#include "model/KVStationWebRadio.h"

#include "model/KeyedArchive.h"

namespace sonavel {

KVStationWebRadio::KVStationWebRadio(const KeyedArchive& archive)
    : KVStationWebRadio(archive.decodeInteger("idRadio"), archive.decodeObject(radioKey), archive.decodeObject(linkKey))
{
}

std::string KVStationWebRadio::returnPropertyIntoFormatDefaultCSV() const
{
    std::string line = std::to_string(idRadio_);
    line.append(";").append(radio_.view()).append(";").append(link_.view()).append("\r");
    return line;
}

void KVStationWebRadio::encodeWithCoder(KeyedArchive& archive) const
{
    archive.encodeInteger(idRadio_, "idRadio");
    archive.encodeObject(radio_, radioKey);
    archive.encodeObject(link_, linkKey);
}

} // namespace sonavel
