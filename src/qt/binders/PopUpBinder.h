// Binds a pop-up of the program to a combo box.
#pragma once

#include "qt/kit/StationComboBox.h"
#include "qt/kit/StationTitlesModel.h"

namespace sonavel {

/// Renders the pop-up's state into the box and reports what the user chooses there. Lives as long as the widget;
/// the pop-up must live longer.
class PopUpBinder : public QObject {
public:
    PopUpBinder(PopUpButton& popUp, StationComboBox& widget);
    ~PopUpBinder() override;

private:
    void render(const PopUpButtonState& state);

    PopUpButton& popUp_;
    StationComboBox& widget_;
    StationTitlesModel model_;
};

} // namespace sonavel
