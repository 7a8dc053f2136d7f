// Binds a text that the program announces to a line that shows it for a while.
#pragma once

#include "qt/kit/StatusLine.h"
#include "ui/TextField.h"

namespace sonavel {

/// Shows each text that the field is given, for the line's usual time. Lives as long as the widget; the field must live
/// longer.
class StatusLineBinder : public QObject {
public:
    StatusLineBinder(TextField& field, StatusLine& widget);
    ~StatusLineBinder() override;

private:
    TextField& field_;
};

} // namespace sonavel
