// File panels as the toolkit's dialogs.
#pragma once

#include "platform/FilePanels.h"

#include <QString>

namespace sonavel {

/// Over the active window. A folder cannot be chosen, whatever its name; it is entered. The open panel begins where the
/// last file was chosen, at first in the user's home folder.
class QtFilePanels : public FilePanels {
public:
    QtFilePanels();

    [[nodiscard]] Text runModal(const OpenPanel& panel) override;
    [[nodiscard]] Text runModal(const SavePanel& panel) override;

private:
    QString folder_;
};

} // namespace sonavel
