// Lines out of a stream of bytes.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace sonavel {

/// Cuts a stream of bytes into lines, whatever pieces it comes in. A line of more than `maxLine` bytes is dropped,
/// and no more than that is ever kept.
class LineReader {
public:
    /// Holds the longest address and the longest name with every byte of them escaped.
    static constexpr std::size_t maxLine = 32768;

    /// Takes the bytes over; then `nextLine` gives the lines that they end.
    void append(std::string_view bytes) { pending_.append(bytes); }
    [[nodiscard]] std::optional<std::string> nextLine();

private:
    std::string pending_;
    bool isDropping_ = false;
};

} // namespace sonavel
