// A text that never asks for more space than it has.
#pragma once

#include <QIcon>
#include <QLabel>

namespace sonavel {

/// Shows its plain text on one line, or wrapped where the label is higher than one line; before the text a mark, if it
/// has one. A text that does not fit is cut with an ellipsis, and whole in the tool tip. The size hint depends on the
/// font alone, so that a change of text moves nothing.
class ElidedLabel : public QLabel {
public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    /// Shown as high as the text. An empty one is no mark, and leaves no space.
    void setMark(const QIcon& mark);
    /// Where the text lies.
    [[nodiscard]] QRect textArea() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    [[nodiscard]] int linesThatFit() const;
    QIcon mark_;
};

} // namespace sonavel
