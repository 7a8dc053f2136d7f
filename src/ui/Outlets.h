// Every control of the program, by its outlet name.
#pragma once

#include "ui/Button.h"
#include "ui/PopUpButton.h"
#include "ui/Slider.h"
#include "ui/TableView.h"
#include "ui/TextField.h"
#include "ui/Window.h"

namespace sonavel {

/// The controls exist from the start; a toolkit connects those whose windows it has, between the two start-up phases.
struct Outlets {
    Window winSonavel;
    PopUpButton popupbuttonRadioList;
    Button buttonPlayPause;
    Button buttonStop;
    Button buttonMute;
    Button buttonEditRadioList;
    Slider sliderVolume;
    TextField labelVolume;

    Window winWebRadioListEdit;
    TableView tableViewListRadio;

    Button checkBoxDefaultAutoPlayAtStartApp;
    Button checkBoxDefaultAutoPlay;
    PopUpButton popupDefaultButtonListRadio;
    Slider sliderDefaultVolume;

    Window winUpdateNotification;
};

} // namespace sonavel
