#include "storage/Backups.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace sonavel {

namespace {

constexpr std::size_t copiesKept = 3;

/// Higher numbers are not ours; the next one must not overflow.
constexpr std::uint32_t maxNumber = 999'999'999;

/// How the backups of one file for one reason are named.
class CopyNames {
public:
    CopyNames(std::string_view path, std::string_view reason)
        : folder_(path.substr(0, path.rfind('/') + 1))
    {
        const std::string_view name = path.substr(folder_.size());
        const std::size_t dot = std::min(name.rfind('.'), name.size());
        head_.append(name.substr(0, dot)).append(".").append(reason);
        extension_ = name.substr(dot);
    }

    /// With the closing "/", which the root folder is made of.
    [[nodiscard]] std::string folder() const { return folder_; }

    [[nodiscard]] Text pathOf(std::uint32_t number) const
    {
        std::string path = folder_ + head_;
        if (number > 1)
            path.append("-").append(std::to_string(number));
        return path + extension_;
    }

    /// Nothing when the name is not one that `pathOf` makes.
    [[nodiscard]] std::optional<std::uint32_t> numberOf(std::string_view name) const
    {
        std::uint32_t number = 1;
        if (name.size() > head_.size() + 1)
            std::from_chars(name.data() + head_.size() + 1, name.data() + name.size(), number);
        if (number == 0 || number > maxNumber || pathOf(number).view() != folder_ + std::string(name))
            return std::nullopt;
        return number;
    }

private:
    std::string folder_;
    std::string head_;
    std::string extension_;
};

using CopiesByNumber = std::map<std::uint32_t, Text>;

CopiesByNumber copiesPresent(const Files& files, const CopyNames& names)
{
    CopiesByNumber copies;
    for (const std::string& name : files.namesInFolder(names.folder()))
        if (const auto number = names.numberOf(name))
            copies.emplace(*number, names.pathOf(*number));
    return copies;
}

using Keep = bool (Files::*)(const Text& path, const Text& copy);

Text keep(Files& files, const Text& path, std::string_view reason, Keep operation)
{
    const CopyNames names(path.view(), reason);
    CopiesByNumber copies = copiesPresent(files, names);
    const std::uint32_t number = copies.empty() ? 1 : copies.rbegin()->first + 1;
    Text copy = names.pathOf(number);
    if (!(files.*operation)(path, copy))
        return {};
    copies.emplace(number, copy);
    for (; copies.size() > copiesKept; copies.erase(copies.begin()))
        files.removeFile(copies.begin()->second);
    return copy;
}

} // namespace

Text keepBackup(Files& files, const Text& path, std::string_view reason)
{
    return keep(files, path, reason, &Files::keepCopy);
}

Text quarantine(Files& files, const Text& path, std::string_view reason)
{
    return keep(files, path, reason, &Files::moveFile);
}

bool keepDamaged(Files& files, const Text& path)
{
    constexpr std::string_view reason = "damaged";
    return !keepBackup(files, path, reason).isAbsent() || !quarantine(files, path, reason).isAbsent();
}

} // namespace sonavel
