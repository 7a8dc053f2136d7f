// The window of the station list: its table, its tools, its Find field, and its sheet.
#pragma once

#include "base/Text.h"
#include "qt/windows/ProgramDialog.h"
#include "qt/windows/stationlist/StationFinder.h"

#include <QMainWindow>

#include <functional>
#include <memory>

namespace Ui {
class StationListWindow;
}

namespace sonavel {

class FindField;

/// Built from its description, whose object names are the names of the outlets. Shown by the program, not by itself.
class StationListWindow : public QMainWindow {
public:
    /// `table` is what the window's table will be bound to, for the search through it.
    explicit StationListWindow(const TableView& table);
    ~StationListWindow() override;

    /// What to do with a list of stations that was dropped on the window; `path` is absolute.
    void whenFileDropped(std::function<void(const Text& path)> action) { whenFileDropped_ = std::move(action); }

    /// A failure to tell, in one line that moves nothing and goes away by itself.
    void showNotice(const QString& text);

protected:
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void setUpProportions();
    void setUpIcons();
    void setUpFinding();
    void setUpKeys();

    enum class From { Selection, BesideSelection };
    void find(From from, StationFinder::Direction direction);

    std::unique_ptr<Ui::StationListWindow> description_;
    StationFinder finder_;
    const TableView& table_;
    FindField* findField_;
    std::function<void(const Text& path)> whenFileDropped_;
};

/// The sheet of that window, in which the user types a station's name and address.
[[nodiscard]] std::unique_ptr<ProgramDialog> editSheetOf(QWidget& window);

} // namespace sonavel
