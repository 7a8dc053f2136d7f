#include "storage/Base64.h"

#include <gtest/gtest.h>

namespace sonavel {
namespace {

TEST(Base64, TheVectorsOfRfc4648AreEncodedAndDecoded)
{
    const std::pair<const char*, const char*> vectors[] = {{"", ""}, {"f", "Zg=="}, {"fo", "Zm8="}, {"foo", "Zm9v"},
        {"foob", "Zm9vYg=="}, {"fooba", "Zm9vYmE="}, {"foobar", "Zm9vYmFy"}};
    for (const auto& [bytes, text] : vectors) {
        EXPECT_EQ(base64Encoded(bytes), text);
        EXPECT_EQ(base64Decoded(text), bytes);
    }
}

TEST(Base64, EveryByteValueComesBack)
{
    std::string bytes;
    for (int value = 0; value < 1000; ++value) {
        EXPECT_EQ(base64Decoded(base64Encoded(bytes)), bytes);
        bytes += static_cast<char>(value * 7);
    }
    EXPECT_EQ(base64Encoded("\xFB\xFF\xBF"), "+/+/");
}

TEST(Base64, LinesEndWhereTheirLengthIsReached)
{
    EXPECT_EQ(base64Encoded("abcdef", 4), "YWJj\nZGVm\n");
    EXPECT_EQ(base64Encoded("abcdefghi", 6), "YWJjZGVm\nZ2hp");
    EXPECT_EQ(base64Encoded("abcd", 8), "YWJjZA==\n");
    EXPECT_EQ(base64Encoded("abc", 1), "YWJj\n");
    EXPECT_EQ(base64Encoded("", 4), "");
    const std::string long1(60'000, 'x');
    EXPECT_EQ(base64Encoded(long1, 65'532).find('\n'), 65'532U);
    EXPECT_EQ(base64Encoded(long1, 65'533).find('\n'), std::string::npos);
    EXPECT_EQ(base64Encoded(long1, 65'540).find('\n'), std::string::npos);
}

TEST(Base64, OddInputIsDecodedAsFarAsItIsBase64)
{
    const std::pair<const char*, const char*> cases[] = {{"TWFu", "Man"}, {"TW\nFu", "Man"},
        {" T\r\nW-F_u\tTWFu\n", "ManMan"}, {"TWE=", "Ma"}, {"TQ==", "M"}, {"TQ=", "M"}, {"TWFu=TWFu", "Man"},
        {"=TWFu", ""}, {"TWFuT=", "Man"}, {"TWFuTWE", "Man"}, {"TWFuT", "Man"}, {"TWFu\xC3\xBC", ""},
        {"TWFuTWFu\x80TWFu", ""}, {"TWFu=\xC3\xBC", ""}, {"\x7F\x01TWFu", "Man"}};
    for (const auto& [text, bytes] : cases)
        EXPECT_EQ(base64Decoded(text), bytes) << text;
}

} // namespace
} // namespace sonavel
