// The one button of a window that matters most.
#pragma once

#include <QPushButton>

namespace sonavel {

/// Stands out in the palette's highlight colour, and keeps its width whichever of its words it shows.
class PrimaryButton : public QPushButton {
public:
    explicit PrimaryButton(QWidget* parent = nullptr);

    enum class Picture { None, BesideWords };
    /// Makes it wide enough for each of these words.
    void reserveRoomFor(const QStringList& words, Picture picture);

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void takeHighlightColors();
};

} // namespace sonavel
