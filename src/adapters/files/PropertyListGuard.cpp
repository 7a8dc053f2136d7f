#include "adapters/files/PropertyListGuard.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace sonavel {

namespace {

constexpr std::size_t maxFileSize = std::size_t{1} << 20U;

/// The parser is recursive.
constexpr std::size_t maxXmlContainers = 1'000;

std::size_t occurrences(std::string_view bytes, std::string_view what)
{
    std::size_t count = 0;
    for (std::size_t at = bytes.find(what); at != std::string_view::npos; at = bytes.find(what, at + what.size()))
        ++count;
    return count;
}

/// Traverses a binary property list as the parser does: a table of objects, in which containers refer to others by
/// number, any number of times, so that a small file can describe an infinite or huge tree.
class BinaryTree {
public:
    explicit BinaryTree(std::string_view bytes)
        : bytes_(bytes)
    {
    }

    [[nodiscard]] bool isSafe()
    {
        if (bytes_.size() < trailerSize)
            return false;
        const std::size_t trailer = bytes_.size() - trailerSize;
        offsetSize_ = number(trailer + 6, 1).value_or(0);
        referenceSize_ = number(trailer + 7, 1).value_or(0);
        table_ = number(trailer + 24, 8).value_or(0);
        return visit(number(trailer + 16, 8).value_or(0), 0);
    }

private:
    static constexpr std::size_t trailerSize = 32;
    static constexpr int maxDepth = 16;
    /// In bytes: contents, and an overhead for each node.
    static constexpr std::uint64_t maxTreeSize = std::uint64_t{4} << 20U;
    static constexpr std::uint64_t nodeSize = 64;

    /// The big-endian number of `size` bytes at `position`; nothing beyond the end or 64 bits.
    [[nodiscard]] std::optional<std::uint64_t> number(std::uint64_t position, std::uint64_t size) const
    {
        if (size == 0 || size > 8 || position > bytes_.size() || size > bytes_.size() - position)
            return std::nullopt;
        std::uint64_t value = 0;
        for (const char byte : bytes_.substr(position, size))
            value = value << 8U | static_cast<unsigned char>(byte);
        return value;
    }

    [[nodiscard]] std::optional<std::uint64_t> offsetOf(std::uint64_t object) const
    {
        if (object > bytes_.size() || table_ > bytes_.size())
            return std::nullopt;
        return number(table_ + object * offsetSize_, offsetSize_);
    }

    [[nodiscard]] bool visit(std::uint64_t object, int depth)
    {
        const auto offset = offsetOf(object);
        const auto marker = offset ? number(*offset, 1) : std::nullopt;
        if (!marker || depth > maxDepth)
            return false;
        std::uint64_t contents = *offset + 1;
        const auto count = takeCount(*marker & 0xFU, contents);
        if (!count || *count > bytes_.size())
            return false;
        treeSize_ += nodeSize + *count;
        if (treeSize_ > maxTreeSize)
            return false;

        switch (*marker >> 4U) {
        case 0x5:
            return !hasZeroCharacter(contents, *count, sizeof(char));
        case 0x6:
            return !hasZeroCharacter(contents, *count, sizeof(char16_t));
        case 0xA:
        case 0xB:
        case 0xC:
            return visitAll(contents, *count, depth + 1);
        case 0xD:
            return visitAll(contents, *count * 2, depth + 1);
        default:
            return true;
        }
    }

    /// A count is the marker's lower half or, when that is 15, a number object after the marker.
    [[nodiscard]] std::optional<std::uint64_t> takeCount(std::uint64_t lowerHalf, std::uint64_t& contents) const
    {
        constexpr std::uint64_t elsewhere = 0xF;
        if (lowerHalf != elsewhere)
            return lowerHalf;
        const auto marker = number(contents, 1);
        if (!marker)
            return std::nullopt;
        const std::uint64_t size = std::uint64_t{1} << (*marker & 0xFU);
        const auto count = number(contents + 1, size);
        contents += 1 + size;
        return count;
    }

    /// The parser asserts that keys contain none.
    [[nodiscard]] bool hasZeroCharacter(std::uint64_t text, std::uint64_t count, std::uint64_t characterSize) const
    {
        for (std::uint64_t index = 0; index < count; ++index)
            if (number(text + index * characterSize, characterSize).value_or(0) == 0)
                return true;
        return false;
    }

    [[nodiscard]] bool visitAll(std::uint64_t references, std::uint64_t count, int depth)
    {
        for (std::uint64_t index = 0; index < count; ++index) {
            const auto object = number(references + index * referenceSize_, referenceSize_);
            if (!object || !visit(*object, depth))
                return false;
        }
        return true;
    }

    std::string_view bytes_;
    std::uint64_t offsetSize_ = 0;
    std::uint64_t referenceSize_ = 0;
    std::uint64_t table_ = 0;
    std::uint64_t treeSize_ = 0;
};

} // namespace

bool isSafePropertyList(std::string_view bytes)
{
    if (bytes.size() > maxFileSize)
        return false;
    return isBinaryPropertyList(bytes) ? BinaryTree(bytes).isSafe()
                                       : occurrences(bytes, "<dict") + occurrences(bytes, "<array") <= maxXmlContainers;
}

bool isBinaryPropertyList(std::string_view bytes)
{
    return bytes.starts_with("bplist");
}

} // namespace sonavel
