// Measures the station list window with 100,000 stations, drawn without a display: repainting the table at places far
// apart, a key typed in Find, all rows selected, all rows shown anew.

#include "Ratio.h"
#include "qt/binders/OutletConnector.h"
#include "qt/kit/ApplicationStyle.h"
#include "qt/windows/stationlist/FindField.h"
#include "qt/windows/stationlist/StationListWindow.h"
#include "qt/windows/stationlist/StationTable.h"

#include <QApplication>
#include <QScrollBar>

namespace sonavel {
namespace {

constexpr long stationCount = 100'000;
constexpr int placeCount = 300;

class Stations final : public TableViewDataSource {
public:
    explicit Stations(const char* word)
    {
        for (long number = 0; number < stationCount; ++number) {
            const std::string digits = std::to_string(number);
            names_.emplace_back(word + (" Station " + digits));
            links_.emplace_back("http://stream" + digits + ".example.org:8000/station/" + digits + ".mp3");
        }
    }

    [[nodiscard]] long numberOfRowsInTableView(const TableView&) const override { return stationCount; }
    [[nodiscard]] Text tableView(const TableView&, std::string_view objectValueForTableColumn, long row) const override
    {
        return (objectValueForTableColumn == "radio" ? names_ : links_).at(static_cast<std::size_t>(row));
    }
    void tableView(const TableView&, const Text&, std::string_view, long) override { }

private:
    std::vector<Text> names_;
    std::vector<Text> links_;
};

struct Scene {
    explicit Scene(const char* word)
        : stations(word)
    {
        controls.stationList.tableViewListRadio.setDataSource(&stations);
        connectWindow(controls.stationList, window);
        controls.stationList.tableViewListRadio.setAllowsMultipleSelection(true);
        controls.stationList.tableViewListRadio.reloadData();
        window.resize(1200, 900);
        window.show();
        QApplication::processEvents();
    }

    StationTable& table() { return *window.findChild<StationTable*>(); }
    TableView& control() { return controls.stationList.tableViewListRadio; }

    Stations stations;
    Controls controls;
    StationListWindow window{controls.stationList.tableViewListRadio};
};

double worst(const std::vector<double>& times)
{
    return *std::max_element(times.begin(), times.end());
}

void report(benchmark::State& state, const std::vector<double>& times)
{
    state.counters["median_ms"] = medianOf(times) * 1000;
    state.counters["worst_ms"] = worst(times) * 1000;
}

void repainting(benchmark::State& state)
{
    Scene scene("Österreich");
    QWidget& viewport = *scene.table().viewport();
    std::vector<double> times;
    for ([[maybe_unused]] auto turn : state) {
        const auto place = static_cast<int>(times.size()) * 7919 % placeCount;
        QScrollBar& bar = *scene.table().verticalScrollBar();
        times.push_back(secondsOf([&] {
            bar.setValue(static_cast<int>(static_cast<double>(bar.maximum()) * place / (placeCount - 1)));
            viewport.repaint();
            return 0;
        }));
        state.SetIterationTime(times.back());
    }
    report(state, times);
}

/// The worst that can be typed: something that no station has.
void typingInFind(benchmark::State& state, const char* word)
{
    Scene scene(word);
    auto& field = *scene.window.findChild<FindField*>();
    std::vector<double> times;
    for ([[maybe_unused]] auto turn : state) {
        field.setText(QString());
        times.push_back(secondsOf([&] {
            field.setText(QStringLiteral("xé"));
            return 0;
        }));
        state.SetIterationTime(times.back());
    }
    report(state, times);
}

void selectingAll(benchmark::State& state)
{
    Scene scene("Radio");
    std::vector<double> times;
    for ([[maybe_unused]] auto turn : state) {
        scene.table().clearSelection();
        times.push_back(secondsOf([&] {
            scene.table().selectAll();
            return scene.control().numberOfSelectedRows();
        }));
        state.SetIterationTime(times.back());
        if (scene.control().numberOfSelectedRows() != stationCount)
            state.SkipWithError("not all rows are selected");
    }
    report(state, times);
}

/// With every second row selected, the most ranges that there can be.
void reloading(benchmark::State& state)
{
    Scene scene("Radio");
    IndexSet everySecond;
    for (std::size_t row = 0; row < stationCount; row += 2)
        everySecond.insert({row, row + 1});
    scene.control().selectRowIndexes(state.range(0) == 0 ? IndexSet() : everySecond, TableView::Extending::No);
    std::vector<double> times;
    for ([[maybe_unused]] auto turn : state) {
        times.push_back(secondsOf([&] {
            scene.control().reloadData();
            scene.table().viewport()->repaint();
            return 0;
        }));
        state.SetIterationTime(times.back());
    }
    report(state, times);
}

constexpr auto milliseconds = benchmark::kMillisecond;
BENCHMARK(repainting)->UseManualTime()->Unit(milliseconds)->Iterations(placeCount);
BENCHMARK_CAPTURE(typingInFind, plain_names, "Radio")->UseManualTime()->Unit(milliseconds)->Iterations(21);
BENCHMARK_CAPTURE(typingInFind, other_letters, "Ежедневное радио Österreich")
    ->UseManualTime()
    ->Unit(milliseconds)
    ->Iterations(21);
BENCHMARK(selectingAll)->UseManualTime()->Unit(milliseconds)->Iterations(21);
BENCHMARK(reloading)->Arg(0)->Arg(1)->UseManualTime()->Unit(milliseconds)->Iterations(11);

} // namespace
} // namespace sonavel

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setStyle(new sonavel::ApplicationStyle(QStringLiteral("fusion")));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
