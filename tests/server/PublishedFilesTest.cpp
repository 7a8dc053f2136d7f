#include "server/PublishedFiles.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace sonavel {
namespace {

const std::string client = "http://host/";

TEST(PublishedFiles, APublishedFileWinsOverTheBuiltInResponse)
{
    const test::TemporaryFolder folder;
    PublishedFiles files(folder.path());
    files.addBuiltIn("list.rdb", [](const std::string& address) { return "built in at " + address; });
    EXPECT_EQ(files.contentOf("list.rdb", client), "built in at http://host/");
    folder.put("list.rdb", "published");
    EXPECT_EQ(files.contentOf("list.rdb", client), "published");
    EXPECT_EQ(files.contentOf("other.rdb", client), tl::unexpected(PublishedFileError::Absent));
    EXPECT_FALSE(PublishedFiles("").contentOf("list.rdb", client));
}

TEST(PublishedFiles, AFileIsGivenOutUpTo64MiB)
{
    const test::TemporaryFolder folder;
    const PublishedFiles files(folder.path());
    constexpr std::size_t maxSize = std::size_t{64} << 20;
    folder.put("large", "");
    ASSERT_EQ(::truncate(folder.path("large").c_str(), maxSize), 0);
    EXPECT_TRUE(files.contentOf("large", client).has_value());
    ASSERT_EQ(::truncate(folder.path("large").c_str(), maxSize + 1), 0);
    EXPECT_FALSE(files.contentOf("large", client).has_value());
}

TEST(PublishedFiles, NothingButPlainFilesOfTheFolderItselfIsGivenOut)
{
    const test::TemporaryFolder outside;
    outside.put("secret", "secret");
    const test::TemporaryFolder folder;
    folder.put(".hidden", "secret");
    ASSERT_EQ(::mkdir(folder.path("inner").c_str(), 0700), 0);
    folder.put("inner/file", "secret");
    ASSERT_EQ(::symlink(outside.path("secret").c_str(), folder.path("link").c_str()), 0);
    ASSERT_EQ(::mkfifo(folder.path("pipe").c_str(), 0600), 0);

    PublishedFiles files(folder.path());
    files.addBuiltIn("link", [](const std::string&) { return "built in"; });
    for (const std::string& name : {std::string(), std::string("."), std::string(".."), std::string(".hidden"),
             std::string("inner"), std::string("inner/file"), std::string("inner\\file"), std::string("link"),
             std::string("pipe"), outside.path("secret"), "../" + outside.path("secret"), std::string("list\0", 5),
             std::string("a\nb"), std::string(256, 'a')})
        EXPECT_EQ(files.contentOf(name, client), tl::unexpected(PublishedFileError::Unusable)) << name;
}

} // namespace
} // namespace sonavel
