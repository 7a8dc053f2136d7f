// What the program needs of the world around it.
#pragma once

#include "base/Text.h"
#include "platform/Bundle.h"

namespace sonavel {

class Clock;
class CountedAlerts;
class FilePanels;
class Files;
class HttpClient;
class Interfaces;
class LocalizedStrings;
class NotificationCenter;
class PreferenceDomains;
class Process;
class RunLoop;
class StreamPlayers;
class WebBrowser;

/// Borrowed: they outlive the controller that is made with them.
struct Ports {
    CountedAlerts& alerts;
    FilePanels& filePanels;
    Files& files;
    HttpClient& httpClient;
    Interfaces& interfaces;
    StreamPlayers& streamPlayers;
    WebBrowser& webBrowser;
    PreferenceDomains& preferenceDomains;
    Clock& clock;
    LocalizedStrings& localizedStrings;
    NotificationCenter& notificationCenter;
    RunLoop& runLoop;
    Process& process;
    Bundle bundle;
};

struct Configuration {
    /// The data server's base address; ends in "/".
    Text dataServer;
    /// The web address that is asked whether there is a network.
    Text probe;
};

} // namespace sonavel
