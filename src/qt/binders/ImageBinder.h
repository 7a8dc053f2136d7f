// Binds a picture of the program to a label.
#pragma once

#include "ui/ImageView.h"

#include <QLabel>

namespace sonavel {

/// Draws the image in the label's colour, a little higher than a line of its text. Lives as long as the label; the
/// image must live longer.
class ImageBinder : public QObject {
public:
    /// The label's property "imageName" names the image that it shows at first; without it the label keeps the picture
    /// that it has.
    ImageBinder(ImageView& image, QLabel& widget);
    ~ImageBinder() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void render(const ImageViewState& state);

    ImageView& image_;
    QLabel& widget_;
};

} // namespace sonavel
