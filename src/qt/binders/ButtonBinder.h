// Binds a button or check box of the program to Qt's.
#pragma once

#include "ui/Button.h"

#include <QAbstractButton>

namespace sonavel {

/// Renders the button's state into the widget and reports what the user does there. Lives as long as the widget;
/// the button must live longer.
class ButtonBinder : public QObject {
public:
    /// Takes over what the widget says; its property "imageName" names the image that it shows at first.
    ButtonBinder(Button& button, QAbstractButton& widget);
    ~ButtonBinder() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void render(const ButtonState& state);
    void renderWords(const ButtonState& state);
    void renderColors(const ButtonState& state);
    void renderEnabling(bool isEnabled);

    Button& button_;
    QAbstractButton& widget_;
    bool isRed_ = false;
    bool isRenderingColors_ = false;
    bool lostKeyboard_ = false; ///< in this turn of the loop, to its being disabled
};

} // namespace sonavel
