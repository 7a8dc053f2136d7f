#include "editor/StationImport.h"

#include "base/Numbers.h"
#include "model/StationList.h"
#include "model/StationListText.h"
#include "platform/Alerts.h"
#include "platform/FilePanels.h"
#include "platform/LocalizedStrings.h"
#include "prefs/PreferenceFields.h"
#include "storage/ListWriter.h"
#include "storage/StationDatabase.h"
#include "storage/StationListCodec.h"
#include "ui/Controls.h"

#include <algorithm>
#include <memory_resource>
#include <string>
#include <unordered_set>

namespace sonavel {

namespace {

/// Gives the stations of an import their names. Looks a name up in the same time however long the list is.
class ImportedNames {
public:
    /// Into an empty list all names go as they are, repeated ones too.
    ImportedNames(const StationRecords& list, std::string_view text)
        : isMerging_(!list.empty())
    {
        if (!isMerging_)
            return;
        names_.reserve(list.size() + static_cast<std::size_t>(std::count(text.begin(), text.end(), '\r')));
        for (const auto& station : list)
            names_.insert(station->radio().view());
    }

    /// `number` is put behind a name that is taken. The texts given have to outlive this object.
    Text nameFor(const Text& name, std::int64_t number)
    {
        if (!isMerging_ || names_.insert(name.view()).second)
            return name;
        hasDuplicates_ = true;
        Text numbered(name.string().append(" (").append(decimalText(number).view()).append(")"));
        names_.insert(numbered.view());
        return numbered;
    }

    [[nodiscard]] bool hasDuplicates() const { return hasDuplicates_; }

private:
    const bool isMerging_;
    bool hasDuplicates_ = false;
    std::pmr::monotonic_buffer_resource memory_; ///< one after the other, which the processor's caches like
    std::pmr::unordered_set<std::string_view> names_{&memory_};
};

} // namespace

void StationImport::importRadioListFromFile()
{
    const Text path = filePanels_.runModal(OpenPanel{listTextExtension});
    if (!path.isAbsent())
        importRadioListFromFileAtPath(path);
}

void StationImport::importRadioListFromFileAtPath(const Text& path)
{
    Text backup;
    if (stationList_.numberOfStations() > 0 && isToReplaceList()) {
        backup = stationDatabase_.keepListBeforeImport();
        if (backup.isAbsent())
            return controls_.labelListStatus.announce(localizedStrings_.localizedStringForKey("STATUS_LIST_NOT_KEPT"));
        listWriter_.apply(ListChange::replaced(*stationList_.listRadio(), {}));
    }
    const auto text = files_.contentsOfFile(path).and_then(plainListText);
    const auto outcome = text.map([this](const Text& list) { return appendStations(list); });
    listWriter_.follow(ListOperation::ImportEnded);
    announce(outcome, backup);
    if (outcome && outcome->hasDuplicates)
        notify("AS_DUPLICATED_DATA");
}

bool StationImport::isToReplaceList() const
{
    return isAnsweredYes(
        alerts_, localizedStrings_, localizedStrings_.localizedStringForKey("ERASE_ALL_PREVIOUS_DATA"));
}

/// What is shown follows the list line by line, but nobody sees it before the first notice or the end: it is brought
/// up to date there, as it stood before the line that was looked at last.
StationImport::Outcome StationImport::appendStations(const Text& text)
{
    const StationRecords& list = *stationList_.listRadio();
    if (list.empty())
        listWriter_.follow(ListOperation::ImportBegun); // rows of the former list must not pass their selection on
    ImportedNames names(list, text.view());
    const auto initialCount = static_cast<std::int64_t>(list.size());
    std::int64_t runningCount = initialCount;
    StationRecords imported;
    StationListReader reader(text.view());
    for (auto line = reader.next(); line;) {
        const auto following = reader.next();
        const bool isFull = runningCount >= preferences_.PREF_MAX_NUMBER_RADIO;
        if (isFull || !following)
            listWriter_.perform(ListChange::added(list, std::exchange(imported, {})), ListOperation::ImportShown);
        if (isFull) {
            notify("LIMIT_IMPORT_DATA");
            break;
        }
        if (line->isStation) {
            ++runningCount;
            imported.push_back(std::make_shared<KVStationWebRadio>(static_cast<std::uint64_t>(runningCount),
                names.nameFor(text.slice(line->name), runningCount), text.slice(line->link)));
        }
        line = following;
    }
    listWriter_.apply(ListChange::added(list, std::move(imported)));
    return {static_cast<std::size_t>(runningCount - initialCount), names.hasDuplicates()};
}

void StationImport::notify(std::string_view message) const
{
    const auto& strings = localizedStrings_;
    alerts_.runModal({strings.localizedStringForKey(message), {strings.localizedStringForKey("BUTTON_CONTINUE")}});
}

Text StationImport::statusOf(const FileResult<Outcome>& outcome) const
{
    const auto text = [this](std::string_view key) { return localizedStrings_.localizedStringForKey(key); };
    if (!outcome)
        return filledIn(text("STATUS_FILE_NOT_READ"), Text(outcome.error().message()));
    return outcome->imported == 0 ? text("STATUS_NOTHING_IMPORTED")
                                  : filledIn(text("STATUS_IMPORTED"), static_cast<long>(outcome->imported));
}

void StationImport::announce(const FileResult<Outcome>& outcome, const Text& backup)
{
    std::string status = statusOf(outcome).string();
    if (!backup.isAbsent()) {
        const Text name = backup.view().substr(backup.view().rfind('/') + 1);
        status.append(" ").append(filledIn(localizedStrings_.localizedStringForKey("STATUS_LIST_KEPT"), name).view());
    }
    controls_.labelListStatus.announce(status);
}

} // namespace sonavel
