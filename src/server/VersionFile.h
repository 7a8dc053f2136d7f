// What the maker publishes of the newest version: a small file that people can read and write.
#pragma once

#include <string>
#include <string_view>
#include <variant>

namespace sonavel {

/// The answer to players that ask for the newest version, made of such a file:
///
///     # What players are told.
///     version = 1.3.0
///     build = 8
///     page = https://example.org/sonavel
///     application = https://example.org/sonavel/sonavel.deb
///     note = Plays everything.
///     note = Faster.
///     released = 2026-11-01 00:00:00 +0000
///     list changed = 2026-11-02 06:30:00 +0000
///
/// `version` and `build` must be there; the others may be left out, and notes may be many. Empty lines and those that
/// begin with "#" are skipped.
struct VersionAnswer {
    std::string text;
};

/// Why a file cannot be published: one sentence with the number of the line.
struct VersionFault {
    std::string text;
};

[[nodiscard]] std::variant<VersionAnswer, VersionFault> versionAnswerFrom(std::string_view file);

} // namespace sonavel
