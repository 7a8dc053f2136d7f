#include "server/VersionFile.h"

#include "base/Ascii.h"
#include "base/ForeignText.h"
#include "base/Moment.h"
#include "online/RequestAddress.h"

#include <algorithm>
#include <array>
#include <optional>

namespace sonavel {

namespace {

constexpr std::string_view noteSeparator = "\\n";

struct Fault {
    std::string why;
};

std::string quoted(std::string_view name)
{
    std::string text(1, '"');
    return text.append(name).append("\"");
}

bool isNumber(std::string_view text)
{
    constexpr std::size_t mostDigits = 18; // more do not fit into what players compare
    return !text.empty() && text.size() <= mostDigits && text.find_first_not_of("0123456789") == std::string_view::npos;
}

bool isVersion(std::string_view text)
{
    int parts = 1;
    for (std::size_t dot = text.find('.'); dot != std::string_view::npos; dot = text.find('.'), ++parts) {
        if (!isNumber(text.substr(0, dot)))
            return false;
        text.remove_prefix(dot + 1);
    }
    return isNumber(text) && parts <= 3;
}

bool isWebAddress(std::string_view text)
{
    return !usableWebAddress(text).isAbsent();
}

bool isDate(std::string_view text)
{
    return momentFromInternationalForm(text).has_value();
}

bool isNote(std::string_view text)
{
    return text.find(noteSeparator) == std::string_view::npos;
}

struct Key {
    std::string_view name;
    bool (*isValid)(std::string_view);
    const char* kind;
    bool mayRepeat = false;
};

/// In the order in which the answer has them; the name of the program comes first.
constexpr std::array keys{
    Key{"version", isVersion, "up to three numbers with dots between them"},
    Key{"build", isNumber, "a number"},
    Key{"application", isWebAddress, "an http or https address"},
    Key{"page", isWebAddress, "an http or https address"},
    Key{"note", isNote, "a text without a backslash before an \"n\", which separates notes", true},
    Key{"released", isDate, "a date such as 2026-11-01 00:00:00 +0000"},
    Key{"list changed", isDate, "a date such as 2026-11-01 00:00:00 +0000"},
};

using Values = std::array<std::optional<std::string>, keys.size()>;

bool canBeSent(std::string_view value)
{
    return std::all_of(value.begin(), value.end(), [](char character) {
        const auto byte = static_cast<unsigned char>(character);
        return byte >= 0x20 && byte < 0x7F && character != ';';
    });
}

void take(std::string_view line, Values& values)
{
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos)
        throw Fault{"it has no \"=\""};
    const std::string_view name = withoutOuterBlanks(line.substr(0, equals));
    const std::string_view value = withoutOuterBlanks(line.substr(equals + 1));
    const auto* key = std::find_if(keys.begin(), keys.end(), [name](const Key& known) { return known.name == name; });
    if (key == keys.end())
        throw Fault{quoted(name).append(" is not known")};
    if (!canBeSent(value))
        throw Fault{"only printable ASCII characters without \";\" can be sent"};
    if (!key->isValid(value))
        throw Fault{quoted(name).append(" has to be ").append(key->kind)};
    auto& former = values[static_cast<std::size_t>(key - keys.begin())];
    if (former && !key->mayRepeat)
        throw Fault{quoted(name).append(" stands there twice")};
    former = former ? former->append(noteSeparator).append(value) : std::string(value);
}

std::string answerOf(const Values& values)
{
    std::string answer = "name;Sonavel\r";
    for (std::size_t index = 0; index < keys.size(); ++index)
        answer.append(keys[index].name).append(";").append(values[index].value_or("")).append("\r");
    return answer;
}

} // namespace

std::variant<VersionAnswer, VersionFault> versionAnswerFrom(std::string_view file)
{
    file = withoutByteOrderMark(file);
    Values values;
    for (int number = 1; !file.empty(); ++number) {
        const std::size_t end = file.find('\n');
        const std::string_view line = withoutOuterBlanks(file.substr(0, end));
        file.remove_prefix(std::min(end, file.size() - 1) + 1);
        if (line.empty() || line.front() == '#')
            continue;
        try {
            take(line, values);
        } catch (const Fault& fault) {
            return VersionFault{"line " + std::to_string(number) + ": " + fault.why};
        }
    }
    for (const std::size_t required : {0U, 1U})
        if (!values[required])
            return VersionFault{quoted(keys[required].name).append(" is missing")};
    return VersionAnswer{answerOf(values)};
}

} // namespace sonavel
