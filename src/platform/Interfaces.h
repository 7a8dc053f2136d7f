// Windows that are built from their descriptions while the program runs.
#pragma once

#include "base/NonCopyable.h"

#include <memory>

namespace sonavel {

class Button;
class TextField;
class Window;

/// The controls that the description "AppUpdater" connects. They belong to the checker that asks for it.
struct UpdaterControls {
    Window& windowUpdater;
    TextField& textFieldLabelUpdateNameApp;
    TextField& textFieldLabelUpdateVersionNote;
    TextField& textViewRelaseNote;
    Button& buttonUpdate;
    Button& buttonRemind;
};

class Interfaces : private NonCopyable {
public:
    virtual ~Interfaces() = default;

    /// Builds the window that announces a newer version, hidden, and connects the controls, which have to outlive it.
    /// With the last pointer to it the window goes off the screen and disconnects them. Also before the main window
    /// exists.
    [[nodiscard]] virtual std::shared_ptr<void> loadAppUpdater(const UpdaterControls& owner) = 0;
};

} // namespace sonavel
