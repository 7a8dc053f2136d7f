// The whole world around the controller, in memory.
#pragma once

#include "app/CountedAlerts.h"
#include "app/Ports.h"
#include "platform/LocalizedStrings.h"
#include "platform/NotificationCenter.h"
#include "platform/Process.h"
#include "platform/RunLoop.h"
#include "support/MemoryFiles.h"
#include "support/MemoryInterfaces.h"
#include "support/MemoryPreferenceDomains.h"
#include "support/RecordingStreamPlayers.h"
#include "support/ScriptedAlerts.h"
#include "support/ScriptedFilePanels.h"
#include "support/ScriptedHttpClient.h"
#include "support/SettableClock.h"

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace sonavel {

/// Every text is its key in angle brackets, so that none is taken for its key, or what the test gives.
class BracketedStrings : public LocalizedStrings {
public:
    /// Takes the place of the key in brackets.
    std::map<std::string, Text, std::less<>> texts;

    [[nodiscard]] Text localizedStringForKey(std::string_view key) const override
    {
        const auto text = texts.find(key);
        return text == texts.end() ? Text("<" + std::string(key) + ">") : text->second;
    }
};

/// A loop that turns when the test says so.
class ManualRunLoop : public RunLoop {
public:
    void performOnNextTurn(std::function<void()> action) override { waiting_.push_back(std::move(action)); }

    void turn()
    {
        for (const auto& action : std::exchange(waiting_, {}))
            action();
    }

private:
    std::vector<std::function<void()>> waiting_;
};

/// A process whose end unwinds to the test.
class ThrowingProcess : public Process {
public:
    struct Ended {
        int status;
    };

    [[noreturn]] void exit(int status) override { throw Ended{status}; }
};

/// Noon on a day in 2016; the network is there, the data server has no list, nothing is stored.
struct MemoryPlatform {
    MemoryFiles files;
    /// What was done to files, servers and preferences, in order.
    std::vector<std::string>& log = files.log;
    ScriptedAlerts alerts;
    CountedAlerts countedAlerts{alerts};
    ScriptedFilePanels filePanels;
    ScriptedHttpClient httpClient{log};
    MemoryInterfaces interfaces;
    RecordingStreamPlayers streamPlayers;
    RecordingWebBrowser webBrowser;
    MemoryPreferenceDomains preferenceDomains{log};
    SettableClock clock{"2016-10-05 12:00:00 +0000"};
    BracketedStrings localizedStrings;
    NotificationCenter notificationCenter;
    ManualRunLoop runLoop;
    ThrowingProcess process;
    Configuration configuration{"http://data.example/", "http://probe.example/"};

    MemoryPlatform() { httpClient.answers["http://probe.example/"] = ""; }

    [[nodiscard]] Ports ports()
    {
        return {
            .alerts = countedAlerts,
            .filePanels = filePanels,
            .files = files,
            .httpClient = httpClient,
            .interfaces = interfaces,
            .streamPlayers = streamPlayers,
            .webBrowser = webBrowser,
            .preferenceDomains = preferenceDomains,
            .clock = clock,
            .localizedStrings = localizedStrings,
            .notificationCenter = notificationCenter,
            .runLoop = runLoop,
            .process = process,
            .bundle = {"Sonavel", "1.2.0", "5"},
        };
    }
};

} // namespace sonavel
