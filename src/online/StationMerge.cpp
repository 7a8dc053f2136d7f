#include "online/StationMerge.h"

#include "model/KVStationWebRadio.h"

#include <string_view>
#include <unordered_map>

namespace sonavel {

namespace {

/// What all downloaded stations of one name come to.
struct Update {
    /// The first of them: this one is appended when no stored station has the name.
    const KVStationWebRadio* station;
    /// The address of the last of them, which remains.
    Text link;
    /// Whether they do not all have the same address, so that one after another changes it.
    bool linkVaries = false;
    bool isStored = false;
};

/// The updates in the order in which their names first occur, found by name.
struct Updates {
    std::vector<Update> inOrder;
    /// The keys lie in the downloaded stations.
    std::unordered_map<std::string_view, std::size_t> positions;
};

Updates updatesFrom(const StationRecords& downloaded)
{
    Updates updates;
    updates.inOrder.reserve(downloaded.size());
    updates.positions.reserve(downloaded.size());
    for (const auto& station : downloaded) {
        const auto [found, isNew] = updates.positions.try_emplace(station->radio().view(), updates.inOrder.size());
        if (isNew) {
            updates.inOrder.push_back({station.get(), station->link()});
            continue;
        }
        Update& update = updates.inOrder[found->second];
        update.linkVaries = update.linkVaries || update.link != station->link();
        update.link = station->link();
    }
    return updates;
}

/// Gives the stored stations their new addresses and marks the updates that met one.
bool updateStored(StationRecords& stored, Updates& updates)
{
    bool changed = false;
    for (const auto& station : stored) {
        const auto found = updates.positions.find(station->radio().view());
        if (found == updates.positions.end())
            continue;
        Update& update = updates.inOrder[found->second];
        update.isStored = true;
        changed = changed || update.linkVaries || station->link() != update.link;
        if (station->link() != update.link)
            station->setLink(update.link);
    }
    return changed;
}

bool appendNew(StationRecords& stored, const Updates& updates)
{
    bool changed = false;
    for (const Update& update : updates.inOrder) {
        if (update.isStored)
            continue;
        auto station = std::make_shared<KVStationWebRadio>(*update.station);
        station->setLink(update.link);
        stored.push_back(std::move(station));
        changed = true;
    }
    return changed;
}

} // namespace

bool mergeStations(StationRecords& stored, const StationRecords& downloaded)
{
    Updates updates = updatesFrom(downloaded);
    const bool changedStored = updateStored(stored, updates);
    const bool appended = appendNew(stored, updates);
    return changedStored || appended;
}

} // namespace sonavel
