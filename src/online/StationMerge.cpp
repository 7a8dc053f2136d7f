#include "online/StationMerge.h"

#include "model/KVStationWebRadio.h"

#include <string_view>
#include <unordered_map>

namespace sonavel {

bool mergeStations(StationRecords& stored, const StationRecords& downloaded)
{
    std::unordered_multimap<std::string_view, KVStationWebRadio*> byName(stored.size() + downloaded.size());
    for (const auto& station : stored)
        byName.emplace(station->radio().view(), station.get());
    bool changed = false;
    for (const auto& station : downloaded) {
        auto [present, end] = byName.equal_range(station->radio().view());
        if (present == end) {
            stored.push_back(std::make_shared<KVStationWebRadio>(*station));
            byName.emplace(stored.back()->radio().view(), stored.back().get());
            changed = true;
        }
        for (; present != end; ++present) {
            if (present->second->link() == station->link())
                continue;
            present->second->setLink(station->link());
            changed = true;
        }
    }
    return changed;
}

} // namespace sonavel
