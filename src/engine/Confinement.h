// Takes from this process what it does not need for playing streams.
#pragma once

namespace sonavel {

/// Gives up new privileges and starting programs for good, and lets this process open only: the system's libraries,
/// settings and certificates (reading), and what sound needs (its devices and shared memory). No file of the user's can
/// be opened, none can be made, removed or renamed but in the shared memory, and memory is bounded to a gigabyte.
///
/// It keeps the process neither from the network nor from connecting to Unix sockets by their paths: the message bus of
/// the session, the sound server, the display. These do for it what they do for every program of the user's, reading
/// files and starting programs included. So it stops faults of decoders that open files, not a decoder that was taken
/// over and knows where it is.
///
/// Call it while there is one thread, before anything from outside is opened; there is no way back. False when the
/// kernel cannot confine a process; nothing but new privileges was given up then.
[[nodiscard]] bool enterSandbox();

} // namespace sonavel
