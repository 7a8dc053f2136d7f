// Windows that are built from their descriptions while the program runs.
#pragma once

#include "platform/Interfaces.h"

namespace sonavel {

class QtInterfaces : public Interfaces {
public:
    [[nodiscard]] std::shared_ptr<void> loadAppUpdater(const UpdaterControls& owner) override;
};

} // namespace sonavel
