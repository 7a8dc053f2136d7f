// Binds a line of text that the user types to a field of Qt's.
#pragma once

#include "ui/TextField.h"

#include <QLineEdit>

namespace sonavel {

/// Reports what the user types, and renders what the program makes of it as the least change, so that the caret stays
/// where the user types and what he typed can be undone. While an input method composes, nothing is reported; a text
/// that the program sets then ends the composition. Lives as long as the widget; the field must live longer.
class TextFieldBinder : public QObject {
public:
    TextFieldBinder(TextField& field, QLineEdit& widget);
    ~TextFieldBinder() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void report();
    void render(const TextFieldState& state);
    void endComposition();
    void replaceDifference(const QString& text);

    TextField& field_;
    QLineEdit& widget_;
    bool isComposing_ = false;
    bool isReporting_ = false;
    bool isRedoing_ = false;
};

} // namespace sonavel
