// Binds a line of text that is only read to a label.
#pragma once

#include "ui/TextField.h"

#include <QLabel>

namespace sonavel {

/// Renders the text into the label, as plain text. Lives as long as the widget;
/// the field must live longer.
class LabelBinder : public QObject {
public:
    LabelBinder(TextField& field, QLabel& widget);
    ~LabelBinder() override;

private:
    TextField& field_;
};

} // namespace sonavel
