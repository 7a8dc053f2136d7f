#include "storage/PlainListFile.h"

#include "base/ForeignText.h"
#include "platform/Files.h"

namespace sonavel {

Text listTextOfPlainFile(const Files& files, const Text& path)
{
    auto content = files.contentsOfFile(path);
    if (!content || !isValidUtf8(*content))
        return {};
    const Text text(std::move(*content));
    return text.slice(withoutByteOrderMark(text.view()));
}

} // namespace sonavel
