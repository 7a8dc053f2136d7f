// What a table keeps of its rows and their selection.
#include "ui/TableView.h"

#include <gtest/gtest.h>

namespace sonavel {
namespace {

class TableViewTest : public testing::Test, public TableViewDataSource {
protected:
    TableViewTest()
    {
        table.connect({}, [this](const TableViewState&) { ++renderings; });
        table.setDataSource(this);
        table.setAllowsMultipleSelection(true);
        table.reloadData();
        renderings = 0;
    }

    [[nodiscard]] long numberOfRowsInTableView(const TableView&) const override { return rows; }
    [[nodiscard]] Text tableView(const TableView&, std::string_view column, long row) const override
    {
        return std::string(column) + std::to_string(row);
    }
    void tableView(const TableView&, const Text&, std::string_view, long) override { }

    TableView table;
    long rows = 10;
    int renderings = 0;
};

TEST_F(TableViewTest, TheRowSelectedLastIsTheOneTouchedLastThatIsStillSelected)
{
    table.selectedByUser({2}, 2);
    table.selectedByUser({2, 7}, 7);
    table.selectedByUser({2, 5, 7}, 5);
    EXPECT_EQ(table.selectedRow(), 5);
    table.selectedByUser({2, 7}, 5);
    EXPECT_EQ(table.selectedRow(), 7);
    table.selectedByUser({2}, 7);
    EXPECT_EQ(table.selectedRow(), 2);
    table.selectedByUser({}, 2);
    EXPECT_EQ(table.selectedRow(), -1);
    EXPECT_EQ(renderings, 0) << "what the user selected is shown already";
}

TEST_F(TableViewTest, AReloadIsAlwaysShownAndKeepsOfTheSelectionWhatStillExists)
{
    table.selectedByUser({1, 8}, 8);
    table.reloadData();
    EXPECT_EQ(renderings, 1);
    EXPECT_EQ(table.selectedRow(), 8);
    rows = 4;
    table.reloadData();
    EXPECT_EQ(table.selectedRowIndexes(), IndexSet{1});
    EXPECT_EQ(table.selectedRow(), 1);
    rows = 0;
    table.reloadData();
    EXPECT_EQ(table.selectedRow(), -1);
    rows = 10;
    table.reloadData();
    EXPECT_EQ(table.numberOfSelectedRows(), 0) << "a row that comes back is not selected";
}

TEST_F(TableViewTest, RowsThatAreGoneAreShownUntilTheReloadAndCountAsNone)
{
    table.selectedByUser({1}, 1);
    table.selectedByUser({1, 3, 4}, 4);
    table.selectedByUser({1, 3, 4, 8}, 8);
    const struct {
        long rows;
        IndexSet selected;
        long latest;
    } cases[] = {
        {9, {1, 3, 4, 8}, 8}, {8, {1, 3, 4}, 4}, {4, {1, 3}, 3}, {3, {1}, 1}, {1, {}, -1}, {20, {1, 3, 4, 8}, 8}};
    for (const auto& [present, selected, latest] : cases) {
        rows = present;
        EXPECT_EQ(table.numberOfRows(), std::min(present, 10L));
        EXPECT_EQ(table.selectedRowIndexes(), selected) << present;
        EXPECT_EQ(table.selectedRow(), latest) << present;
        EXPECT_EQ(table.state().numberOfRows, 10U) << "shown";
    }
    EXPECT_EQ(renderings, 0);
}

TEST_F(TableViewTest, TheProgramSelectsOnlyRowsThatAreThere)
{
    table.selectRowIndexes({3, 12}, TableView::Extending::No);
    EXPECT_EQ(table.selectedRowIndexes(), IndexSet{3});
    EXPECT_EQ(table.selectedRow(), 3);
    table.selectRowIndexes({9}, TableView::Extending::Yes);
    EXPECT_EQ(table.numberOfSelectedRows(), 2);
    table.setAllowsMultipleSelection(false);
    EXPECT_EQ(table.selectedRowIndexes(), IndexSet{9});
}

} // namespace
} // namespace sonavel
