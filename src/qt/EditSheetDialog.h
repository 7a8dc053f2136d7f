// The sheet in which the user types a station's name and address.
#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class EditSheet;
}

namespace sonavel {

/// Built from its description, whose object names are the names of the outlets. Shown and hidden by the program: Return
/// presses its confirm button, Escape and the title bar its Cancel button, and nothing else ends it.
class EditSheetDialog : public QDialog {
public:
    explicit EditSheetDialog(QWidget& editor);
    ~EditSheetDialog() override;

    void reject() override;

private:
    std::unique_ptr<Ui::EditSheet> description_;
};

} // namespace sonavel
