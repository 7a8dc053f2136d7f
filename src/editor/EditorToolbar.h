// The toolbar of the station list window: five commands, distinguished by their tags.
#pragma once

#include "base/NonCopyable.h"

namespace sonavel {

class EditSheet;
class StationExport;
class StationImport;
class StationRemoval;
class ToolbarItem;
struct StationListControls;

class EditorToolbar : private NonCopyable {
public:
    EditorToolbar(EditSheet& editSheet, StationRemoval& stationRemoval, StationImport& stationImport,
        StationExport& stationExport, StationListControls& controls)
        : editSheet_(editSheet)
        , stationRemoval_(stationRemoval)
        , stationImport_(stationImport)
        , stationExport_(stationExport)
        , controls_(controls)
    {
    }

    /// Tag 0 adds, 1 edits, 2 removes, 3 imports, 4 exports; any other does nothing.
    void toolbar(const ToolbarItem& sender);

    /// Whether the item is to be enabled: editing needs one selected row, removing one or more, exporting a row.
    [[nodiscard]] bool validateToolbarItem(const ToolbarItem& item) const;

    /// Enables each item as it is to be.
    void validateVisibleItems();

private:
    EditSheet& editSheet_;
    StationRemoval& stationRemoval_;
    StationImport& stationImport_;
    StationExport& stationExport_;
    StationListControls& controls_;
};

} // namespace sonavel
