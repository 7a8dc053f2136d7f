// The ordered array of station records that a list consists of.
#pragma once

#include <memory>
#include <vector>

namespace sonavel {

class KVStationWebRadio;

/// Records are shared by reference and never null.
using StationRecords = std::vector<std::shared_ptr<KVStationWebRadio>>;

} // namespace sonavel
