// What the command line of sonavel-list asks for.
#pragma once

#include "playlists/ListFormats.h"

#include <string>

namespace sonavel {

/// The path that stands for standard input and output.
inline constexpr const char* standardStream = "-";

struct ListArguments {
    enum class Command { Show, Convert, Check };

    Command command = Command::Show;
    std::string input;
    /// As given by option or extension; null where the content decides.
    const ListFormat* inputFormat = nullptr;
    /// For `Convert` alone.
    std::string output;
    const ListFormat* outputFormat = nullptr;
};

/// Exit statuses.
inline constexpr int listIsFine = 0;
inline constexpr int listHasDiagnostics = 1;
inline constexpr int usageError = 2;
inline constexpr int unreadable = 3;

/// Exits for --help, --version and, with `usageError` and a line that says why, for invalid arguments.
[[nodiscard]] ListArguments listArgumentsFrom(int argc, char** argv);

} // namespace sonavel
