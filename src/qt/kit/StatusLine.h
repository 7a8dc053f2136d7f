// A line that says what came of something, for as long as it takes to read it.
#pragma once

#include "qt/kit/ElidedLabel.h"

class QTimer;

namespace sonavel {

/// Holds a failure and a usual text, each for twenty seconds of its own, and shows the failure as long as there is one.
/// Moves nothing when its text changes.
class StatusLine : public ElidedLabel {
public:
    explicit StatusLine(QWidget* parent = nullptr);

    /// Takes the place of the usual text; an empty one clears it.
    void showText(const QString& text) { hold(usual_, text); }
    /// Takes the place of the failure.
    void showFailure(const QString& text) { hold(failure_, text); }

protected:
    void changeEvent(QEvent* event) override;

private:
    struct Message {
        QString text;
        QTimer* time = nullptr;
    };

    void hold(Message& message, const QString& text);
    void updateColor();

    Message usual_;
    Message failure_;
};

} // namespace sonavel
