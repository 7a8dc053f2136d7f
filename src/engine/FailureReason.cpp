#include "engine/FailureReason.h"

#include <algorithm>
#include <array>

namespace sonavel {

namespace {

struct Sign {
    std::string_view part;
    PlaybackFailure failure;
};

/// The more specific ones first.
constexpr std::array signs{
    Sign{"Failed to resolve hostname", PlaybackFailure::NoSuchHost},
    Sign{"Connection refused", PlaybackFailure::Refused},
    Sign{"Network is unreachable", PlaybackFailure::Unreachable},
    Sign{"No route to host", PlaybackFailure::Unreachable},
    Sign{"timed out", PlaybackFailure::TimedOut},
    Sign{"ertificate", PlaybackFailure::Certificate},
    Sign{"error in the pull function", PlaybackFailure::Certificate},
    Sign{"HTTP error 404", PlaybackFailure::NotFound},
    Sign{"HTTP error 401", PlaybackFailure::NotAllowed},
    Sign{"HTTP error 403", PlaybackFailure::NotAllowed},
    Sign{"HTTP error 4", PlaybackFailure::Rejected},
    Sign{"HTTP error 5", PlaybackFailure::ServerError},
    Sign{"Failed to recognize file format", PlaybackFailure::NotAStream},
    Sign{"Could not open/initialize audio device", PlaybackFailure::NoSoundOutput},
};

/// Such a line only repeats the address, which may contain any of the signs.
constexpr std::string_view addressLine = "Failed to open ";

} // namespace

std::optional<PlaybackFailure> failureFromLogLine(std::string_view line)
{
    const auto* const found = std::find_if(signs.begin(), signs.end(),
        [line](const Sign& sign) { return line.find(sign.part) != std::string_view::npos; });
    if (found == signs.end() || line.starts_with(addressLine))
        return std::nullopt;
    return found->failure;
}

} // namespace sonavel
