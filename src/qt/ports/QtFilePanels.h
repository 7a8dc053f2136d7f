// File panels as the toolkit's dialogs.
#pragma once

#include "platform/FilePanels.h"

#include <QString>

namespace sonavel {

class Alerts;

/// Over the active window. A folder cannot be chosen, whatever its name; it is entered. A choice that
/// does not serve brings the panel back. The open panel removes and renames nothing. It begins where the last file was
/// chosen, at first in the user's home folder. So does the save panel where it is asked to begin in a folder that goes
/// away with the program.
class QtFilePanels : public FilePanels {
public:
    /// The alerts are borrowed: they say why a file cannot be opened, and ask whether to replace one.
    explicit QtFilePanels(Alerts& alerts, QString passingFolder = {});

    [[nodiscard]] Text runModal(const OpenPanel& panel) override;
    [[nodiscard]] Text runModal(const SavePanel& panel) override;

private:
    [[nodiscard]] bool isToBeReplaced(const QString& name);

    Alerts& alerts_;
    QString folder_;
    QString passingFolder_;
};

} // namespace sonavel
