#include "base/Ascii.h"
#include "model/KVStationWebRadio.h"
#include "model/StationList.h"
#include "model/StationListText.h"
#include "playlists/ListFormats.h"

#include <nlohmann/json.hpp>

#include <unordered_set>

namespace sonavel {

namespace {

/// Makes stations of the members of a JSON object, which is never held in memory as a whole.
class MemberReader {
public:
    tl::expected<ParsedList, std::string> read(std::string_view bytes)
    {
        const auto handle = [this](int depth, Event event, Json& value) { return handleEvent(depth, event, value); };
        if (!Json::parse(bytes, handle, false).is_object())
            return tl::unexpected<std::string>("it is not a JSON object");
        return std::move(list_);
    }

private:
    using Json = nlohmann::json;
    using Event = Json::parse_event_t;

    /// Whether to keep the value, which is so for the outermost object alone.
    bool handleEvent(int depth, Event event, const Json& value)
    {
        if (depth == 0)
            return event == Event::object_start || event == Event::object_end;
        if (depth > 1)
            return false;
        if (event == Event::key) {
            ++members_;
            address_ = value.get<std::string>();
        } else if (event == Event::value && value.is_string()) {
            addStation(value.get<std::string>());
        } else if (event == Event::value || event == Event::object_start || event == Event::array_start) {
            diagnose("left out, as no name stands for " + inQuotes(address_));
        }
        return false;
    }

    void addStation(std::string value)
    {
        const Text given(std::move(value));
        const Text address(std::move(address_));
        const Text link = withoutSeparators(address);
        Text name = withoutSeparators(given);
        if (!link.isSameObject(address))
            diagnose("separators are taken out of the address " + inQuotes(address.view()));
        if (!name.isSameObject(given))
            diagnose("separators are taken out of the name " + inQuotes(given.view()));
        if (!isStationName(name.view())) {
            name = nameFromAddress(link);
            diagnose((name.isAbsent() ? "left out, as no list keeps the name " : "renamed, as no list keeps the name ")
                + inQuotes(given.view()));
        }
        if (!name.isAbsent())
            list_.stations.push_back(std::make_shared<KVStationWebRadio>(members_ - 1, name, link));
    }

    void diagnose(std::string what)
    {
        list_.diagnostics.push_back({members_ - 1, std::move(what), Diagnostic::Severity::Loss});
    }

    ParsedList list_{"member", {}, {}};
    std::uint64_t members_ = 0;
    std::string address_;
};

bool looksLikeJson(std::string_view bytes)
{
    if (!bytes.starts_with('{'))
        return false;
    const std::string_view members = withoutOuterBlanks(bytes.substr(1));
    return members.starts_with('"') || members.starts_with('}');
}

tl::expected<SerializedList, std::string> serialize(const StationRecords& stations)
{
    StationList list;
    list.setListRadio(stations);
    const Text json = list.convertRadioListToJSON();
    if (json.isAbsent())
        return tl::unexpected<std::string>("a name or address is not valid UTF-8");
    std::unordered_set<std::string_view> addresses;
    for (const auto& station : stations)
        addresses.insert(station->link().view());
    return SerializedList{json.string() + "\n", stations.size() - addresses.size()};
}

} // namespace

/// A JSON object in UTF-8: each member's name is an address, its value the station's name. It is written with a line
/// feed at the end, and with one name for each address, that of the last station.
///
/// The stations come in the order of the members, repeated addresses too. Members whose value is no text are left out.
/// ";" and carriage returns are removed from names and addresses, and a name that a list does not keep is replaced by
/// one from its address, or its station left out; these are diagnosed.
constinit const ListFormat jsonFormat{
    {"json"}, looksLikeJson, [](std::string_view bytes) { return MemberReader().read(bytes); }, serialize};

} // namespace sonavel
