#include "playlists/ListFormats.h"

#include "base/Ascii.h"
#include "base/TextDecoding.h"

#include <algorithm>

namespace sonavel {

const ListFormat* formatNamed(std::string_view name, ListFormats formats)
{
    for (const ListFormat* format : formats)
        for (const std::string_view known : format->names)
            if (!known.empty() && equalsIgnoringCase(name, known))
                return format;
    return nullptr;
}

const ListFormat* formatOfPath(std::string_view path, ListFormats formats)
{
    const std::string_view name = path.substr(path.rfind('/') + 1);
    const std::size_t dot = name.rfind('.');
    return dot == std::string_view::npos ? nullptr : formatNamed(name.substr(dot + 1), formats);
}

const ListFormat& formatOfContent(std::string_view bytes, ListFormats formats)
{
    const std::string_view text = withoutOuterBlanks(withoutByteOrderMark(bytes));
    const auto found = std::find_if(
        formats.begin(), formats.end(), [text](const ListFormat* format) { return format->looksLike(text); });
    return found == formats.end() ? *formats.front() : **found;
}

} // namespace sonavel
