// A text that never asks for more space than it has.
#pragma once

#include <QIcon>
#include <QLabel>

namespace sonavel {

/// Shows its plain text on one line, or wrapped where it is higher than one, cut with an ellipsis where it does not
/// fit, and whole as the tool tip then; before it a mark, if it has one. Its size hint depends on the font alone, so
/// that a change of text moves nothing.
class ElidedLabel : public QLabel {
public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    /// A picture of the height of the text; an empty one takes no room.
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
