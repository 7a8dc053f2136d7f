// Fuzzes reading, writing and ordering station lists.

#include "Require.h"
#include "base/Numbers.h"
#include "model/KVStationWebRadio.h"
#include "model/StationList.h"
#include "model/StationListText.h"

#include <algorithm>
#include <cstdint>
#include <utility>

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

std::string_view takeNumber(std::string_view& name)
{
    std::string_view digits = name.substr(0, name.find_first_not_of("0123456789"));
    name.remove_prefix(digits.size());
    digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
    return digits;
}

/// The rule as it reads.
bool comesBefore(std::string_view left, std::string_view right)
{
    while (!left.empty() && !right.empty()) {
        if (isDigit(left.front()) && isDigit(right.front())) {
            const std::string_view one = takeNumber(left);
            const std::string_view other = takeNumber(right);
            if (one != other)
                return std::pair(one.size(), one) < std::pair(other.size(), other);
        } else if (left.front() != right.front()) {
            return static_cast<unsigned char>(left.front()) < static_cast<unsigned char>(right.front());
        } else {
            left.remove_prefix(1);
            right.remove_prefix(1);
        }
    }
    return left.size() < right.size();
}

void checkSorting(const StationRecords& records)
{
    StationList list;
    list.setListRadio(records);
    list.sortingRadioWithKey("radio");
    StationRecords expected = records;
    std::stable_sort(expected.begin(), expected.end(),
        [](const auto& left, const auto& right) { return comesBefore(left->radio().view(), right->radio().view()); });
    require(*list.listRadio() == expected, "sorting is stable and by name");
}

void checkJson(const StationRecords& records, const Text& text)
{
    StationList list;
    list.setListRadio(records);
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
