// The program's text: immutable UTF-8, shared by reference, possibly absent.
#pragma once

#include <compare>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace sonavel {

/// An immutable piece of UTF-8 text, or no text at all.
///
/// A copy shares the same characters. A slice shares them too and keeps the whole text that it was cut from alive, so
/// that a list of stations can be read from one large text without copying a name.
///
/// Absent and empty are different: an absent text equals only an absent text. The bytes are not examined; whoever makes
/// a text from the outside checks with `isValidUtf8` first.
class Text {
public:
    /// The absent text.
    Text() = default;
    Text(const char* utf8)
        : Text(std::string(utf8))
    {
    }
    Text(std::string_view utf8)
        : Text(std::string(utf8))
    {
    }
    Text(std::string utf8)
        : owner_(std::make_shared<const std::string>(std::move(utf8)))
        , view_(*owner_)
    {
    }

    [[nodiscard]] bool isAbsent() const { return owner_ == nullptr; }

    /// The bytes; empty for an absent text. Valid as long as this text or a copy or slice of it lives.
    [[nodiscard]] std::string_view view() const { return view_; }
    [[nodiscard]] std::string string() const { return std::string(view_); }
    [[nodiscard]] bool isEmpty() const { return view_.empty(); }

    /// Shares a part of this text; `part` must be a piece of `view()`.
    [[nodiscard]] Text slice(std::string_view part) const { return Text(owner_, part); }

    /// The length in UTF-16 code units, which is what field limits count; 0 for an absent text.
    [[nodiscard]] std::size_t length() const;
    /// The beginning of the text, of as many whole characters as fit into that many UTF-16 code units.
    [[nodiscard]] Text prefix(std::size_t length) const;

    /// Whether both are the very same characters in memory, not only equal ones; two absent texts are the same.
    [[nodiscard]] bool isSameObject(const Text& other) const
    {
        return view_.data() == other.view_.data() && view_.size() == other.view_.size();
    }

    /// Exact equality, byte by byte, which for UTF-8 is character by character.
    friend bool operator==(const Text& left, const Text& right)
    {
        return left.isAbsent() == right.isAbsent() && left.view_ == right.view_;
    }

private:
    Text(std::shared_ptr<const std::string> owner, std::string_view part)
        : owner_(std::move(owner))
        , view_(part)
    {
    }

    std::shared_ptr<const std::string> owner_;
    std::string_view view_;
};

/// Whether the bytes are well-formed UTF-8 (no overlong forms, no surrogates, nothing above U+10FFFF).
[[nodiscard]] bool isValidUtf8(std::string_view bytes);

/// Removes the first character of a text that is not empty. Invalid UTF-8 is U+FFFD for each byte.
[[nodiscard]] char32_t takeCharacter(std::string_view& utf8);

/// The beginning of a text in UTF-8, of as many whole characters as fit into `maxBytes`.
[[nodiscard]] std::string_view utf8Prefix(std::string_view text, std::size_t maxBytes);

} // namespace sonavel
