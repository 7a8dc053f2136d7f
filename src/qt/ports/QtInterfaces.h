// Windows that are built from their descriptions while the program runs.
#pragma once

#include "platform/Interfaces.h"

namespace sonavel {

class QtInterfaces : public Interfaces {
public:
    [[nodiscard]] std::unique_ptr<LoadedInterface> loadAppUpdater(const UpdaterControls& owner) override;
};

} // namespace sonavel
