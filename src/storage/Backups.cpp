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

/// How the backups of one file with one mark are named.
class CopyNames {
public:
    CopyNames(std::string_view path, std::string_view mark)
        : folder_(path.substr(0, path.rfind('/') + 1))
    {
        const std::string_view name = path.substr(folder_.size());
        const std::size_t dot = std::min(name.rfind('.'), name.size());
        head_.append(name.substr(0, dot)).append(".").append(mark);
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

CopiesByNumber copiesAmong(const std::vector<std::string>& present, const CopyNames& names)
{
    CopiesByNumber copies;
    for (const std::string& name : present)
        if (const auto number = names.numberOf(name))
            copies.emplace(*number, names.pathOf(*number));
    return copies;
}

/// `operation` makes the copy at the path that it is given. In a folder that cannot be listed there may be an older
/// copy of that name; then it fails.
FileResult<Text> keep(Files& files, const Text& path, std::string_view mark, auto&& operation)
{
    const CopyNames names(path.view(), mark);
    CopiesByNumber copies =
        copiesAmong(files.namesInFolder(names.folder()).value_or(std::vector<std::string>()), names);
    const std::uint32_t number = copies.empty() ? 1 : copies.rbegin()->first + 1;
    return operation(names.pathOf(number)).map([&] {
        copies.emplace(number, names.pathOf(number));
        for (; copies.size() > copiesKept; copies.erase(copies.begin()))
            files.removeFile(copies.begin()->second);
        return names.pathOf(number);
    });
}

} // namespace

FileResult<Text> keepBackup(Files& files, const Text& path, std::string_view mark)
{
    return keep(files, path, mark, [&](const Text& copy) { return files.keepCopy(path, copy); });
}

FileResult<Text> quarantine(Files& files, const Text& path, std::string_view mark)
{
    return keep(files, path, mark, [&](const Text& copy) { return files.moveFile(path, copy); });
}

FileResult<Text> keepDamaged(Files& files, const Text& path)
{
    return keepBackup(files, path, damagedMark).or_else([&](const std::error_code&) {
        return quarantine(files, path, damagedMark);
    });
}

} // namespace sonavel
