// A line that tells what came of something, for as long as it takes to read it.
#pragma once

#include "qt/kit/ElidedLabel.h"

#include <functional>

class QTimer;

namespace sonavel {

/// Moves nothing when its text changes; a text goes away by itself after some twenty seconds. Failures stand out.
class StatusLine : public ElidedLabel {
public:
    enum class Tone { Usual, Failure };

    explicit StatusLine(QWidget* parent = nullptr);

    /// Takes the place of the text that is there, but of a failure only as another failure; an empty one clears the
    /// line.
    void tell(const QString& text, Tone tone = Tone::Usual);
    /// Is called when a text has gone away by itself.
    void whenGone(std::function<void()> action) { whenGone_ = std::move(action); }

protected:
    void changeEvent(QEvent* event) override;

private:
    void takeColor();

    QTimer* timeToRead_;
    Tone tone_ = Tone::Usual;
    std::function<void()> whenGone_;
};

} // namespace sonavel
