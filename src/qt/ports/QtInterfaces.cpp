#include "qt/ports/QtInterfaces.h"

#include "qt/binders/OutletConnector.h"
#include "qt/windows/ProgramDialog.h"
#include "ui_UpdateWindow.h"

namespace sonavel {

namespace {

class LoadedDialog : public LoadedInterface {
public:
    explicit LoadedDialog(std::unique_ptr<ProgramDialog> dialog)
        : dialog_(std::move(dialog))
    {
    }

private:
    std::unique_ptr<ProgramDialog> dialog_;
};

} // namespace

std::unique_ptr<LoadedInterface> QtInterfaces::loadAppUpdater(const UpdaterControls& owner)
{
    auto dialog = ProgramDialog::from<Ui::UpdateWindow>();
    const int line = dialog->fontMetrics().height();
    dialog->resize(line * 30, line * 22);
    connectUpdateWindow(owner, *dialog);
    return std::make_unique<LoadedDialog>(std::move(dialog));
}

} // namespace sonavel
