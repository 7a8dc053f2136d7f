#include "base/Ascii.h"
#include "base/TextDecoding.h"
#include "playlists/ListFormats.h"
#include "playlists/TextLines.h"

#include <charconv>
#include <map>

namespace sonavel {

namespace {

/// Address and title that share a number, each with its line.
struct PlsEntry {
    struct Value {
        std::uint64_t line = 0;
        std::string text;
    };
    std::optional<Value> file;
    std::optional<Value> title;
};

/// The number in a key such as "File12"; nothing when the key is not `word` and a number.
std::optional<std::uint64_t> numberInKey(std::string_view key, std::string_view word)
{
    if (!beginsWithIgnoringCase(key, word))
        return std::nullopt;
    const char* const end = key.data() + key.size();
    std::uint64_t number = 0;
    const auto result = std::from_chars(key.data() + word.size(), end, number);
    return result.ec == std::errc() && result.ptr == end ? std::optional(number) : std::nullopt;
}

class PlsReader {
public:
    ParsedList read(std::string_view bytes)
    {
        TextLines lines(withoutByteOrderMark(bytes));
        while (const auto line = lines.next())
            readLine(lines.number(), decodeToUtf8(*line));
        for (const auto& [number, entry] : entries_)
            addEntry(entry);
        return std::move(list_);
    }

private:
    void readLine(std::uint64_t number, std::string_view line)
    {
        const std::size_t equals = line.find('=');
        if (equals == std::string_view::npos)
            return;
        const std::string_view key = withoutOuterBlanks(line.substr(0, equals));
        const std::string_view value = withoutOuterBlanks(line.substr(equals + 1));
        if (const auto entry = numberInKey(key, "File"))
            set(entries_[*entry].file, {number, std::string(value)});
        else if (const auto titled = numberInKey(key, "Title"))
            set(entries_[*titled].title, {number, std::string(value)});
    }

    void set(std::optional<PlsEntry::Value>& present, PlsEntry::Value value)
    {
        if (present)
            list_.diagnostics.push_back(
                {value.line, "left out, as an earlier line has the same key", Diagnostic::Severity::Loss});
        else
            present = std::move(value);
    }

    void addEntry(const PlsEntry& entry)
    {
        if (entry.file)
            addStation(list_, entry.file->line, entry.file->text, entry.title ? entry.title->text : "");
        else
            list_.diagnostics.push_back(
                {entry.title->line, "left out, as the title has no address", Diagnostic::Severity::Loss});
    }

    ParsedList list_;
    std::map<std::uint64_t, PlsEntry> entries_;
};

} // namespace

/// A PLS playlist: lines "FileN=address" and "TitleN=name" in any order, keys in upper or lower case. The stations come
/// in the order of their numbers; of several files of one number the first counts.
constinit const ListFormat plsFormat{{"pls"},
    [](std::string_view bytes) { return beginsWithIgnoringCase(bytes, "[playlist]"); },
    [](std::string_view bytes) -> tl::expected<ParsedList, std::string> { return PlsReader().read(bytes); }};

} // namespace sonavel
