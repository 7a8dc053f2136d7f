// Takes from this process what it does not need for playing streams.
#pragma once

namespace sonavel {

enum class Confinement {
    /// Files are out of reach as described below.
    Complete,
    /// The kernel cannot confine a process; nothing but new privileges was given up.
    NotSupported,
};

/// Gives up new privileges and starting programs for good, and lets this process reach only: the system's libraries,
/// settings and certificates (reading), what sound needs (its devices, sockets and shared memory), and the network. No
/// file of the user's can be read, none can be written anywhere, and memory is bounded to a gigabyte. Call it while
/// there is one thread, before anything from outside is opened; there is no way back.
[[nodiscard]] Confinement confineThisProcess();

} // namespace sonavel
