#include "qt/EditSheetDialog.h"

#include "ui_EditSheet.h"

namespace sonavel {

EditSheetDialog::EditSheetDialog(QWidget& editor)
    : QDialog(&editor)
    , description_(std::make_unique<Ui::EditSheet>())
{
    description_->setupUi(this);
    description_->buttons->addButton(description_->buttonAction, QDialogButtonBox::AcceptRole);
    description_->buttons->addButton(description_->buttonCancel, QDialogButtonBox::RejectRole);
    description_->buttonAction->reserveRoomFor({qtTrId("BUTTON_ADD"), qtTrId("BUTTON_EDIT")});

    const int line = fontMetrics().height();
    description_->rows->setContentsMargins(line, line, line, line);
    description_->rows->setSpacing(line * 3 / 4);
    description_->fields->setHorizontalSpacing(line * 3 / 4);
    description_->fields->setVerticalSpacing(line * 5 / 8);
    for (QLineEdit* field : {description_->textFieldRadioName, description_->textFieldRadioLink}) {
        field->setMinimumHeight(line * 7 / 4);
        field->setTextMargins(line / 4, 0, line / 4, 0);
    }
    for (QPushButton* button : {static_cast<QPushButton*>(description_->buttonAction), description_->buttonCancel})
        button->setMinimumHeight(line * 2);
    setMinimumSize(minimumSizeHint());
    resize(line * 30, minimumHeight());
}

EditSheetDialog::~EditSheetDialog() = default;

void EditSheetDialog::reject()
{
    description_->buttonCancel->click();
}

} // namespace sonavel
