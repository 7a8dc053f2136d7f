// A small window of the program: a sheet, or one that stands alone.
#pragma once

#include <QDialog>

#include <memory>

namespace sonavel {

/// Built from its description, whose object names are the names of the outlets. Shown and hidden by the program: Return
/// presses its default button, and Escape asks to close it as the title bar does. Buttons beside a button box are put
/// into it: the default button accepts, the others reject.
class ProgramDialog : public QDialog {
public:
    explicit ProgramDialog(QWidget* owner = nullptr)
        : QDialog(owner)
    {
    }

    /// A dialog from what the description compiler made of a description.
    template <class Description> static std::unique_ptr<ProgramDialog> from(QWidget* owner = nullptr)
    {
        auto dialog = std::make_unique<ProgramDialog>(owner);
        Description().setupUi(dialog.get());
        dialog->arrangeButtons();
        dialog->updateProportions();
        return dialog;
    }

    void reject() override { close(); }

protected:
    bool event(QEvent* event) override;

private:
    void arrangeButtons();
    void updateProportions();
    void growWithTexts();
};

} // namespace sonavel
