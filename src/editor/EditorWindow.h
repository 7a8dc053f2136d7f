// The window of the station list: its title, and when it is shown.
#pragma once

#include "base/NonCopyable.h"

namespace sonavel {

class LocalizedStrings;
class RunLoop;
class StationList;
class Window;

class EditorWindow : private NonCopyable {
public:
    EditorWindow(
        const StationList& stationList, const LocalizedStrings& localizedStrings, RunLoop& runLoop, Window& window)
        : stationList_(stationList)
        , localizedStrings_(localizedStrings)
        , runLoop_(runLoop)
        , window_(window)
    {
    }

    /// Puts the number of stations into the title. It stays there until the next call, whatever happens to the list.
    void updateTitleWebRadioListEdit();

    /// Shows the window; one that is shown comes to the front on the loop's next turn.
    void buttonEditradio();

    /// Hides the window when it is shown, and shows it when it is hidden.
    void toggleVisibility();

    /// Hides the window.
    void close();

private:
    const StationList& stationList_;
    const LocalizedStrings& localizedStrings_;
    RunLoop& runLoop_;
    Window& window_;
};

} // namespace sonavel
