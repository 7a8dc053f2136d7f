#include "storage/PlainListFile.h"

#include "platform/Files.h"

namespace sonavel {

Text listTextOfPlainFile(const Files& files, const Text& path)
{
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    auto content = files.contentsOfFile(path);
    if (!content || !isValidUtf8(*content))
        return {};
    const Text text(std::move(*content));
    return text.view().starts_with(byteOrderMark) ? text.slice(text.view().substr(byteOrderMark.size())) : text;
}

} // namespace sonavel
