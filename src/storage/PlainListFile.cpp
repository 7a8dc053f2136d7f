#include "storage/PlainListFile.h"

#include "base/TextDecoding.h"

namespace sonavel {

FileResult<Text> listTextOfPlainFile(const Files& files, const Text& path)
{
    return files.contentsOfFile(path).and_then([](std::string content) -> FileResult<Text> {
        if (!isValidUtf8(content))
            return tl::unexpected(std::make_error_code(std::errc::illegal_byte_sequence));
        const Text text(std::move(content));
        return text.slice(withoutByteOrderMark(text.view()));
    });
}

} // namespace sonavel
