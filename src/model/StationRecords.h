// The ordered array of station records that a list consists of.
#pragma once

#include <memory>
#include <vector>

namespace sonavel {

class KVStationWebRadio;

/// Shared between lists, hence never altered: a changed station is another record. Not null.
using StationRecord = std::shared_ptr<const KVStationWebRadio>;
using StationRecords = std::vector<StationRecord>;

} // namespace sonavel
