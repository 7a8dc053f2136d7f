// The panels in which the user chooses a file.
#pragma once

#include "base/NonCopyable.h"
#include "base/Text.h"

namespace sonavel {

struct OpenPanel {
    /// The extension that files must have to be chosen, such as "csv".
    Text allowedFileType;
};

struct SavePanel {
    /// The file name that is proposed. A name that the user enters without an extension gets that of this one.
    Text nameFieldStringValue;
    /// The folder that is shown first; absolute.
    Text directory;
};

class FilePanels : private NonCopyable {
public:
    virtual ~FilePanels() = default;

    /// Shows the panel, takes no input elsewhere and answers the absolute path of the one file that was chosen; absent
    /// when the user cancelled. The file may be gone by then. Main thread; other events of the program are handled
    /// meanwhile.
    [[nodiscard]] virtual Text runModal(const OpenPanel& panel) = 0;

    /// The same for a file to be written. Where one of the answered name exists the panel has asked whether to replace
    /// it.
    [[nodiscard]] virtual Text runModal(const SavePanel& panel) = 0;
};

} // namespace sonavel
