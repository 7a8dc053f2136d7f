#include "qt/windows/EditSheetDialog.h"

#include "ui_EditSheet.h"

namespace sonavel {

EditSheetDialog::EditSheetDialog(QWidget& editor)
    : ProgramDialog(&editor)
{
    Ui::EditSheet description;
    description.setupUi(this);
    description.buttons->addButton(description.buttonAction, QDialogButtonBox::AcceptRole);
    description.buttons->addButton(description.buttonCancel, QDialogButtonBox::RejectRole);
    description.buttonAction->reserveRoomFor({qtTrId("BUTTON_ADD"), qtTrId("BUTTON_EDIT")});
    takeProportions();
    resize(fontMetrics().height() * 30, minimumHeight());
}

} // namespace sonavel
