#include "online/StationMerge.h"

#include "model/KVStationWebRadio.h"

#include <string>
#include <string_view>
#include <unordered_map>

namespace sonavel {

namespace {

/// A station's name with its hash, which is computed once.
struct HashedName {
    std::size_t hash;
    std::string_view text;

    bool operator==(const HashedName& other) const { return hash == other.hash && text == other.text; }
};

struct HashOfName {
    std::size_t operator()(const HashedName& name) const { return name.hash; }
};

/// The stations of one list whose names' hashes fall together, with all that the merge asks of them side by side.
///
/// Looking up the names of one share after the other stays within the processor's caches, however long the lists are.
class Share {
public:
    struct Station {
        HashedName name;
        std::string_view link;
        /// Where it stands in its list.
        std::size_t place;
    };

    void add(const HashedName& name, std::string_view link, std::size_t place)
    {
        entries_.push_back({name.hash, name.text.size(), link.size(), place});
        characters_.append(name.text).append(link);
    }

    [[nodiscard]] std::size_t size() const { return entries_.size(); }

    /// Visits the stations in the order of their list; the texts are valid as long as the share.
    template <typename Visitor> void forEach(Visitor visit) const
    {
        std::string_view rest = characters_;
        for (const Entry& entry : entries_) {
            const std::string_view name = rest.substr(0, entry.nameLength);
            visit(Station{{entry.nameHash, name}, rest.substr(entry.nameLength, entry.linkLength), entry.place});
            rest.remove_prefix(entry.nameLength + entry.linkLength);
        }
    }

private:
    struct Entry {
        std::size_t nameHash;
        std::size_t nameLength;
        std::size_t linkLength;
        std::size_t place;
    };

    std::vector<Entry> entries_;
    /// Name and address of one station after the other.
    std::string characters_;
};

using Shares = std::vector<Share>;

Shares sharesOf(const StationRecords& records, std::size_t count)
{
    Shares shares(count);
    for (std::size_t place = 0; place < records.size(); ++place) {
        const std::string_view name = records[place]->radio().view();
        const std::size_t hash = std::hash<std::string_view>()(name);
        shares[hash % count].add({hash, name}, records[place]->link().view(), place);
    }
    return shares;
}

/// What all downloaded stations of one name come to.
struct Update {
    /// The place of the first of them: this one is appended when no stored station has the name.
    std::size_t first;
    /// The place of the last of them, whose address remains, and that address.
    std::size_t last;
    std::string_view lastLink;
    /// Whether they do not all have the same address, so that one after another changes it.
    bool linkVaries = false;
    bool isStored = false;
};

using Updates = std::unordered_map<HashedName, Update, HashOfName>;

Updates updatesFrom(const Share& downloaded)
{
    Updates updates;
    updates.reserve(downloaded.size());
    downloaded.forEach([&](const Share::Station& station) {
        Update& update =
            updates.try_emplace(station.name, Update{station.place, station.place, station.link}).first->second;
        update.linkVaries = update.linkVaries || update.lastLink != station.link;
        update.last = station.place;
        update.lastLink = station.link;
    });
    return updates;
}

class Merge {
public:
    Merge(StationRecords& stored, const StationRecords& downloaded)
        : stored_(stored)
        , downloaded_(downloaded)
        , lastOfNew_(downloaded.size())
    {
    }

    bool run()
    {
        constexpr std::size_t stationsOfShare = 4096;
        const std::size_t count = 1 + (stored_.size() + downloaded_.size()) / stationsOfShare;
        const Shares storedShares = sharesOf(stored_, count);
        const Shares downloadedShares = sharesOf(downloaded_, count);
        for (std::size_t share = 0; share < count; ++share)
            mergeShare(storedShares[share], downloadedShares[share]);
        appendNew();
        return changed_;
    }

private:
    void mergeShare(const Share& stored, const Share& downloaded)
    {
        Updates updates = updatesFrom(downloaded);
        stored.forEach([&](const Share::Station& station) {
            const auto found = updates.find(station.name);
            if (found != updates.end())
                updateStored(station, found->second);
        });
        for (const auto& [name, update] : updates)
            if (!update.isStored)
                lastOfNew_[update.first] = downloaded_[update.last].get();
    }

    void updateStored(const Share::Station& station, Update& update)
    {
        update.isStored = true;
        changed_ = changed_ || update.linkVaries;
        if (station.link == update.lastLink && !station.link.empty())
            return;
        const Text& link = downloaded_[update.last]->link();
        if (stored_[station.place]->link() == link)
            return;
        stored_[station.place]->setLink(link);
        changed_ = true;
    }

    void appendNew()
    {
        for (std::size_t place = 0; place < downloaded_.size(); ++place) {
            if (lastOfNew_[place] == nullptr)
                continue;
            stored_.push_back(std::make_shared<KVStationWebRadio>(*downloaded_[place]));
            stored_.back()->setLink(lastOfNew_[place]->link());
            changed_ = true;
        }
    }

    StationRecords& stored_;
    const StationRecords& downloaded_;
    /// At the place of each first station of a name that is not stored: the last one of that name.
    std::vector<const KVStationWebRadio*> lastOfNew_;
    bool changed_ = false;
};

} // namespace

bool mergeStations(StationRecords& stored, const StationRecords& downloaded)
{
    return Merge(stored, downloaded).run();
}

} // namespace sonavel
