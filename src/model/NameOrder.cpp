#include "model/NameOrder.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

namespace sonavel {

namespace {

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// Cuts the digits at the head of `name` off and returns them without leading zeros; none remain of the number 0.
std::string_view takeNumber(std::string_view& name)
{
    const std::size_t length = std::min(name.find_first_not_of("0123456789"), name.size());
    std::string_view digits = name.substr(0, length);
    name.remove_prefix(length);
    digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
    return digits;
}

std::weak_ordering compareNumbers(std::string_view left, std::string_view right)
{
    if (left.size() != right.size())
        return left.size() <=> right.size();
    return left <=> right;
}

/// Writes as much as fits of a byte sequence that orders names.
///
/// A byte that is no digit stands for itself. A number becomes one byte between "0" and "9", which tells how many
/// digits follow, and these digits: so more digits make a greater number, and beside any other byte a number keeps the
/// place that its digits have. From nine digits on the byte is "9" and the key ends there.
class KeyWriter {
public:
    explicit KeyWriter(std::string_view name)
    {
        while (!name.empty() && used_ < bytes_.size()) {
            if (!isDigit(name.front())) {
                bytes_[used_++] = name.front();
                name.remove_prefix(1);
                continue;
            }
            const std::string_view digits = takeNumber(name);
            bytes_[used_++] = static_cast<char>('0' + std::min(digits.size(), mostDigits));
            if (digits.size() >= mostDigits)
                return;
            const std::size_t fitting = std::min(digits.size(), bytes_.size() - used_);
            std::copy_n(digits.data(), fitting, bytes_.data() + used_);
            used_ += fitting;
        }
    }

    [[nodiscard]] std::uint64_t bigEndianAt(std::size_t offset) const
    {
        std::uint64_t value = 0;
        std::memcpy(&value, bytes_.data() + offset, sizeof value);
        if constexpr (std::endian::native == std::endian::little)
            value = __builtin_bswap64(value);
        return value;
    }

private:
    static constexpr std::size_t mostDigits = 9;

    std::array<char, 16> bytes_{};
    std::size_t used_ = 0;
};

} // namespace

std::weak_ordering compareNames(std::string_view left, std::string_view right)
{
    while (!left.empty() && !right.empty()) {
        if (isDigit(left.front()) && isDigit(right.front())) {
            const std::string_view leftNumber = takeNumber(left);
            if (const auto order = compareNumbers(leftNumber, takeNumber(right)); order != 0)
                return order;
            continue;
        }
        // The byte order of UTF-8 is the order of the Unicode values.
        if (left.front() != right.front())
            return static_cast<unsigned char>(left.front()) <=> static_cast<unsigned char>(right.front());
        left.remove_prefix(1);
        right.remove_prefix(1);
    }
    return left.size() <=> right.size();
}

NameKey::NameKey(std::string_view name)
{
    const KeyWriter writer(name);
    first_ = writer.bigEndianAt(0);
    second_ = writer.bigEndianAt(8);
}

} // namespace sonavel
