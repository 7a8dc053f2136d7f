// Measures what the user does to a list of 100,000 stations: imports, an export, a station added, all removed.
// Questions are answered at once, and files are kept in memory.

#include "Ratio.h"
#include "support/ControllerTest.h"

#include <malloc.h>

namespace sonavel {
namespace {

constexpr std::size_t stationCount = 100'000;
constexpr const char* importedFile = "/home/listener/import.csv";
constexpr const char* exportedFile = "/home/listener/Library/Preferences/export.csv";

std::string line(std::size_t number)
{
    std::string text = "Radio Example ";
    text += std::to_string(number) + ";http://stream" + std::to_string(number % 90) + ".example.org:8000/station/";
    return text + std::to_string(number) + "\r";
}

std::string linesFrom(std::size_t first, std::size_t count, std::size_t step = 1)
{
    std::string text;
    for (std::size_t number = 0; number < count; ++number)
        text += line(first + number * step);
    return text;
}

/// The whole core with a list.
class Program : public ControllerTest {
public:
    explicit Program(std::size_t stations)
    {
        putPreferences({{"enableMultipleSelection", "YES"}});
        startWithStations(linesFrom(0, stations));
        platform.files.log.reserve(100);
    }

    double secondsOfImport(std::size_t lines)
    {
        // Every second name is in the list already.
        platform.files.files[importedFile] =
            linesFrom(0, lines / 2, 2) + linesFrom(stationCount * 2, lines - lines / 2);
        platform.filePanels.choice = importedFile;
        platform.alerts.expect("<ERASE_ALL_PREVIOUS_DATA>", secondButtonAnswer);
        platform.alerts.expect("<AS_DUPLICATED_DATA>", firstButtonAnswer);
        return secondsOf([&] { return press(controls.stationList.radioImport); });
    }

    double secondsOfExport()
    {
        platform.filePanels.choice = exportedFile;
        return secondsOf([&] { return press(controls.stationList.radioExport); });
    }

    double secondsOfAdding()
    {
        controls.stationList.radioAdd.pressedByUser();
        controls.editSheet.textFieldRadioName.typedByUser("Radio Example 5x");
        controls.editSheet.textFieldRadioLink.typedByUser("http://added.example.org/");
        controls.editSheet.buttonAction.setEnabled(true);
        return secondsOf([&] {
            controls.editSheet.buttonAction.pressedByUser();
            return controller.stationList.numberOfStations();
        });
    }

    double secondsOfRemovingAll()
    {
        platform.alerts.expect("<REMOVE_ALL_RADIO_SELECTED>", firstButtonAnswer);
        IndexSet all;
        all.insert({0, stationCount});
        return secondsOf([&] {
            controls.stationList.tableViewListRadio.selectedByUser(all, 0);
            return press(controls.stationList.radioRemove);
        });
    }

private:
    void TestBody() override { }

    std::size_t press(ToolbarItem& item)
    {
        item.pressedByUser();
        return controller.stationList.numberOfStations();
    }
};

/// Each turn begins with the heap of a fresh process.
void measure(benchmark::State& state, double (Program::*work)())
{
    std::vector<double> times;
    for ([[maybe_unused]] auto turn : state) {
        malloc_trim(0);
        Program program(stationCount);
        times.push_back((program.*work)());
        state.SetIterationTime(times.back());
    }
    state.counters["median_ms"] = medianOf(times) * 1000;
}

void importing(benchmark::State& state)
{
    std::vector<double> halfTimes;
    std::vector<double> wholeTimes;
    const auto secondsOfImport = [](std::size_t count) {
        malloc_trim(0);
        return Program(count).secondsOfImport(count);
    };
    for ([[maybe_unused]] auto turn : state) {
        halfTimes.push_back(secondsOfImport(stationCount / 2));
        wholeTimes.push_back(secondsOfImport(stationCount));
        state.SetIterationTime(wholeTimes.back());
    }
    reportRatio(state, halfTimes, wholeTimes);
}

void exporting(benchmark::State& state)
{
    measure(state, &Program::secondsOfExport);
}

void confirmingTheSheet(benchmark::State& state)
{
    measure(state, &Program::secondsOfAdding);
}

void removingAll(benchmark::State& state)
{
    measure(state, &Program::secondsOfRemovingAll);
}

BENCHMARK(importing)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(21);
BENCHMARK(exporting)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(21);
BENCHMARK(confirmingTheSheet)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(21);
BENCHMARK(removingAll)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(21);

} // namespace
} // namespace sonavel

BENCHMARK_MAIN();
