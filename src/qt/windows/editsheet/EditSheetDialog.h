// The sheet in which the user types a station's name and address.
#pragma once

#include "qt/windows/ProgramDialog.h"

namespace sonavel {

class EditSheetDialog : public ProgramDialog {
public:
    explicit EditSheetDialog(QWidget& editor);
};

} // namespace sonavel
