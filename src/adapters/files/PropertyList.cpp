#include "adapters/files/PropertyList.h"

#include "adapters/files/PropertyListGuard.h"
#include "base/Moment.h"

#include <plist/plist.h>

#include <array>
#include <charconv>
#include <cstdlib>
#include <memory>

namespace sonavel {

namespace {

struct Release {
    void operator()(void* memory) const { std::free(memory); } // NOLINT(cppcoreguidelines-no-malloc): the library's
};
struct NodeRelease {
    void operator()(plist_t node) const { plist_free(node); }
};
using Characters = std::unique_ptr<char, Release>;
using Node = std::unique_ptr<void, NodeRelease>;

Node parsed(std::string_view bytes)
{
    plist_t root = nullptr;
    const auto size = static_cast<std::uint32_t>(bytes.size());
    if (isBinaryPropertyList(bytes))
        plist_from_bin(bytes.data(), size, &root);
    else
        plist_from_xml(bytes.data(), size, &root);
    return Node(root);
}

std::string xmlForm(plist_t node)
{
    char* characters = nullptr;
    std::uint32_t size = 0;
    plist_to_xml(node, &characters, &size);
    const Characters owner(characters);
    return characters == nullptr ? std::string() : std::string(characters, size);
}

/// The text between the tags of a single value, the library's only access to the full range of whole numbers and dates.
std::string xmlContent(plist_t node, std::string_view openingTag)
{
    const std::string xml = xmlForm(node);
    const std::size_t opening = xml.find(openingTag);
    if (opening == std::string::npos)
        return {};
    const std::size_t begin = opening + openingTag.size();
    return xml.substr(begin, xml.find('<', begin) - begin);
}

Text realText(plist_t node)
{
    double value = 0;
    plist_get_real_val(node, &value);
    std::array<char, 32> digits{};
    const char* const end = std::to_chars(digits.begin(), digits.end(), value).ptr;
    return std::string_view(digits.data(), end);
}

Text flagText(plist_t node)
{
    std::uint8_t value = 0;
    plist_get_bool_val(node, &value);
    return value != 0 ? "YES" : "NO";
}

/// "2016-10-01T00:00:00Z" in the international form, absent when it has none.
Text dateText(plist_t node)
{
    std::string form = xmlContent(node, "<date>");
    if (const std::size_t separator = form.find('T'); separator != std::string::npos)
        form[separator] = ' ';
    if (form.ends_with('Z'))
        form.replace(form.size() - 1, 1, " +0000");
    return momentFromInternationalForm(form) ? Text(form) : Text();
}

Text validText(plist_t node)
{
    std::uint64_t size = 0;
    const char* const characters = plist_get_string_ptr(node, &size);
    const std::string_view text(characters, characters == nullptr ? 0 : size);
    const bool isWritable = isValidUtf8(text) && text.find('\0') == std::string_view::npos;
    return isWritable ? Text(text) : Text();
}

Text textForm(plist_t node)
{
    switch (plist_get_node_type(node)) {
    case PLIST_STRING:
        return validText(node);
    case PLIST_UINT:
        return xmlContent(node, "<integer>");
    case PLIST_REAL:
        return realText(node);
    case PLIST_BOOLEAN:
        return flagText(node);
    case PLIST_DATE:
        return dateText(node);
    default:
        return {};
    }
}

} // namespace

std::optional<PreferenceDomain> domainFromPropertyList(std::string_view bytes)
{
    if (!isSafePropertyList(bytes))
        return std::nullopt;
    const Node root = parsed(bytes);
    if (!root || plist_get_node_type(root.get()) != PLIST_DICT)
        return std::nullopt;

    plist_dict_iter position = nullptr;
    plist_dict_new_iter(root.get(), &position);
    const std::unique_ptr<void, Release> positionOwner(position);
    PreferenceDomain domain;
    while (true) {
        char* key = nullptr;
        plist_t value = nullptr;
        plist_dict_next_item(root.get(), position, &key, &value);
        const Characters keyOwner(key);
        if (key == nullptr || value == nullptr)
            return domain;
        Text text = textForm(value);
        if (!text.isAbsent() && isValidUtf8(key))
            domain.insert_or_assign(key, std::move(text));
    }
}

std::string propertyListFromDomain(const PreferenceDomain& domain)
{
    const Node root(plist_new_dict());
    for (const auto& [key, text] : domain)
        if (!text.isAbsent())
            plist_dict_set_item(root.get(), key.c_str(), plist_new_string(text.string().c_str()));
    return xmlForm(root.get());
}

} // namespace sonavel
