// The merge of downloaded stations into stored ones.
#pragma once

#include "model/KVStationWebRadio.h"

namespace sonavel {

/// Takes the downloaded stations over, one after the other: every stored station of exactly that name gets the
/// downloaded address, in a record of its own; where there is none, the downloaded one is appended, and takes part from
/// then on. Nothing else about the stored stations changes.
///
/// Answers whether anything was changed on the way, also when a later station of the same name undid it. Takes time in
/// proportion to the number of stations, where no name is that of many in both lists. Names must be present.
[[nodiscard]] bool mergeStations(StationRecords& stored, const StationRecords& downloaded);

} // namespace sonavel
