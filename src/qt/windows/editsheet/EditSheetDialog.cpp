#include "qt/windows/editsheet/EditSheetDialog.h"

#include "ui_EditSheet.h"

namespace sonavel {

EditSheetDialog::EditSheetDialog(QWidget& editor)
    : ProgramDialog(&editor)
{
    Ui::EditSheet description;
    description.setupUi(this);
    description.buttonAction->reserveRoomFor(
        {qtTrId("BUTTON_ADD"), qtTrId("BUTTON_EDIT")}, PrimaryButton::Picture::None);
    updateShape();
    resize(fontMetrics().height() * 30, sizeHint().height());
}

} // namespace sonavel
