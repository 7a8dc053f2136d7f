#include "model/StationListText.h"

#include "model/KVStationWebRadio.h"

#include <algorithm>

namespace sonavel {

namespace {

/// Spare capacity for what encryption appends, so that a text of many megabytes can be encrypted where it lies.
constexpr std::size_t encryptionPadding = 16;

/// Cuts the part before `separator` off; the whole of `rest` when there is none.
std::string_view takeUntil(std::string_view& rest, char separator)
{
    const std::size_t length = std::min(rest.find(separator), rest.size());
    const std::string_view part = rest.substr(0, length);
    rest.remove_prefix(std::min(length + 1, rest.size()));
    return part;
}

std::size_t lengthOfListText(const StationRecords& records)
{
    std::size_t length = 0;
    for (const auto& record : records)
        length += record->radio().view().size() + record->link().view().size() + 2;
    return length;
}

} // namespace

bool isStationName(std::string_view name)
{
    return !name.empty() && name != "-" && name != radioKey && name != linkKey;
}

std::optional<StationListLine> StationListReader::next()
{
    if (ended_)
        return std::nullopt;
    const std::size_t end = rest_.find('\r');
    ended_ = end == std::string_view::npos;
    std::string_view line = rest_.substr(0, end);
    rest_.remove_prefix(ended_ ? rest_.size() : end + 1);

    StationListLine result;
    result.number = number_++;
    result.text = line;
    const std::size_t separator = line.find(';');
    if (separator == std::string_view::npos || !isStationName(line.substr(0, separator)))
        return result;
    result.isStation = true;
    result.name = takeUntil(line, ';');
    result.link = takeUntil(line, ';');
    return result;
}

StationRecords recordsFromListText(const Text& text)
{
    StationRecords records;
    if (text.isAbsent())
        return records;
    StationListReader reader(text.view());
    while (const auto line = reader.next())
        if (line->isStation)
            records.push_back(
                std::make_shared<KVStationWebRadio>(line->number, text.slice(line->name), text.slice(line->link)));
    return records;
}

std::string listTextFromRecords(const StationRecords& records, Heading heading)
{
    std::string text;
    const Text fieldNames = KVStationWebRadio::returnPropertyNameListDefault();
    text.reserve(fieldNames.view().size() + lengthOfListText(records) + encryptionPadding);
    if (heading == Heading::FieldNames)
        text += fieldNames.view();
    for (const auto& record : records) {
        text += record->radio().view();
        text += ';';
        text += record->link().view();
        text += '\r';
    }
    return text;
}

Text withoutSeparators(const Text& text)
{
    if (text.view().find_first_of(";\r") == std::string_view::npos)
        return text;
    std::string rest = text.string();
    std::erase_if(rest, [](char character) { return character == ';' || character == '\r'; });
    return rest;
}

} // namespace sonavel
