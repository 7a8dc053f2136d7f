// Windows that are built in memory, and a browser that opens nothing.
#pragma once

#include "platform/Interfaces.h"
#include "platform/WebBrowser.h"
#include "ui/Button.h"
#include "ui/TextField.h"
#include "ui/Window.h"

#include <memory>
#include <vector>

namespace sonavel {

class MemoryInterfaces : public Interfaces {
public:
    /// How many of the windows are there, and how many were ever built.
    int present = 0;
    int built = 0;

    [[nodiscard]] std::shared_ptr<void> loadAppUpdater(const UpdaterControls& owner) override
    {
        ++built;
        return std::make_shared<Loaded>(owner, present);
    }

private:
    class Loaded {
    public:
        Loaded(const UpdaterControls& owner, int& present)
            : present_(present)
        {
            ++present_;
            owner.windowUpdater.connect({});
            for (TextField* field :
                {&owner.textFieldLabelUpdateNameApp, &owner.textFieldLabelUpdateVersionNote, &owner.textViewRelaseNote})
                field->connect({});
            for (Button* button : {&owner.buttonUpdate, &owner.buttonRemind}) {
                button->connect({});
                button->setEnabled(true);
            }
        }
        Loaded(const Loaded&) = delete;
        Loaded& operator=(const Loaded&) = delete;
        ~Loaded() { --present_; }

    private:
        int& present_;
    };
};

class RecordingWebBrowser : public WebBrowser {
public:
    std::vector<Text> opened;

    void openAddress(const Text& address) override { opened.push_back(address); }
};

} // namespace sonavel
