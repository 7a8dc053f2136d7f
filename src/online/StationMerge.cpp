#include "online/StationMerge.h"

#include "model/KVStationWebRadio.h"

#include <memory_resource>
#include <string_view>
#include <unordered_map>

namespace sonavel {

bool mergeStations(StationRecords& stored, const StationRecords& downloaded)
{
    std::pmr::monotonic_buffer_resource memory; // one node after the other, for the processor's caches
    std::pmr::unordered_multimap<std::string_view, std::size_t> byName(stored.size() + downloaded.size(), &memory);
    for (std::size_t position = 0; position < stored.size(); ++position)
        byName.emplace(stored[position]->radio().view(), position);
    bool changed = false;
    for (const auto& station : downloaded) {
        auto [present, end] = byName.equal_range(station->radio().view());
        if (present == end) {
            byName.emplace(station->radio().view(), stored.size());
            stored.push_back(station);
            changed = true;
        }
        for (; present != end; ++present) {
            StationRecord& record = stored[present->second];
            if (record->link() == station->link())
                continue;
            record = std::make_shared<KVStationWebRadio>(record->idRadio(), record->radio(), station->link());
            changed = true;
        }
    }
    return changed;
}

} // namespace sonavel
