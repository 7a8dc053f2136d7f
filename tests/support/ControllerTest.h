// The controller on the platform in memory, with connected controls: the ground of most tests.
#pragma once

#include "app/WinSonavelController.h"
#include "model/KVStationWebRadio.h"
#include "storage/StationListCodec.h"
#include "support/MemoryPlatform.h"
#include "ui/Controls.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>

namespace sonavel {

class ControllerTest : public testing::Test {
protected:
    static constexpr const char* onlineListAddress =
        "http://data.example/app_data_files/testget.php?file=20161001000000_lr.rdb";

    MemoryPlatform platform;
    Controls controls;
    WinSonavelController controller{platform.ports(), platform.configuration, controls};
    Actions& actions = controller.actions;
    PopUpButton& popUp = controls.main.popupbuttonRadioList;
    Window& listWindow = controls.stationList.winWebRadioListEdit;
    TableView& table = controls.stationList.tableViewListRadio;

    /// Both phases, and the loop's next turn.
    void start()
    {
        controller.init();
        connectOutlets();
        controller.awakeFromNib();
        actions.validateItems();
        platform.runLoop.turn();
    }

    void startWithStations(const Text& listText)
    {
        putDatabase(listText);
        start();
    }

    void connectOutlets()
    {
        for (Window* window : {&controls.main.winSonavel, &controls.stationList.winWebRadioListEdit,
                 &controls.editSheet.winEditData, &controls.preferences.winPreferences,
                 &controls.updateNotice.winUpdateNotification, &controls.about.winAbout})
            window->connect({});
        for (PopUpButton* popUp :
            {&controls.main.popupbuttonRadioList, &controls.preferences.popupDefaultButtonListRadio})
            popUp->connect({});
        for (Button* button :
            {&controls.main.buttonPlayPause, &controls.main.buttonStop, &controls.main.buttonMute,
                &controls.main.buttonEditRadioList, &controls.editSheet.buttonAction, &controls.editSheet.buttonCancel,
                &controls.preferences.checkBoxDefaultAutoPlayAtStartApp, &controls.preferences.checkBoxDefaultAutoPlay})
            button->connect({});
        controls.main.buttonPlayPause.setImage("play.png");
        controls.main.buttonMute.setTitle("Mute");
        for (Slider* slider : {&controls.main.sliderVolume, &controls.preferences.sliderDefaultVolume})
            slider->connect({});
        controls.main.sliderVolume.setMaxValue(1.0);
        controls.stationList.tableViewListRadio.connect({});
        for (TextField* field : {&controls.editSheet.textFieldRadioName, &controls.editSheet.textFieldRadioLink,
                 &controls.stationList.labelListStatus, &controls.updateNotice.labelUpdateNotification})
            field->connect({});
        connectItems();
    }

    /// With their tags.
    void connectItems()
    {
        int tag = 0;
        for (ToolbarItem* item :
            {&controls.stationList.radioAdd, &controls.stationList.radioEdit, &controls.stationList.radioRemove,
                &controls.stationList.radioImport, &controls.stationList.radioExport})
            item->connect({tag++, false});
        for (const TaggedItem& row : taggedItems())
            (controls.menu.*row.item).connect({{}, row.tag, false});
    }

    void putDatabase(const Text& listText)
    {
        platform.files.files[platform.files.inPreferences("radiolist.rdb")] =
            encodeStationList(listText.string()).string();
    }

    /// The plain list text on disk; absent when there is none that can be decrypted.
    [[nodiscard]] Text database() const
    {
        const auto found = platform.files.files.find(platform.files.inPreferences("radiolist.rdb"));
        return found == platform.files.files.end() ? Text() : decodeStationList(found->second);
    }

    void publishOnline(const Text& listText)
    {
        platform.httpClient.answers[onlineListAddress] = encodeStationList(listText.string()).string();
    }

    /// Keys that are not given are missing, but for a check for a newer version earlier on the same day.
    void putPreferences(PreferenceDomain domain)
    {
        domain.try_emplace("lastUpdateAppCheck", "2016-10-05 06:00:00 +0000");
        platform.preferenceDomains.stored["Mertzan-Software.Sonavel.plist"] = std::move(domain);
    }

    [[nodiscard]] const PreferenceDomain& storedPreferences() const
    {
        return platform.preferenceDomains.stored.at("Mertzan-Software.Sonavel.plist");
    }

    /// Drops the stations behind the first `count`, as if what shows the list were not brought up to date.
    void keepStations(std::size_t count)
    {
        StationRecords kept;
        for (std::size_t position = 0; position < count; ++position)
            kept.push_back(controller.stationList.listRadio()->at(position));
        controller.stationList.setListRadio(kept);
    }

    /// The present list as text.
    [[nodiscard]] std::string list() const
    {
        std::string text;
        for (const auto& station : *controller.stationList.listRadio())
            text += station->radio().string() + ";" + station->link().string() + "\r";
        return text;
    }

    /// The status with which `action` ended the process; nothing when it returned.
    template <class Action> std::optional<int> statusOfEnd(Action&& action)
    {
        try {
            action();
            return std::nullopt;
        } catch (const ThrowingProcess::Ended& ended) {
            return ended.status;
        }
    }
};

} // namespace sonavel
