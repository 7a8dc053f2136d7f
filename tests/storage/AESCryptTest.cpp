#include "storage/AESCrypt.h"

#include "storage/StationListCodec.h"

#include <gtest/gtest.h>

namespace sonavel {
namespace {

/// Computed with `openssl enc -aes-256-cbc -K … -iv 0… -A -base64`, the key in hexadecimal.
TEST(AESCrypt, TextsAreEncryptedAsTheOpensslCommandDoes)
{
    const std::tuple<const char*, std::string_view, const char*> cases[] = {
        {"", stationDatabasePassphrase, "E0Jiq8RBAVieQ2iwgiU74A=="},
        {"Zürich;http://zh.example\r", stationDatabasePassphrase, "gKaaFXV/o0EwyQxZSBv9iN9KMzaL27YKunvSmPJ1YuI="},
        {"0123456789abcdef", stationDatabasePassphrase, "uHR9NOnIXhqFG/mM1q+O+gzMg4by2Z8gtYHXX5VA1gM="},
        {"Beta;b\r", "hello", "ZhsluX6XHHQix7K6pWsUCw=="},
    };
    for (const auto& [text, key, base64] : cases) {
        EXPECT_EQ(AES256EncryptWithKey(Text(text), key), Text(base64));
        EXPECT_EQ(AES256DecryptWithKey(Text(base64), key), Text(text));
    }
}

TEST(AESCrypt, OnlyTheFirstThirtyTwoBytesOfAKeyTextCount)
{
    const std::string key(32, 'k');
    const Text encryptedText = AES256EncryptWithKey(Text("Alpha;a\r"), key + "one end");
    EXPECT_EQ(AES256DecryptWithKey(encryptedText, key + "another"), Text("Alpha;a\r"));
    EXPECT_NE(AES256DecryptWithKey(encryptedText, key.substr(1) + "another"), Text("Alpha;a\r"));
}

TEST(AESCrypt, WhatCannotBeDecryptedIsAbsent)
{
    const Text base64 = AES256EncryptWithKey(Text("Alpha;a\rBeta;b\r"), stationDatabasePassphrase);
    const Text notUtf8 = "roWZlqy8bJDmQZt1/66B7A==";
    ASSERT_TRUE(AES256DecryptWithKey(initWithBase64EncodedString(notUtf8), stationDatabasePassphrase));
    for (const Text& text : {Text(), Text(""), Text("TWFu"), Text("AAAAAAAAAAAAAAAAAAAAAA=="), notUtf8,
             Text(base64.view().substr(0, base64.view().size() - 4)), Text(base64.string() + "\xC3\xBC"),
             Text("Alpha;a\rBeta;b\r")})
        EXPECT_TRUE(AES256DecryptWithKey(text, stationDatabasePassphrase).isAbsent()) << text.view();
    EXPECT_TRUE(AES256DecryptWithKey(base64, "another key").isAbsent());
}

TEST(AESCrypt, BytesOfEveryLengthComeBackFromWholeBlocks)
{
    Bytes bytes;
    for (std::size_t length = 0; length < 70; ++length, bytes.content += static_cast<char>(length)) {
        const auto cipherText = AES256EncryptWithKey(bytes, "key");
        ASSERT_TRUE(cipherText);
        EXPECT_EQ(cipherText->content.size(), length / 16 * 16 + 16);
        EXPECT_EQ(AES256DecryptWithKey(*cipherText, "key"), bytes);
        EXPECT_EQ(dataWithBase64EncodedString(base64Encoding(*cipherText)), *cipherText);
    }
}

TEST(AESCrypt, PrefixesAndSuffixesAreNeverLongerThanTheBuffer)
{
    const Bytes bytes{std::string("a\0c", 3)};
    EXPECT_TRUE(hasPrefixBytes(bytes, "a\0c", 3));
    EXPECT_TRUE(hasPrefixBytes(bytes, "a", 1));
    EXPECT_FALSE(hasPrefixBytes(bytes, "c", 1));
    EXPECT_TRUE(hasSuffixBytes(bytes, "\0c", 2));
    EXPECT_FALSE(hasSuffixBytes(bytes, "a\0", 2));
    for (const auto& operation : {hasPrefixBytes, hasSuffixBytes}) {
        EXPECT_FALSE(operation(bytes, "a\0cd", 4));
        EXPECT_FALSE(operation(bytes, "a", 0));
        EXPECT_FALSE(operation(bytes, nullptr, 1));
    }
}

} // namespace
} // namespace sonavel
