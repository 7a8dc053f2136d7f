// A picture.
#pragma once

#include "base/Text.h"
#include "ui/Rendered.h"

namespace sonavel {

struct ImageViewState {
    /// The name of an image that is delivered with the program; absent for none.
    Text image;

    friend bool operator==(const ImageViewState&, const ImageViewState&) = default;
};

class ImageView : public Rendered<ImageViewState> {
public:
    void setImage(const Text& name) { set(&ImageViewState::image, name); }
};

} // namespace sonavel
