// A folder of a test's own on the real disk.
#pragma once

#include "base/NonCopyable.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>

namespace sonavel::test {

/// Made empty, and removed with everything in it at its end.
class TemporaryFolder : private NonCopyable {
public:
    TemporaryFolder()
    {
        std::string name = (std::filesystem::temp_directory_path() / "sonavel-test-XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr)
            throw std::runtime_error("no temporary folder");
        path_ = name;
    }
    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    [[nodiscard]] std::string path() const { return path_.string(); }
    [[nodiscard]] std::string path(std::string_view name) const { return (path_ / name).string(); }

    void put(std::string_view name, std::string_view content) const
    {
        std::ofstream(path(name), std::ios::binary) << content;
    }

    /// Empty when there is no such file.
    [[nodiscard]] std::string read(std::string_view name) const
    {
        std::ifstream file(path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    [[nodiscard]] std::set<std::string> names() const
    {
        std::set<std::string> found;
        for (const auto& entry : std::filesystem::directory_iterator(path_))
            found.insert(entry.path().filename().string());
        return found;
    }

private:
    std::filesystem::path path_;
};

} // namespace sonavel::test
