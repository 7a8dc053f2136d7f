// The controller on the platform in memory, with connected outlets: the ground of most tests.
#pragma once

#include "app/Actions.h"
#include "app/Gate.h"
#include "app/WinSonavelController.h"
#include "model/KVStationWebRadio.h"
#include "storage/StationListCodec.h"
#include "support/MemoryPlatform.h"
#include "ui/Outlets.h"

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
    Outlets outlets;
    WinSonavelController controller{platform.ports(), platform.configuration, outlets};
    Gate gate;
    Actions actions{controller, outlets, gate};

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
        for (Window* window : {&outlets.winSonavel, &outlets.winWebRadioListEdit, &outlets.winEditData,
                 &outlets.winPreferences, &outlets.winUpdateNotification, &outlets.winAbout})
            window->connect({});
        for (PopUpButton* popUp : {&outlets.popupbuttonRadioList, &outlets.popupDefaultButtonListRadio})
            popUp->connect({});
        for (Button* button : {&outlets.buttonPlayPause, &outlets.buttonStop, &outlets.buttonMute,
                 &outlets.buttonEditRadioList, &outlets.buttonAction, &outlets.buttonCancel,
                 &outlets.checkBoxDefaultAutoPlayAtStartApp, &outlets.checkBoxDefaultAutoPlay})
            button->connect({});
        outlets.buttonPlayPause.setImage("play.png");
        outlets.buttonMute.setTitle("Mute");
        for (Slider* slider : {&outlets.sliderVolume, &outlets.sliderDefaultVolume})
            slider->connect({});
        outlets.sliderVolume.setMaxValue(1.0);
        outlets.tableViewListRadio.connect({});
        for (TextField* field : {&outlets.textFieldRadioName, &outlets.textFieldRadioLink, &outlets.labelListStatus,
                 &outlets.labelUpdateNotification})
            field->connect({});
        connectItems();
    }

    /// With their tags.
    void connectItems()
    {
        int tag = 0;
        for (ToolbarItem* item :
            {&outlets.radioAdd, &outlets.radioEdit, &outlets.radioRemove, &outlets.radioImport, &outlets.radioExport})
            item->connect({tag++, false});
        for (const TaggedItem& row : taggedItems())
            (outlets.*row.item).connect({{}, row.tag, false});
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

    /// The present list as text.
    [[nodiscard]] std::string list() const
    {
        std::string text;
        for (const auto& station : *controller.stationList.listRadio)
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
