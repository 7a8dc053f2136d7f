// Stations for a table to show and to edit.
#pragma once

#include "ui/TableView.h"

#include <string>
#include <vector>

namespace sonavel {

class StationRows final : public TableViewDataSource {
public:
    void fill(long count)
    {
        names.clear();
        for (long row = 0; row < count; ++row)
            names.emplace_back("Name " + std::to_string(row));
    }

    [[nodiscard]] long numberOfRowsInTableView(const TableView&) const override
    {
        return static_cast<long>(names.size());
    }
    [[nodiscard]] Text tableView(const TableView&, std::string_view objectValueForTableColumn, long row) const override
    {
        ++reads;
        if (objectValueForTableColumn == "radio")
            return names.at(static_cast<std::size_t>(row));
        return {"http://" + userInformation + "host/" + std::to_string(row)};
    }
    void tableView(const TableView&, const Text& setObjectValue, std::string_view, long row) override
    {
        ++edits;
        names.at(static_cast<std::size_t>(row)) = setObjectValue;
    }

    std::vector<Text> names;
    std::string userInformation;
    int edits = 0;
    mutable int reads = 0;
};

} // namespace sonavel
