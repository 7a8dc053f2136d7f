// A line of text that never asks for more room than it has.
#pragma once

#include <QLabel>

namespace sonavel {

/// Shows its plain text on one line, cut with an ellipsis where it does not fit, and whole as the tool tip then. Its
/// wish for room depends on the font alone, so that a change of text moves nothing around it.
class ElidedLabel : public QLabel {
public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
};

} // namespace sonavel
