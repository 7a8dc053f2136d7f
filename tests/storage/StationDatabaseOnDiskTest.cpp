#include "adapters/PosixFiles.h"
#include "model/StationList.h"
#include "model/StationListText.h"
#include "storage/StationDatabase.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <thread>
#include <utility>

namespace sonavel {
namespace {

/// A list of the given length, so that a mixture of two lists is neither of them.
Text listText(char name, int stations)
{
    std::string text;
    for (int index = 0; index < stations; ++index)
        text.append(1, name).append(std::to_string(index)).append(";http://radio.example\r");
    return text;
}

/// Closes `isWriting` after the first write.
[[noreturn]] void writeInTurn(Files& files, const Text& first, const Text& second, int isWriting)
{
    StationList list;
    StationDatabase database(files, list);
    (void)database.fileRadioDBreadCypted(true);
    for (bool turn = false;; turn = !turn) {
        list.listRadio = std::make_shared<StationRecords>(recordsFromListText(turn ? first : second));
        database.fileRadioDBupdate();
        close(std::exchange(isWriting, -1));
    }
}

TEST(StationDatabaseOnDisk, AKilledWriterLeavesOneOfItsListsAndNoGrowingPileOfFiles)
{
    std::string home = (std::filesystem::temp_directory_path() / "station_database.XXXXXX").string();
    ASSERT_NE(mkdtemp(home.data()), nullptr);
    const Text first = listText('a', 300);
    const Text second = listText('b', 2000);
    PosixFiles files(home);
    StationList list;
    list.listRadio = std::make_shared<StationRecords>(recordsFromListText(first));
    StationDatabase(files, list).fileRadioDBupdate();

    for (int kills = 0; kills < 200; ++kills) {
        std::array<int, 2> ends{};
        ASSERT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
        const pid_t writer = fork();
        ASSERT_GE(writer, 0);
        if (writer == 0)
            writeInTurn(files, first, second, ends[1]);
        close(ends[1]);
        char nothing = 0;
        ASSERT_EQ(read(ends[0], &nothing, 1), 0) << "it writes";
        close(ends[0]);
        // A step that is no divisor of a write's time meets all its moments.
        std::this_thread::sleep_for(std::chrono::microseconds(kills * 37 % 3000));
        kill(writer, SIGKILL);
        waitpid(writer, nullptr, 0);
        const Text found = StationDatabase(files, list).fileRadioDBreadCypted(true);
        ASSERT_TRUE(found == first || found == second) << "after kill " << kills;
    }
    EXPECT_LE(files.namesInFolder(home + "/Library/Preferences").size(), 2U) << "the database and one temporary file";
    std::filesystem::remove_all(home);
}

} // namespace
} // namespace sonavel
