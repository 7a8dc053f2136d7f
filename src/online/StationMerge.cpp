#include "online/StationMerge.h"

#include "model/KVStationWebRadio.h"

#include <string_view>
#include <unordered_map>

namespace sonavel {

namespace {

/// What all downloaded stations of one name come to.
struct Update {
    /// The first of them: this one is appended when no stored station has the name.
    const KVStationWebRadio* first;
    /// The last of them, whose address remains.
    const KVStationWebRadio* last;
    /// That address, so that comparing it need not look for its station.
    std::string_view lastLink;
    /// Whether they do not all have the same address, so that one after another changes it.
    bool linkVaries = false;
    bool isStored = false;
};

struct Updates {
    /// The names lie in the downloaded stations.
    std::unordered_map<std::string_view, Update> byName;
    /// In the order in which their names first occur.
    std::vector<const Update*> inOrder;
};

Updates updatesFrom(const StationRecords& downloaded)
{
    Updates updates;
    updates.byName.reserve(downloaded.size());
    updates.inOrder.reserve(downloaded.size());
    for (const auto& station : downloaded) {
        const std::string_view link = station->link().view();
        const auto [found, isNew] =
            updates.byName.try_emplace(station->radio().view(), Update{station.get(), station.get(), link});
        Update& update = found->second;
        if (isNew)
            updates.inOrder.push_back(&update);
        update.linkVaries = update.linkVaries || update.lastLink != link;
        update.last = station.get();
        update.lastLink = link;
    }
    return updates;
}

/// Gives the stored stations their new addresses and marks the updates that met one.
bool updateStored(StationRecords& stored, Updates& updates)
{
    bool changed = false;
    for (const auto& station : stored) {
        const auto found = updates.byName.find(station->radio().view());
        if (found == updates.byName.end())
            continue;
        Update& update = found->second;
        update.isStored = true;
        changed = changed || update.linkVaries;
        if (!station->link().isAbsent() && station->link().view() == update.lastLink)
            continue;
        station->setLink(update.last->link());
        changed = true;
    }
    return changed;
}

bool appendNew(StationRecords& stored, const Updates& updates)
{
    bool changed = false;
    for (const Update* update : updates.inOrder) {
        if (update->isStored)
            continue;
        auto station = std::make_shared<KVStationWebRadio>(*update->first);
        station->setLink(update->last->link());
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
