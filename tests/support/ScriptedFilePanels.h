// File panels in which the test chooses.
#pragma once

#include "platform/FilePanels.h"

#include <functional>
#include <optional>

namespace sonavel {

/// Cancelled unless the test has chosen.
class ScriptedFilePanels : public FilePanels {
public:
    /// What every panel answers; absent cancels.
    Text choice;
    /// Runs while a panel is open.
    std::function<void()> whileOpen = [] {};
    std::optional<OpenPanel> opened;
    std::optional<SavePanel> saved;

    [[nodiscard]] Text runModal(const OpenPanel& panel) override
    {
        opened = panel;
        whileOpen();
        return choice;
    }

    [[nodiscard]] Text runModal(const SavePanel& panel) override
    {
        saved = panel;
        whileOpen();
        return choice;
    }
};

} // namespace sonavel
