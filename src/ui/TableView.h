// A table of rows.
#pragma once

#include "ui/Rendered.h"

namespace sonavel {

struct TableViewState {
    bool allowsMultipleSelection = false;

    friend bool operator==(const TableViewState&, const TableViewState&) = default;
};

class TableView : public Rendered<TableViewState> {
public:
    void setAllowsMultipleSelection(bool allows)
    {
        update([&](TableViewState& state) { state.allowsMultipleSelection = allows; });
    }
};

} // namespace sonavel
