// The station database on the real disk, while its writer is killed.
#include "adapters/files/PosixFiles.h"
#include "model/StationList.h"
#include "model/StationListText.h"
#include "storage/StationDatabase.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <random>

namespace sonavel {
namespace {

Text listText(const std::string& name, int stations)
{
    std::string text;
    for (int number = 0; number < stations; ++number)
        text.append(name).append(std::to_string(number)).append(";http://example.invalid/\r");
    return text;
}

const std::array lists{listText("a short list", 300), listText("a list that is longer", 900)};

Text listOnDisk(const std::string& home)
{
    PosixFiles files(home);
    return StationDatabase(files, {}).fileRadioDBreadCypted(true);
}

/// Writes both lists by turns; reports through the pipe once the first is written.
[[noreturn]] void writeUntilKilled(const std::string& home, int pipe)
{
    PosixFiles files(home);
    StationList list;
    StationDatabase database(files, list);
    // Who has not read the database keeps a backup of it.
    static_cast<void>(database.fileRadioDBreadCypted(true));
    for (std::size_t turn = 0;; ++turn) {
        list.setListRadio(recordsFromListText(lists.at(turn % lists.size())));
        database.fileRadioDBupdate();
        if (turn == 0 && ::write(pipe, "w", 1) != 1)
            ::_exit(1);
    }
}

/// Starts a writer and kills it at some moment `delay` after its first write.
void killWriterAfter(std::chrono::microseconds delay, const std::string& home)
{
    std::array<int, 2> pipe{};
    ASSERT_EQ(::pipe(pipe.data()), 0);
    const pid_t writer = ::fork();
    ASSERT_GE(writer, 0);
    if (writer == 0)
        writeUntilKilled(home, pipe[1]);
    ::close(pipe[1]);
    char written = 0;
    EXPECT_EQ(::read(pipe[0], &written, 1), 1);
    ::close(pipe[0]);
    ::usleep(static_cast<useconds_t>(delay.count()));
    ::kill(writer, SIGKILL);
    ::waitpid(writer, nullptr, 0);
}

TEST(KilledWriter, TheOldListOrTheNewOneIsThereWholeAndNothingPilesUp)
{
    const test::TemporaryFolder home;
    std::mt19937 random(20161001);
    std::uniform_int_distribution<int> microseconds(0, 6'000);
    for (int round = 0; round < 200; ++round) {
        killWriterAfter(std::chrono::microseconds(microseconds(random)), home.path());
        const Text list = listOnDisk(home.path());
        ASSERT_TRUE(std::find(lists.begin(), lists.end(), list) != lists.end())
            << "round " << round << ": " << list.view().size() << " bytes";
        ASSERT_EQ(PosixFiles(home.path()).namesInFolder(home.path("Library/Preferences")).value(),
            std::vector<std::string>{"radiolist.rdb"})
            << "what the kill left goes with the next start";
    }
}

} // namespace
} // namespace sonavel
