#include "qt/ports/QtInterfaces.h"

#include "qt/binders/OutletConnector.h"
#include "qt/windows/ProgramDialog.h"
#include "ui_UpdateWindow.h"

namespace sonavel {

std::shared_ptr<void> QtInterfaces::loadAppUpdater(const UpdaterControls& owner)
{
    std::shared_ptr<ProgramDialog> dialog = ProgramDialog::from<Ui::UpdateWindow>();
    const int line = dialog->fontMetrics().height();
    dialog->resize(line * 30, line * 22);
    connectUpdateWindow(owner, *dialog);
    return dialog;
}

} // namespace sonavel
