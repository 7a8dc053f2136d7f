// The text form of station lists: how they are stored and exchanged.
#pragma once

#include "base/Text.h"
#include "model/KVStationWebRadio.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace sonavel {

/// The extension of files with a station list text.
inline constexpr const char* listTextExtension = "csv";

/// One line of a station list text.
struct StationListLine {
    /// Counted from 0 over all lines, the header and skipped ones included.
    std::uint64_t number = 0;
    /// The line as it stands, without its end.
    std::string_view text;
    /// False for a line that is no station: its first field is empty, "-", "radio" or "link", or it has no ";". Its
    /// fields are empty.
    bool isStation = false;
    std::string_view name;
    std::string_view link;
};

/// Whether a list text keeps a station of that name, which it does not for "", "-", "radio" and "link".
[[nodiscard]] bool isStationName(std::string_view name);

/// Reads a station list text line by line.
///
/// Lines end at a carriage return, and what follows the last one is a line too; a line feed is an ordinary character.
/// ";" separates fields, the first is the name, the second the address, further ones are ignored.
class StationListReader {
public:
    /// `text` has to outlive the reader and the lines that it gives.
    explicit StationListReader(std::string_view text)
        : rest_(text)
    {
    }

    /// The next line, nothing after the last. The empty text has one, empty line.
    [[nodiscard]] std::optional<StationListLine> next();

private:
    std::string_view rest_;
    std::uint64_t number_ = 0;
    bool ended_ = false;
};

/// The stations of a list text in line order, numbered by line. Their names and addresses are slices of `text`. An
/// absent text has no stations.
[[nodiscard]] StationRecords recordsFromListText(const Text& text);

/// Whether a list text begins with a line that names its fields.
enum class Heading { None, FieldNames };

/// The list as text: for each station its name, ";", its address and a carriage return, absent texts left empty. What a
/// name or address contains is not examined, so the text reads back the same only without ";" and carriage returns.
[[nodiscard]] std::string listTextFromRecords(const StationRecords& records, Heading heading);

/// The name or address without every ";" and carriage return, which no list text can hold in one; the very same text
/// when it has none.
[[nodiscard]] Text withoutSeparators(const Text& text);

} // namespace sonavel
