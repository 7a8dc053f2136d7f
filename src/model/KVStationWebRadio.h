// The record of one internet radio station, and lists of them.
#pragma once

#include "base/Text.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace sonavel {

class KeyedArchive;

/// The names of a station's fields, which the columns of its table and the heading of a list text bear too.
inline constexpr std::string_view radioKey = "radio";
inline constexpr std::string_view linkKey = "link";

/// A station: a number, a name and a stream address. Any name and address is accepted, absent ones too.
///
/// A copy shares name and address with its original and is the working copy that readers and editors of the list take.
class KVStationWebRadio {
public:
    /// Number 0, no name, no address.
    KVStationWebRadio() = default;
    KVStationWebRadio(std::uint64_t idRadio, Text radio, Text link)
        : idRadio_(idRadio)
        , radio_(std::move(radio))
        , link_(std::move(link))
    {
    }
    /// Reads back what `encodeWithCoder` wrote; a missing key gives 0 or an absent text.
    explicit KVStationWebRadio(const KeyedArchive& archive);

    /// The number that the station got from its reader or maker. Not a key: it need not be unique.
    [[nodiscard]] std::uint64_t idRadio() const { return idRadio_; }
    void setIdRadio(std::uint64_t idRadio) { idRadio_ = idRadio; }

    /// The name; the list is ordered by it.
    [[nodiscard]] const Text& radio() const { return radio_; }
    void setRadio(Text radio) { radio_ = std::move(radio); }

    /// The stream address.
    [[nodiscard]] const Text& link() const { return link_; }
    void setLink(Text link) { link_ = std::move(link); }

    /// "number;name;address" and a carriage return; absent texts are left empty.
    [[nodiscard]] std::string returnPropertyIntoFormatDefaultCSV() const;

    /// Stores the fields under the keys "idRadio", "radio" and "link".
    void encodeWithCoder(KeyedArchive& archive) const;

    /// How many fields a line of the station list text has.
    [[nodiscard]] static std::size_t returnNumberOfFieldFormatDefault() { return 2; }
    /// The header line of the station list text: the names of its fields, and a carriage return.
    [[nodiscard]] static Text returnPropertyNameListDefault() { return "radio;link\r"; }

private:
    std::uint64_t idRadio_ = 0;
    Text radio_;
    Text link_;
};

/// Shared between lists, hence never altered: a changed station is another record. Not null.
using StationRecord = std::shared_ptr<const KVStationWebRadio>;
using StationRecords = std::vector<StationRecord>;

} // namespace sonavel
