// Lines of texts that other programs wrote.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace sonavel {

/// Takes a text apart into lines that end with CR, LF or both. What follows the last end is a line only if there is
/// something.
class TextLines {
public:
    /// `text` has to outlive the lines.
    explicit TextLines(std::string_view text)
        : rest_(text)
    {
    }

    /// The next line without its end; nothing after the last.
    [[nodiscard]] std::optional<std::string_view> next();

    /// The number of the line given last, counted from 0.
    [[nodiscard]] std::uint64_t number() const { return count_ - 1; }

private:
    std::string_view rest_;
    std::uint64_t count_ = 0;
};

} // namespace sonavel
