// Fuzzes reading, writing and ordering station lists.

#include "Require.h"
#include "model/KVStationWebRadio.h"
#include "model/NameOrder.h"
#include "model/StationList.h"
#include "model/StationListText.h"

#include <algorithm>
#include <cstdint>

namespace sonavel {
namespace {

bool isInside(std::string_view part, std::string_view whole)
{
    return part.data() >= whole.data() && part.data() + part.size() <= whole.data() + whole.size();
}

void checkFields(const StationRecords& records, const Text& text)
{
    const auto lines = static_cast<std::uint64_t>(std::count(text.view().begin(), text.view().end(), '\r')) + 1;
    std::uint64_t firstPossible = 0;
    for (const auto& record : records) {
        const std::string_view name = record->radio().view();
        const std::string_view link = record->link().view();
        require(record->idRadio() >= firstPossible && record->idRadio() < lines, "numbers rise within the lines");
        firstPossible = record->idRadio() + 1;
        require(isInside(name, text.view()) && isInside(link, text.view()), "fields are slices of the text");
        require(name.find_first_of(";\r") == std::string_view::npos, "names have no separator");
        require(link.find_first_of(";\r") == std::string_view::npos, "addresses have no separator");
        require(!name.empty() && name != "-" && name != "radio" && name != "link", "lines to be skipped are skipped");
    }
}

void checkRoundTrip(const StationRecords& records, Heading heading)
{
    const StationRecords again = recordsFromListText(listTextFromRecords(records, heading));
    require(again.size() == records.size(), "every written station is read again");
    for (std::size_t index = 0; index < records.size(); ++index) {
        require(again[index]->idRadio() == index + (heading == Heading::FieldNames ? 1 : 0), "lines are counted");
        require(again[index]->radio() == records[index]->radio(), "names are read as written");
        require(again[index]->link() == records[index]->link(), "addresses are read as written");
    }
}

void checkOrder(const Text& left, const Text& right)
{
    const auto order = compareNames(left.view(), right.view());
    require(std::is_lt(order) == std::is_gt(compareNames(right.view(), left.view())), "the order has two sides");
}

void checkSorting(const StationRecords& records)
{
    StationList list;
    list.listRadio = std::make_shared<StationRecords>(records);
    list.sortingRadioWithKey("radio");
    StationRecords expected = records;
    std::stable_sort(expected.begin(), expected.end(), [](const auto& left, const auto& right) {
        return std::is_lt(compareNames(left->radio().view(), right->radio().view()));
    });
    require(*list.listRadio == expected, "sorting is stable and by name");
    for (std::size_t index = 1; index < expected.size(); ++index) {
        checkOrder(expected[index - 1]->radio(), expected[index]->radio());
        checkOrder(records[index - 1]->radio(), records[index]->radio());
    }
}

void checkJson(const StationRecords& records, const Text& text)
{
    StationList list;
    list.listRadio = std::make_shared<StationRecords>(records);
    const Text json = list.convertRadioListToJSON();
    require(!json.isAbsent() || !isValidUtf8(text.view()), "a list in UTF-8 has a JSON form");
}

} // namespace
} // namespace sonavel

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace sonavel;
    const Text text(std::string(reinterpret_cast<const char*>(data), size));
    const StationRecords records = recordsFromListText(text);
    checkFields(records, text);
    checkRoundTrip(records, Heading::None);
    checkRoundTrip(records, Heading::FieldNames);
    checkSorting(records);
    checkJson(records, text);
    return 0;
}
