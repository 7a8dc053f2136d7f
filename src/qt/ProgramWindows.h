// All windows of the program, with their menus.
#pragma once

#include "base/NonCopyable.h"
#include "base/Text.h"

#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace sonavel {

class Actions;
class MainWindow;
class ProgramDialog;
class ProgramMenus;
class StationListWindow;
class WindowStateStore;
struct Controls;

/// The main window is built first, so that it is on the screen as soon as can be; what the program says to the others
/// meanwhile is rendered once they are there.
class ProgramWindows : private NonCopyable {
public:
    using ImportFile = std::function<void(const Text& path)>;

    /// Builds the main window, which shows what its description says until it is connected. `importFile` imports a list
    /// that was dropped on the station list window.
    ProgramWindows(Controls& controls, Actions& actions, ImportFile importFile, const WindowStateStore& windowState);
    ~ProgramWindows();

    /// Between the two phases of the start-up.
    void connectMainWindow();
    /// Once the main window is painted: takes longer than it, and leaves the keyboard there.
    void buildOtherWindows();

    [[nodiscard]] bool isMainWindowConnected() const { return isMainWindowConnected_; }
    [[nodiscard]] MainWindow& mainWindow() const { return *mainWindow_; }

    /// Tells of a failure in the station list window, if that is shown, else in the main window.
    void showNotice(const QString& text);

    /// Saves where the windows are.
    void savePlaces() const;

private:
    void buildStationListWindow();
    void buildPreferences();
    void buildAboutWindow();
    void buildUpdateNotice();

    Controls& controls_;
    Actions& actions_;
    const ImportFile importFile_;
    const WindowStateStore& windowState_;
    std::unique_ptr<ProgramMenus> menus_;
    std::unique_ptr<MainWindow> mainWindow_;
    std::unique_ptr<StationListWindow> stationListWindow_;
    std::vector<std::unique_ptr<ProgramDialog>> dialogs_;
    bool isMainWindowConnected_ = false;
};

} // namespace sonavel
