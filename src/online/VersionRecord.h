// What is known of a version of the program: of the one that runs, and of the newest one.
#pragma once

#include "base/Text.h"

#include <optional>
#include <string_view>

namespace sonavel {

struct Bundle;

/// Texts as their source gives them; the numbers among them are "0" where it gives none.
struct VersionRecord {
    Text AppName;
    Text MajorVersion = "0";
    Text MinorVersion = "0";
    Text BugVersion = "0";
    Text StageCode = "0";
    Text Build = "0";

    // Of the newest version alone.
    Text LinkApp;
    /// The web address where the user gets it; not examined yet.
    Text LinkPage;
    /// Release notes, separated by a backslash and an "n".
    Text Note;
    /// Dates in the international form: of the newest version, and of the last change of the server's station list.
    Text updateApp;
    Text updateData;
};

/// The version that runs. A missing display name counts as "Sonavel".
[[nodiscard]] VersionRecord applicationVersionRecord(const Bundle& bundle);

/// Reads the server's response: of every line, up to a carriage return, that has a second field, that field. Nothing
/// when there are fewer than eight, or the response is not ASCII.
[[nodiscard]] std::optional<VersionRecord> serverVersionRecord(std::string_view response);

/// Whether any of the server's numbers, each compared for itself, is higher than the program's.
[[nodiscard]] bool isAnyNumberHigher(const VersionRecord& server, const VersionRecord& application);

/// Such as "1.2.0 (5)".
[[nodiscard]] Text versionText(const VersionRecord& record);

/// The release notes as they are shown: each on a line of its own, after a hyphen.
[[nodiscard]] Text releaseNotes(const VersionRecord& record);

} // namespace sonavel
