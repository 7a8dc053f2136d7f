// Fuzzes what player and engine read of each other, and the titles of streams.

#include "Require.h"
#include "engine/LineReader.h"
#include "engine/Protocol.h"
#include "engine/StreamTitle.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

namespace sonavel {
namespace {

void checkLine(std::string line)
{
    require(line.ends_with('\n') && line.find('\n') == line.size() - 1, "a message is one line");
    line.pop_back();
    const auto command = commandFromLine(line);
    const auto event = eventFromLine(line);
    require(command.has_value() != event.has_value(), "a message is read by one side");
    require(!command || lineFromCommand(*command) == line + '\n', "a command comes back");
    require(!event || lineFromEvent(*event) == line + '\n', "an event comes back");
}

/// Reads the bytes as one side of the line, in pieces of the size given.
void checkReading(std::string_view bytes, std::size_t piece)
{
    LineReader reader;
    std::string lines;
    for (; !bytes.empty(); bytes.remove_prefix(std::min(piece, bytes.size()))) {
        reader.append(bytes.substr(0, piece));
        while (const auto line = reader.nextLine()) {
            require(line->size() <= LineReader::maxLine, "no line is too long");
            if (const auto command = commandFromLine(*line))
                checkLine(lineFromCommand(*command));
            if (const auto event = eventFromLine(*line))
                checkLine(lineFromEvent(*event));
        }
    }
}

void checkTexts(std::string_view bytes)
{
    const Text title = streamTitle(bytes);
    require(isValidUtf8(title.view()) && title.view().size() <= 500, "a title is a short text");
    require(streamTitle(title.view()) == title, "a title is a title already");
    checkLine(lineFromEvent(TitleEvent{1, title}));
    if (!isValidUtf8(bytes))
        return;
    const std::string text(bytes);
    for (const LoadCommand& command : {LoadCommand{2, text, "name"}, LoadCommand{2, "address", text}}) {
        std::string line = lineFromCommand(command);
        checkLine(line);
        line.pop_back();
        require(commandFromLine(line) == EngineCommand(command), "every address and name comes back");
    }
}

} // namespace
} // namespace sonavel

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace sonavel;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    checkReading(bytes, size == 0 ? 1 : data[0] % 64U + 1U);
    checkTexts(bytes);
    return 0;
}
