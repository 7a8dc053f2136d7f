// sonavel-list: shows, checks and converts station lists in a terminal.

#include "adapters/files/PosixFiles.h"
#include "tools/DatabaseFormat.h"
#include "tools/ListArguments.h"
#include "tools/ListCheck.h"
#include "tools/StationTable.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <iostream>

namespace {

using namespace sonavel;

void printError(const std::string& file, const std::string& what)
{
    std::cerr << "sonavel-list: " << file << ": " << what << '\n';
}

std::string inputName(const ListArguments& arguments)
{
    return arguments.input == standardStream ? "standard input" : arguments.input;
}

std::string outputName(const ListArguments& arguments)
{
    return arguments.output == standardStream ? "standard output" : arguments.output;
}

/// All of a file or pipe, or of the standard input.
FileResult<std::string> readInput(const std::string& path)
{
    SystemCalls calls;
    const OpenFile file(
        calls, path == standardStream ? STDIN_FILENO : calls.open(AT_FDCWD, path.c_str(), O_RDONLY | O_NOCTTY, 0));
    if (!file.isOpen())
        return tl::unexpected(lastError());
    std::string content;
    constexpr std::size_t step = std::size_t{1} << 20U;
    for (std::size_t filled = 0; filled <= PosixFiles::maxFileSize;) {
        content.resize(filled + step);
        const ssize_t size = calls.read(file.descriptor(), content.data() + filled, step);
        if (size < 0)
            return tl::unexpected(lastError());
        filled += static_cast<std::size_t>(size);
        content.resize(filled);
        if (size == 0)
            return content;
    }
    return tl::unexpected(std::make_error_code(std::errc::file_too_large));
}

tl::expected<ParsedList, std::string> parsedInput(const ListArguments& arguments)
{
    const auto content = readInput(arguments.input);
    if (!content)
        return tl::unexpected(content.error().message());
    const ListFormat& format =
        arguments.inputFormat != nullptr ? *arguments.inputFormat : formatOfContent(*content, allFormats);
    return format.parse(*content);
}

/// Prints why where there is none.
std::optional<ParsedList> inputList(const ListArguments& arguments)
{
    auto list = parsedInput(arguments);
    if (list)
        return *std::move(list);
    printError(inputName(arguments), list.error());
    return std::nullopt;
}

bool print(std::string_view bytes)
{
    if (std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size() && std::fflush(stdout) == 0)
        return true;
    printError("standard output", lastError().message());
    return false;
}

bool write(const std::string& path, std::string_view bytes)
{
    if (path == standardStream)
        return print(bytes);
    PosixFiles files{Text()};
    const UserFile file{UserFile::Kind::Other, std::filesystem::absolute(path).string()};
    const auto written = files.writeAtomically(file, bytes, FileAccess::AsUsual);
    if (!written)
        printError(path, written.error().message());
    return written.has_value();
}

/// The number of places that were left out or changed in parsing.
long placesLost(const ParsedList& list)
{
    return std::count_if(list.diagnostics.begin(), list.diagnostics.end(),
        [](const Diagnostic& diagnostic) { return diagnostic.severity == Diagnostic::Severity::Loss; });
}

/// Prints that number unless it is 0; returns the exit status for it.
int statusAfterParsing(const ListArguments& arguments, const ParsedList& list)
{
    const long lost = placesLost(list);
    if (lost == 0)
        return listIsFine;
    printError(inputName(arguments),
        "left out or changed in " + std::to_string(lost) + " places, which \"sonavel-list check\" lists");
    return listHasDiagnostics;
}

int show(const ListArguments& arguments)
{
    const auto list = inputList(arguments);
    const auto layout = ::isatty(STDOUT_FILENO) == 1 ? TableLayout::Columns : TableLayout::TabSeparated;
    if (!list || !print(stationTable(list->stations, layout)))
        return unreadable;
    return statusAfterParsing(arguments, *list);
}

int convert(const ListArguments& arguments)
{
    const auto list = inputList(arguments);
    if (!list)
        return unreadable;
    if (list->stations.empty() && placesLost(*list) > 0) {
        printError(inputName(arguments), "there is no station in it");
        return unreadable;
    }
    const auto output = arguments.outputFormat->serialize(list->stations);
    if (!output) {
        printError(outputName(arguments), output.error());
        return unreadable;
    }
    if (!write(arguments.output, output->bytes))
        return unreadable;
    const int status = statusAfterParsing(arguments, *list);
    if (output->stationsLost == 0)
        return status;
    printError(arguments.output,
        std::to_string(output->stationsLost) + " stations are left out, as a later one has the same address");
    return listHasDiagnostics;
}

int check(const ListArguments& arguments)
{
    auto list = inputList(arguments);
    if (!list)
        return unreadable;
    auto& diagnostics = list->diagnostics;
    const auto checked = checkedStations(list->stations);
    diagnostics.insert(diagnostics.end(), checked.begin(), checked.end());
    std::stable_sort(diagnostics.begin(), diagnostics.end(),
        [](const Diagnostic& left, const Diagnostic& right) { return left.place < right.place; });
    std::string report;
    for (const Diagnostic& diagnostic : diagnostics) {
        report += diagnostic.place
            ? std::string(list->placeName).append(" ").append(std::to_string(*diagnostic.place + 1))
            : "list";
        report.append(": ").append(diagnostic.what) += '\n';
    }
    if (!print(report))
        return unreadable;
    return diagnostics.empty() ? listIsFine : listHasDiagnostics;
}

} // namespace

int main(int argc, char** argv)
{
    const ListArguments arguments = listArgumentsFrom(argc, argv);
    switch (arguments.command) {
    case ListArguments::Command::Show:
        return show(arguments);
    case ListArguments::Command::Convert:
        return convert(arguments);
    case ListArguments::Command::Check:
        return check(arguments);
    }
}
