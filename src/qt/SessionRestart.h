// How the player comes back with the next session.
#pragma once

namespace sonavel {

struct LaunchOptions;

/// The session manager, if there is one, is to start the player as it was started; never the demo, which keeps nothing.
/// To be called once, with an application.
void restartWithSession(const LaunchOptions& options);

} // namespace sonavel
