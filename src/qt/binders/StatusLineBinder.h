// Binds a text that the program tells to a line that forgets it after a while.
#pragma once

#include "qt/windows/StatusLine.h"
#include "ui/TextField.h"

namespace sonavel {

/// Shows each text that the field is given. When the line has forgotten it the field is emptied too, so that the same
/// text can be told again. Lives as long as the widget; the field must live longer.
class StatusLineBinder : public QObject {
public:
    StatusLineBinder(TextField& field, StatusLine& widget);
    ~StatusLineBinder() override;

private:
    TextField& field_;
};

} // namespace sonavel
