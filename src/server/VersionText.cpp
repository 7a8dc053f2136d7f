#include "server/VersionText.h"

#include "base/Ascii.h"
#include "base/Moment.h"
#include "base/Numbers.h"
#include "base/TextDecoding.h"
#include "online/WebRequests.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <set>
#include <utility>

namespace sonavel {

namespace {

constexpr std::size_t maxNumbers = 3;
/// Of an invalid line in an error.
constexpr std::size_t maxQuotationLength = 40;

/// Whether it is a number that players can compare, which count in 64 bits.
bool isNumber(std::string_view text)
{
    std::int64_t number = 0;
    return !text.empty() && std::all_of(text.begin(), text.end(), isDigit)
        && std::from_chars(text.data(), text.data() + text.size(), number).ec == std::errc();
}

bool isVersion(std::string_view text)
{
    for (std::size_t count = 1; count <= maxNumbers; ++count) {
        const std::size_t end = text.find('.');
        if (!isNumber(text.substr(0, end)))
            return false;
        if (end == std::string_view::npos)
            return true;
        text.remove_prefix(end + 1);
    }
    return false;
}

bool isWebAddress(std::string_view text)
{
    return !usableWebAddress(Text(text)).isAbsent();
}

bool isDate(std::string_view text)
{
    return momentFromInternationalForm(Text(text)).has_value();
}

bool isOneNote(std::string_view text)
{
    return text.find("\\n") == std::string_view::npos;
}

struct Key {
    std::string_view name;
    std::string PublishedVersion::*place; ///< null for what is added to the notes
    bool (*accepts)(std::string_view value);
    const char* error; ///< the end of a sentence that begins with the key
};

constexpr const char* noAddress = "takes a complete http or https address";
constexpr const char* noDate = "takes a date that exists, such as 2026-11-01 00:00:00 +0000";
constexpr std::array keys = {
    Key{"version", &PublishedVersion::version, isVersion, "takes up to three numbers with points, such as 1.3.0"},
    Key{"build", &PublishedVersion::build, isNumber, "takes a number without a sign, such as 8"},
    Key{"application", &PublishedVersion::application, isWebAddress, noAddress},
    Key{"page", &PublishedVersion::page, isWebAddress, noAddress},
    Key{"note", nullptr, isOneNote, R"(holds "\n", which separates notes: each takes a line "note = " of its own)"},
    Key{"released", &PublishedVersion::released, isDate, noDate},
    Key{"list changed", &PublishedVersion::listChanged, isDate, noDate},
};

std::string quoted(std::string_view words)
{
    const Text shown = Text(withoutControls(decodeToUtf8(words)));
    return '"' + shown.prefix(maxQuotationLength).string() + '"';
}

std::string namesOfKeys()
{
    std::string names;
    for (const Key& key : keys)
        names.append(names.empty() ? "" : ", ").append(key.name);
    return names;
}

/// What the response cannot carry in a value; empty when there is no such thing.
std::string_view unsupportedPartOf(std::string_view value)
{
    for (const char character : value) {
        if (character == ';')
            return "a \";\"";
        if (isAsciiControl(character))
            return "a control character";
        if (!isAscii(character))
            return "a character outside ASCII";
    }
    return {};
}

/// An error is half a sentence in one line.
template <class Value = void> using Outcome = tl::expected<Value, std::string>;

class VersionTextReader {
public:
    explicit VersionTextReader(PublishedVersion defaults)
        : published_(std::move(defaults))
    {
        published_.notes.clear();
    }

    [[nodiscard]] Outcome<> readLine(std::string_view line)
    {
        line = withoutOuterBlanks(line);
        if (line.empty() || line.front() == '#')
            return {};
        const std::size_t sign = line.find('=');
        if (sign == std::string_view::npos)
            return tl::unexpected(quoted(line) + " has no \"=\" between a key and a value");
        const std::string_view value = withoutOuterBlanks(line.substr(sign + 1));
        return keyNamed(withoutOuterBlanks(line.substr(0, sign))).and_then([&](const Key* key) {
            return setValue(*key, value);
        });
    }

    [[nodiscard]] Outcome<PublishedVersion> finished() const
    {
        for (const std::string_view name : {"version", "build"}) {
            if (!given_.contains(name))
                return tl::unexpected("the file ends without a " + quoted(name));
        }
        return published_;
    }

private:
    static Outcome<const Key*> keyNamed(std::string_view name)
    {
        const auto* const key =
            std::find_if(keys.begin(), keys.end(), [&](const Key& each) { return each.name == name; });
        if (key == keys.end())
            return tl::unexpected(quoted(name) + " is none of the keys " + namesOfKeys());
        return key;
    }

    Outcome<> setValue(const Key& key, std::string_view value)
    {
        const auto error = [&key](const std::string& why) { return tl::unexpected(quoted(key.name) + ' ' + why); };
        if (value.empty())
            return error("has no value");
        if (const std::string_view part = unsupportedPartOf(value); !part.empty())
            return error("holds " + std::string(part) + ", which the response cannot carry");
        if (!key.accepts(value))
            return error(key.error);
        if (key.place == nullptr) {
            published_.notes.emplace_back(value);
            return {};
        }
        if (!given_.insert(key.name).second)
            return error("is given a second time");
        published_.*key.place = value;
        return {};
    }

    PublishedVersion published_;
    std::set<std::string_view> given_;
};

} // namespace

tl::expected<PublishedVersion, ParseError> parseVersionText(std::string_view text, PublishedVersion defaults)
{
    VersionTextReader reader(std::move(defaults));
    std::size_t line = 0;
    const auto onLine = [&line](std::string why) { return ParseError{std::max<std::size_t>(line, 1), std::move(why)}; };
    for (std::string_view rest = withoutByteOrderMark(text); !rest.empty();) {
        ++line;
        const std::string_view content = rest.substr(0, rest.find('\n'));
        if (auto read = reader.readLine(content); !read)
            return tl::unexpected(onLine(std::move(read.error())));
        rest.remove_prefix(std::min(content.size() + 1, rest.size()));
    }
    return reader.finished().map_error(onLine);
}

std::string versionResponse(const PublishedVersion& published, const std::string& baseAddress)
{
    const auto orOwn = [&](const std::string& address) { return address.empty() ? baseAddress : address; };
    std::string notes;
    for (const std::string& note : published.notes)
        notes.append(notes.empty() ? "" : "\\n").append(note);
    // Players count the values; the words before them are for people.
    return "name;Sonavel\rversion;" + published.version + "\rbuild;" + published.build + "\rapplication;"
        + orOwn(published.application) + "\rpage;" + orOwn(published.page) + "\rnotes;" + notes + "\rreleased;"
        + published.released + "\rlist changed;" + published.listChanged + '\r';
}

} // namespace sonavel
