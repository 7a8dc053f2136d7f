#include "base/Ascii.h"
#include "model/KVStationWebRadio.h"
#include "model/StationList.h"
#include "model/StationListText.h"
#include "playlists/ListFormats.h"

#include <nlohmann/json.hpp>

#include <unordered_set>

namespace sonavel {

namespace {

/// Handles the events of a JSON text, however deep it is nested. Each handler returns whether to continue.
class MemberReader : public nlohmann::json_sax<nlohmann::json> {
public:
    ParsedList list{"member", {}, {}};

    bool null() override { return otherValue(); }
    bool boolean(bool /*value*/) override { return otherValue(); }
    bool number_integer(number_integer_t /*value*/) override { return otherValue(); }
    bool number_unsigned(number_unsigned_t /*value*/) override { return otherValue(); }
    bool number_float(number_float_t /*value*/, const string_t& /*text*/) override { return otherValue(); }
    bool binary(binary_t& /*value*/) override { return otherValue(); }
    bool start_array(std::size_t /*size*/) override { return otherValue() && enter(); }
    bool end_array() override { return leave(); }
    bool start_object(std::size_t /*size*/) override { return (depth_ == 0 || otherValue()) && enter(); }
    bool end_object() override { return leave(); }
    bool parse_error(
        std::size_t /*place*/, const std::string& /*token*/, const nlohmann::detail::exception& /*why*/) override
    {
        return false;
    }

    bool key(string_t& value) override
    {
        if (depth_ != 1)
            return true;
        ++members_;
        address_ = std::move(value);
        return true;
    }

    bool string(string_t& value) override
    {
        if (depth_ != 1)
            return otherValue();
        addStation(std::move(value));
        return true;
    }

private:
    /// Continues, unless the value is the whole text.
    bool otherValue()
    {
        if (depth_ == 1)
            diagnose("left out, as no name stands for " + inQuotes(address_));
        return depth_ > 0;
    }

    bool enter()
    {
        ++depth_;
        return true;
    }

    bool leave()
    {
        --depth_;
        return true;
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
            list.stations.push_back(std::make_shared<KVStationWebRadio>(members_ - 1, name, link));
    }

    void diagnose(std::string what)
    {
        list.diagnostics.push_back({members_ - 1, std::move(what), Diagnostic::Severity::Loss});
    }

    std::size_t depth_ = 0;
    std::uint64_t members_ = 0;
    std::string address_;
};

tl::expected<ParsedList, std::string> parse(std::string_view bytes)
{
    MemberReader reader;
    if (!nlohmann::json::sax_parse(bytes, &reader))
        return tl::unexpected<std::string>("it is not a JSON object");
    return std::move(reader.list);
}

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
constinit const ListFormat jsonFormat{{"json"}, looksLikeJson, parse, serialize};

} // namespace sonavel
