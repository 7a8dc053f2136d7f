#include "adapters/files/PropertyList.h"

#include <gtest/gtest.h>

#include <vector>

namespace sonavel {
namespace {

using namespace std::string_literals;

std::string xml(const std::string& content)
{
    return R"(<?xml version="1.0" encoding="UTF-8"?>)"
           R"(<!DOCTYPE plist PUBLIC "-//Example//DTD PLIST 1.0//EN" "http://example.invalid/PropertyList-1.0.dtd">)"
           "<plist version=\"1.0\">"
        + content + "</plist>";
}

std::string bigEndian(std::uint64_t value, int size)
{
    std::string bytes;
    while (size-- > 0)
        bytes.push_back(static_cast<char>(value >> (8 * size)));
    return bytes;
}

/// A binary property list of the given objects, with references of two bytes; the first object is the root.
std::string binary(const std::vector<std::string>& objects)
{
    std::string bytes = "bplist00";
    std::string table;
    for (const std::string& object : objects) {
        table += bigEndian(bytes.size(), 4);
        bytes += object;
    }
    return bytes + table + "\0\0\0\0\0\0\4\2"s + bigEndian(objects.size(), 8) + bigEndian(0, 8)
        + bigEndian(bytes.size(), 8);
}

/// A binary array (0xA0), or dictionary (0xD0; all keys, then all values), of at most 14 items.
std::string container(int kind, const std::vector<std::uint64_t>& references)
{
    const std::size_t count = kind == 0xD0 ? references.size() / 2 : references.size();
    std::string object = bigEndian(static_cast<std::uint64_t>(kind) + count, 1);
    for (const std::uint64_t reference : references)
        object += bigEndian(reference, 2);
    return object;
}

TEST(PropertyList, ValuesOfAllTypesAppearInTheirTextForm)
{
    const std::vector<std::pair<std::string, Text>> rows{{"<string>text</string>", "text"}, {"<string></string>", ""},
        {"<string> &lt;&amp;&gt; &#9786; <![CDATA[<b>]]></string>", " <&> ☺ <b>"}, {"<true/>", "YES"},
        {"<false/>", "NO"}, {"<integer>60</integer>", "60"}, {"<integer>-5</integer>", "-5"},
        {"<integer>18446744073709551615</integer>", "18446744073709551615"}, {"<real>0.5</real>", "0.5"},
        {"<real>-1e300</real>", "-1e+300"}, {"<date>2016-10-01T00:00:00Z</date>", "2016-10-01 00:00:00 +0000"},
        {"<date>2200-02-28T23:59:59Z</date>", "2200-02-28 23:59:59 +0000"}, {"<data>AAAA</data>", Text()},
        {"<array><string>text</string></array>", Text()},
        {"<dict><key>inner</key><string>text</string></dict>", Text()}, {"<string>\xFF</string>", Text()}};
    for (const auto& [value, text] : rows) {
        const auto domain = domainFromPropertyList(xml("<dict><key>k</key>" + value + "<key>z</key><true/></dict>"));
        ASSERT_TRUE(domain) << value;
        EXPECT_EQ(domain->contains("k") ? domain->at("k") : Text(), text) << value;
        EXPECT_EQ(domain->at("z"), Text("YES")) << value;
    }
}

TEST(PropertyList, TheBinaryFormIsReadToo)
{
    const auto domain = domainFromPropertyList(binary({container(0xD0, {1, 3, 5, 7, 9, 11, 13, 2, 4, 6, 8, 10, 12, 14}),
        "\x5F\x10\x11"
        "lastUpdateAppChec",
        "\x6F\x11\0\1\x26\x3A"s, "\x51l", "\x09", "\x51m", "\x13" + bigEndian(~std::uint64_t{0}, 8), "\x51n",
        "\x14" + bigEndian(0, 8) + bigEndian(~std::uint64_t{0}, 8), "\x51o", "\x33\x41\xBD\x9F\x34\0\0\0\0"s, "\x51p",
        "\x23\x3F\xE0\0\0\0\0\0\0"s, "\x51q", container(0xA0, {1, 1})}));
    ASSERT_TRUE(domain);
    EXPECT_EQ(*domain,
        (PreferenceDomain{{"lastUpdateAppChec", "☺"}, {"l", "YES"}, {"m", "-1"}, {"n", "18446744073709551615"},
            {"o", "2016-10-01 00:00:00 +0000"}, {"p", "0.5"}}));
}

TEST(PropertyList, WhatIsNoDictionaryGivesNothing)
{
    for (const std::string& bytes : {""s, "hello"s, "\0\0"s, "<plist></plist>"s, "<plist"s, xml("<string>a</string>"),
             xml("<array><dict></dict></array>"), xml("<dict><key>a</key>"), xml("<dict><string>a</string></dict>"),
             "<!DOCTYPE plist [<!ENTITY a \"b\">]>" + xml("<dict><key>a</key><string>&a;</string></dict>"),
             "<!DOCTYPE plist [<!ENTITY a SYSTEM \"file:///etc/hostname\">]>"
                 + xml("<dict><key>a</key><string>&a;</string></dict>"),
             xml("<dict><key>a</key><string>&undefined;</string></dict>"), xml("<dict><key>a</key><odd/></dict>"),
             "bplist00"s, "bplist00"s + std::string(32, '\0'), "bplist00"s + std::string(32, '\xFF'), binary({"\x51k"}),
             binary({container(0xA0, {1}), "\x51k"}), binary({container(0xD0, {1, 2}), "\x51k"}),
             binary({"\xDF\x13" + bigEndian(1'000'000'000'000, 8)}), binary({"\xDF"}),
             binary({container(0xD0, {1, 2}), "\x53" + "a\0b"s, "\x51v"}),
             binary({container(0xD0, {1, 2}), "\x63\0a\0\0\0b"s, "\x51v"})})
        EXPECT_EQ(domainFromPropertyList(bytes), std::nullopt) << testing::PrintToString(bytes);
}

TEST(PropertyList, AFileBeyondAllMeasureGivesNothingAtOnce)
{
    std::string deep;
    for (int level = 0; level < 40'000; ++level)
        deep.append("<array>");
    std::string deepAndClosed = "<dict><key>a</key>" + deep;
    for (int level = 0; level < 40'000; ++level)
        deepAndClosed.append("</array>");
    EXPECT_EQ(domainFromPropertyList(xml(deepAndClosed + "</dict>")), std::nullopt);
    EXPECT_EQ(
        domainFromPropertyList(xml("<dict><key>a</key><string>" + std::string(1 << 20, 'x') + "</string></dict>")),
        std::nullopt);

    std::vector<std::string> doubling{container(0xD0, {1, 2}), "\x51k"};
    for (std::uint64_t level = 2; level < 60; ++level)
        doubling.push_back(container(0xA0, {level + 1, level + 1}));
    doubling.emplace_back("\x51k");
    EXPECT_EQ(domainFromPropertyList(binary(doubling)), std::nullopt);

    std::vector<std::string> nested{container(0xD0, {1, 2}), "\x51k"};
    for (std::uint64_t level = 2; level < 60'000; ++level)
        nested.push_back(container(0xA0, {level + 1}));
    nested.emplace_back("\x51k");
    EXPECT_EQ(domainFromPropertyList(binary(nested)), std::nullopt);

    EXPECT_EQ(
        domainFromPropertyList(binary({container(0xD0, {1, 2}), "\x51k", container(0xA0, {2, 2})})), std::nullopt);
    EXPECT_EQ(domainFromPropertyList(binary({container(0xD0, {1, 0}), "\x51k"})), std::nullopt);

    // One long text, referred to from a thousand places.
    std::vector<std::string> repeated{container(0xD0, {1, 2}), "\x51k", "\xAF\x11" + bigEndian(1'000, 2)};
    for (int reference = 0; reference < 1'000; ++reference)
        repeated.back() += bigEndian(3, 2);
    repeated.push_back("\x5F\x12" + bigEndian(900'000, 4) + std::string(900'000, 'x'));
    EXPECT_EQ(domainFromPropertyList(binary(repeated)), std::nullopt);
}

TEST(PropertyList, WhatIsWrittenReadsBackTheSame)
{
    PreferenceDomain domain{{"a", ""}, {"b", " \n\t "}, {"c", "<&>\"']]>&amp;<![CDATA["}, {"d", "Ünï☺\U0001F4FB"},
        {"", "no key"}, {"<&>", "odd key"}, {"e", std::string(10'000, 'x')}, {"f", "(null)"}, {"g", "0.700000"}};
    EXPECT_EQ(domainFromPropertyList(propertyListFromDomain(domain)), domain);
    EXPECT_EQ(domainFromPropertyList(propertyListFromDomain({})), PreferenceDomain());

    domain = {{"b", "2"}, {"absent", Text()}, {"a", "1"}};
    const std::string list = propertyListFromDomain(domain);
    EXPECT_TRUE(list.starts_with("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE plist")) << list;
    EXPECT_NE(list.find("<key>a</key>\n\t<string>1</string>\n\t<key>b</key>\n\t<string>2</string>"), std::string::npos)
        << list;
    EXPECT_EQ(list.find("absent"), std::string::npos);
}

} // namespace
} // namespace sonavel
