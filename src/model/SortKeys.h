// Names in a form whose bytes compare as the names do.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace sonavel {

/// The keys of many names. Two keys compare byte by byte, the shorter before its continuation, as their names do, and
/// are equal for equivalent names. No key has a zero byte, so words filled up with zeros compare alike.
class SortKeys {
public:
    static constexpr std::size_t wordSize = 8;

    explicit SortKeys(const std::vector<std::string_view>& names);

    /// Eight bytes of a key as a number that compares as they do; zeros stand for what lies behind its end.
    [[nodiscard]] std::uint64_t wordAt(std::size_t place, std::size_t offset) const;

    /// Whether no byte follows a word in its key.
    [[nodiscard]] static bool isLastWord(std::uint64_t word) { return (word & 0xFFU) == 0; }

    /// The key from `offset` on; empty behind its end.
    [[nodiscard]] std::string_view restAt(std::size_t place, std::size_t offset) const;

private:
    /// An array, since a container would write its memory twice.
    std::unique_ptr<char[]> bytes_; // NOLINT(*-avoid-c-arrays)
    std::vector<std::size_t> ends_;
};

} // namespace sonavel
