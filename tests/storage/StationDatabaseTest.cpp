#include "storage/StationDatabase.h"

#include "model/StationList.h"
#include "model/StationListText.h"
#include "storage/AESCrypt.h"
#include "storage/StationListCodec.h"
#include "support/MemoryFiles.h"

#include <gtest/gtest.h>

namespace sonavel {
namespace {

Text encryptedText(const Text& listText, const Text& key = stationDatabasePassphrase)
{
    return AES256EncryptWithKey(listText, key);
}

/// A station database with the list that it writes.
class StationDatabaseTest : public testing::Test {
protected:
    MemoryFiles files;
    StationList list;
    std::string databasePath = files.inPreferences("radiolist.rdb");
    std::string legacyPath = files.inPreferences("radiolist.csv");

    void setList(const Text& text) { list.setListRadio(recordsFromListText(text)); }

    /// What a new run of the program reads.
    Text reopened() { return StationDatabase(files, list).fileRadioDBreadCypted(true); }

    /// The content of the backup of that name, "none" when it is not there.
    std::string copy(const char* name)
    {
        const auto found = files.files.find(files.inPreferences(name));
        return found == files.files.end() ? "none" : found->second;
    }
};

TEST_F(StationDatabaseTest, WhatIsWrittenIsReadAgain)
{
    for (const char* text : {"", "Alpha;a\rBeta;b\r", "Zürich 📻;http://example.org/?a=1&b=2\r"}) {
        setList(text);
        StationDatabase(files, list).fileRadioDBupdate();
        EXPECT_EQ(files.files[databasePath], encryptedText(text).view());
        EXPECT_EQ(reopened(), Text(text));
    }
    EXPECT_EQ(encryptedText("").view().size(), 24U);
}

TEST_F(StationDatabaseTest, ADamagedDatabaseReadsAsAbsentAndIsKeptBeforeItIsReplaced)
{
    const std::string whole = encryptedText("Alpha;a\rBeta;b\r").string();
    std::vector<std::string> damaged = {"", "Alpha;a\rBeta;b\r", encryptedText("Alpha;a\r", "another key").string(),
        whole + "\xC3\xBC", "\xFF" + whole, std::string(1000, '\0'), "roWZlqy8bJDmQZt1/66B7A=="};
    for (std::size_t length = 0; length < whole.size() - 1; ++length)
        damaged.push_back(whole.substr(0, length));
    setList("New;n\r");
    for (const std::string& content : damaged) {
        files.files = {{databasePath, content}};
        StationDatabase database(files, list);
        EXPECT_TRUE(database.fileRadioDBreadCypted(true).isAbsent()) << content;
        database.fileRadioDBupdate();
        database.fileRadioDBupdate();
        EXPECT_EQ(reopened(), Text("New;n\r"));
        EXPECT_EQ(copy("radiolist.damaged.rdb"), content);
        EXPECT_EQ(copy("radiolist.damaged-2.rdb"), "none");
    }
}

TEST_F(StationDatabaseTest, RubbishOfManyMegabytesIsRefused)
{
    std::string rubbish(std::size_t{64} << 20U, 'x');
    for (std::size_t index = 0; index < rubbish.size(); ++index)
        rubbish[index] = static_cast<char>(index * 2'654'435'761U >> 13U);
    files.files[databasePath] = rubbish;
    EXPECT_TRUE(reopened().isAbsent());
    for (char& character : rubbish)
        character = static_cast<char>('A' + (static_cast<unsigned char>(character) & 15U));
    files.files[databasePath] = rubbish;
    EXPECT_TRUE(reopened().isAbsent());
}

TEST_F(StationDatabaseTest, ADatabaseInForeignLinesIsStillRead)
{
    const std::string whole = encryptedText("Alpha;a\rBeta;b\r").string();
    for (const std::string& content : {whole + "\n", whole + "\r\n", whole.substr(0, 9) + "\r\n " + whole.substr(9)}) {
        files.files[databasePath] = content;
        EXPECT_EQ(reopened(), Text("Alpha;a\rBeta;b\r"));
    }
}

TEST_F(StationDatabaseTest, WhatIsThereAndCannotBeReadIsNeverOverwritten)
{
    setList("New;n\r");
    files.files[databasePath] = "unreadable";
    files.unreadable = {databasePath};
    StationDatabase(files, list).fileRadioDBupdate();
    EXPECT_EQ(copy("radiolist.damaged.rdb"), "unreadable");

    files.files.clear();
    files.folders = {databasePath};
    EXPECT_TRUE(StationDatabase(files, list).fileRadioDBVerify(false));
    StationDatabase(files, list).fileRadioDBupdate();
    EXPECT_TRUE(files.folders.contains(files.inPreferences("radiolist.damaged.rdb")));
    EXPECT_EQ(reopened(), Text("New;n\r"));
    const auto reports = [&] { return std::count(files.log.begin(), files.log.end(), "unsaved " + databasePath); };
    EXPECT_EQ(reports(), 0) << "a folder cannot be copied, but the list is saved";

    files.files = {{databasePath, "damaged"}};
    StationDatabase database(files, list);
    for (const char* entry : {"list", "keep"}) {
        files.files[files.inPreferences("radiolist.damaged.rdb")] = "older";
        files.failAll(entry);
        database.fileRadioDBupdate();
        EXPECT_TRUE(files.files[databasePath] == "damaged" || copy("radiolist.damaged-2.rdb") == "damaged") << entry;
        EXPECT_EQ(copy("radiolist.damaged.rdb"), "older");
        EXPECT_EQ(reports(), 1) << "where no copy is possible";
    }
}

TEST_F(StationDatabaseTest, AListThatIsNotLoadedIsNotWritten)
{
    files.files[databasePath] = encryptedText("Alpha;a\r").string();
    StationDatabase database(files, list);
    database.removeLegacyFileAfterWrite();
    files.files[legacyPath] = "Legacy;l\r";
    database.fileRadioDBupdate();
    EXPECT_EQ(reopened(), Text("Alpha;a\r"));
    EXPECT_TRUE(database.fileRadioDBVerify(true));
}

TEST_F(StationDatabaseTest, ALegacyFileIsReadAsTextWithoutItsByteOrderMark)
{
    StationDatabase database(files, list);
    EXPECT_TRUE(database.fileRadioDBreadCypted(false).isAbsent());
    for (const char* content : {"Alpha;a\r",
             "\xEF\xBB\xBF"
             "Alpha;a\r"}) {
        files.files[legacyPath] = content;
        EXPECT_EQ(database.fileRadioDBreadCypted(false), Text("Alpha;a\r"));
    }
    files.files[legacyPath] = "Z\xFCrich;a\r";
    EXPECT_TRUE(database.fileRadioDBreadCypted(false).isAbsent());
    database.quarantineLegacyFile();
    EXPECT_FALSE(database.fileRadioDBVerify(true));
    EXPECT_EQ(copy("radiolist.damaged.csv"), "Z\xFCrich;a\r");
}

TEST_F(StationDatabaseTest, AMigratedLegacyFileGoesAfterTheFirstWriteThatSucceeds)
{
    files.files = {{legacyPath, "Legacy;l\r"}, {databasePath, encryptedText("Own;o\r").string()}};
    StationDatabase database(files, list);
    setList(database.fileRadioDBreadCypted(false));
    database.removeLegacyFileAfterWrite();
    files.failAll("write");
    database.fileRadioDBupdate();
    EXPECT_EQ(reopened(), Text("Own;o\r"));
    EXPECT_TRUE(database.fileRadioDBVerify(true));

    files.failAll("remove");
    database.fileRadioDBupdate();
    EXPECT_TRUE(database.fileRadioDBVerify(true));
    files.failAll("");
    database.fileRadioDBupdate();
    EXPECT_FALSE(database.fileRadioDBVerify(true));
    EXPECT_EQ(reopened(), Text("Legacy;l\r"));
    EXPECT_EQ(copy("radiolist.before-import.rdb"), encryptedText("Own;o\r").view());

    files.files[legacyPath] = "put there later";
    database.fileRadioDBupdate();
    EXPECT_TRUE(database.fileRadioDBVerify(true));
}

/// Every operation of a migrating write fails once, and a new run finds the old list or the new.
TEST_F(StationDatabaseTest, AFaultAnywhereInAWriteLeavesTheOldListOrTheNew)
{
    for (const char* stored : {"Own;o\r", ""}) {
        const Text old = stored;
        bool wasReached = true;
        for (std::size_t fault = 1; wasReached; ++fault) {
            files.files = {{databasePath, encryptedText(old).string()}, {legacyPath, "Legacy;l\r"}};
            StationDatabase database(files, list);
            setList("Legacy;l\r");
            database.removeLegacyFileAfterWrite();
            const std::size_t operationsBefore = files.log.size();
            files.failOperation(fault);
            database.fileRadioDBupdate();
            wasReached = files.log.size() >= operationsBefore + fault;
            files.failOperation(0);

            const Text found = reopened();
            EXPECT_TRUE(found == old || found == Text("Legacy;l\r")) << "operation " << fault;
            EXPECT_TRUE(found == Text("Legacy;l\r") || files.files.contains(legacyPath)) << "operation " << fault;
        }
    }
}

} // namespace
} // namespace sonavel
