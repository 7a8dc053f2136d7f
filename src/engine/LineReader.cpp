#include "engine/LineReader.h"

#include <utility>

namespace sonavel {

std::optional<std::string> LineReader::nextLine()
{
    for (;;) {
        const std::size_t end = pending_.find('\n');
        if (end == std::string::npos) {
            if (pending_.size() > maxLine) {
                pending_.clear();
                isDropping_ = true;
            }
            return std::nullopt;
        }
        std::string line = pending_.substr(0, end);
        pending_.erase(0, end + 1);
        if (!std::exchange(isDropping_, false) && line.size() <= maxLine)
            return line;
    }
}

} // namespace sonavel
