// Lines of text from other programs.
#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string_view>

namespace sonavel {

/// Splits a text into lines that end with CR, LF or CR LF. What follows the last line end is a line unless it is empty.
class TextLines {
public:
    /// Neither the object nor its lines may outlive `text`.
    explicit TextLines(std::string_view text)
        : rest_(text)
    {
    }

    /// The next line without its end; nothing after the last.
    [[nodiscard]] std::optional<std::string_view> next()
    {
        if (rest_.empty())
            return std::nullopt;
        ++count_;
        const std::size_t end = rest_.find_first_of("\r\n");
        const std::string_view line = rest_.substr(0, end);
        rest_.remove_prefix(line.size());
        rest_.remove_prefix(rest_.starts_with("\r\n") ? 2 : std::min<std::size_t>(rest_.size(), 1));
        return line;
    }

    /// The number of the line returned last, counted from 0.
    [[nodiscard]] std::uint64_t number() const { return count_ - 1; }

private:
    std::string_view rest_;
    std::uint64_t count_ = 0;
};

} // namespace sonavel
