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

/// The main window is built first, to be on the screen as soon as possible; changes of the other windows' controls are
/// rendered once these are built.
class ProgramWindows : private NonCopyable {
public:
    using ImportFile = std::function<void(const Text& path)>;

    /// Builds the main window, which shows its initial layout until it is connected. `importFile` imports a list
    /// that was dropped on the station list window.
    ProgramWindows(Controls& controls, Actions& actions, ImportFile importFile, const WindowStateStore& windowState);
    ~ProgramWindows();

    /// Between the two phases of the start-up.
    void connectMainWindow();
    /// After the main window's first painting, which this would delay. Leaves the keyboard focus there.
    void buildOtherWindows();

    [[nodiscard]] bool isMainWindowConnected() const { return isMainWindowConnected_; }
    [[nodiscard]] MainWindow& mainWindow() const { return *mainWindow_; }

    /// Shows a failure in the station list window if that is visible, else in the main window.
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
