// The user's preferences, and their store between runs.
#pragma once

#include "platform/Bundle.h"
#include "platform/PreferenceDomains.h"
#include "prefs/PreferenceFields.h"

#include <utility>

namespace sonavel {

class Window;

/// The fields are the live preferences; the stored domain is a copy from the last `updatePreference`. Main thread.
class Preferences : public PreferenceFields {
public:
    Preferences(PreferenceDomains& domains, Bundle bundle, const Window& winWebRadioListEdit)
        : domains_(domains)
        , bundle_(std::move(bundle))
        , winWebRadioListEdit_(winWebRadioListEdit)
    {
    }

    /// Sets the fields to what they are before the first run.
    void setStartValues();

    /// Takes every stored field from the domain; a missing key gives NO, 0 or absent. Where there is no domain, stores
    /// the present fields instead.
    void loadingPreference();

    /// Takes over whether the window of the station list is visible, and stores all fields and the program's version
    /// at once. A failed write goes unnoticed here; the fields stand.
    void updatePreference();

private:
    PreferenceDomains& domains_;
    const Bundle bundle_;
    const Window& winWebRadioListEdit_;
};

} // namespace sonavel
