// Binds a text that is only read to the widget that shows it.
#pragma once

#include "ui/TextField.h"

#include <QLabel>
#include <QPlainTextEdit>

namespace sonavel {

/// Shows it as plain text, whatever it contains. Lives as long as the widget; the field must live longer.
class LabelBinder : public QObject {
public:
    LabelBinder(TextField& field, QLabel& widget);
    LabelBinder(TextField& field, QPlainTextEdit& widget);
    ~LabelBinder() override;

private:
    TextField& field_;
};

} // namespace sonavel
