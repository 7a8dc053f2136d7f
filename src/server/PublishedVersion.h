// The newest version of the program, as the data server publishes it.
#pragma once

#include <string>
#include <vector>

namespace sonavel {

/// All texts are printable ASCII without ";", and what their names say; notes are without a backslash before an "n".
struct PublishedVersion {
    /// Up to three numbers with points between.
    std::string version;
    std::string build;
    /// Web addresses of the program and of the page where the user gets it; empty for the server's own address.
    std::string application;
    std::string page;
    /// Release notes, in their order.
    std::vector<std::string> notes;
    /// Dates in the international form: of this version, and of the last change of the station list.
    std::string released;
    std::string listChanged;
};

/// The response to players: eight values by their position, each in a line of its own that ends with a carriage
/// return. `baseAddress` is where the client reaches the server.
[[nodiscard]] std::string versionResponse(const PublishedVersion& published, const std::string& baseAddress);

} // namespace sonavel
