// Values stored under keys: the form in which a record can be written down and read again.
#pragma once

#include "base/Text.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace sonavel {

/// Numbers and texts under keys of their own; both kinds may use the same key. An absent text is not stored.
class KeyedArchive {
public:
    void encodeInteger(std::uint64_t value, std::string_view key)
    {
        integers_.insert_or_assign(std::string(key), value);
    }
    void encodeObject(const Text& text, std::string_view key)
    {
        if (!text.isAbsent())
            texts_.insert_or_assign(std::string(key), text);
    }

    /// 0 for a missing key.
    [[nodiscard]] std::uint64_t decodeInteger(std::string_view key) const { return valueIn(integers_, key); }
    /// The very text that was stored, not a copy of it; absent for a missing key.
    [[nodiscard]] Text decodeObject(std::string_view key) const { return valueIn(texts_, key); }

private:
    template <class Value> using Values = std::map<std::string, Value, std::less<>>;

    template <class Value> static Value valueIn(const Values<Value>& values, std::string_view key)
    {
        const auto found = values.find(key);
        return found == values.end() ? Value() : found->second;
    }

    Values<std::uint64_t> integers_;
    Values<Text> texts_;
};

} // namespace sonavel
