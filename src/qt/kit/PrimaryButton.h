// The one button of a window that matters most.
#pragma once

#include <QPushButton>

namespace sonavel {

/// Stands out in the palette's highlight colour, and keeps its width whichever of its words it shows.
class PrimaryButton : public QPushButton {
public:
    explicit PrimaryButton(QWidget* parent = nullptr);

    /// Makes it wide enough for each of these.
    void reserveRoomFor(const QStringList& words);

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void takeHighlightColors();
};

} // namespace sonavel
