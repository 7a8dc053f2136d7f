// File panels as the toolkit's dialogs.
#pragma once

#include "platform/FilePanels.h"

namespace sonavel {

class QtFilePanels : public FilePanels {
public:
    [[nodiscard]] Text runModal(const OpenPanel& panel) override;
    [[nodiscard]] Text runModal(const SavePanel& panel) override;
};

} // namespace sonavel
