// Binds a text of several lines to the widget that shows it.
#pragma once

#include "ui/TextField.h"

#include <QPlainTextEdit>

namespace sonavel {

/// Shows it as plain text, whatever it contains. Lives as long as the widget; the field must live longer.
class NotesBinder : public QObject {
public:
    NotesBinder(TextField& field, QPlainTextEdit& widget);
    ~NotesBinder() override;

private:
    TextField& field_;
};

} // namespace sonavel
