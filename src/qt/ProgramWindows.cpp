#include "qt/ProgramWindows.h"

#include "app/Actions.h"
#include "platform/Bundle.h"
#include "qt/binders/OutletConnector.h"
#include "qt/kit/Images.h"
#include "qt/kit/TextConversion.h"
#include "qt/windows/ProgramMenus.h"
#include "qt/windows/WindowStateStore.h"
#include "qt/windows/main/MainWindow.h"
#include "qt/windows/stationlist/StationListWindow.h"
#include "ui_AboutWindow.h"
#include "ui_PreferencesSheet.h"
#include "ui_UpdateNotice.h"

namespace sonavel {

namespace {

constexpr int iconSize = 64; // pixels of the layout
constexpr int noticeWidth = 22; // times the height of a line: wide enough for the title too

} // namespace

ProgramWindows::ProgramWindows(
    Controls& controls, Actions& actions, ImportFile importFile, const WindowStateStore& windowState)
    : controls_(controls)
    , actions_(actions)
    , importFile_(std::move(importFile))
    , windowState_(windowState)
    , menus_(std::make_unique<ProgramMenus>([this] { actions_.validateItems(); }))
    , mainWindow_(std::make_unique<MainWindow>(menus_.get()))
{
    windowState_.restore(*mainWindow_);
}

ProgramWindows::~ProgramWindows() = default;

void ProgramWindows::connectMainWindow()
{
    connectMenus(controls_.menu, *menus_);
    connectInitialState(controls_);
    connectWindow(controls_.main, *mainWindow_);
    isMainWindowConnected_ = true;
}

void ProgramWindows::buildOtherWindows()
{
    buildStationListWindow();
    buildPreferences();
    buildAboutWindow();
    buildUpdateNotice();
}

void ProgramWindows::buildStationListWindow()
{
    stationListWindow_ = std::make_unique<StationListWindow>(controls_.stationList.tableViewListRadio);
    StationListWindow& window = *stationListWindow_;
    menus_->addTo(window);
    windowState_.restore(window);
    window.setAttribute(Qt::WA_ShowWithoutActivating);
    connectWindow(controls_.stationList, window);
    window.setAttribute(Qt::WA_ShowWithoutActivating, false);
    if (window.isVisible() && mainWindow_->isActiveWindow())
        mainWindow_->raise(); // it keeps the keyboard, and is not to be covered
    window.whenFileDropped([this](const Text& path) {
        actions_.perform(stationListWindow_.get(), ListUse::Exclusive, [this, path] { importFile_(path); });
    });
    connectWindow(controls_.editSheet, *editSheetOf(window).release());
}

void ProgramWindows::buildPreferences()
{
    ProgramDialog* sheet = ProgramDialog::from<Ui::PreferencesSheet>(mainWindow_.get()).release();
    menus_->addTo(*sheet);
    connectWindow(controls_.preferences, *sheet);
}

void ProgramWindows::buildAboutWindow()
{
    ProgramDialog& window = *dialogs_.emplace_back(ProgramDialog::from<Ui::AboutWindow>());
    const auto label = [&window](const char* name) { return window.findChild<QLabel*>(QString::fromLatin1(name)); };
    label("imageAppIcon")->setPixmap(programIcon().pixmap(iconSize));
    label("labelAppName")->setText(QStringLiteral("Sonavel"));
    label("labelAppVersion")->setText(filledIn("ABOUT_VERSION", toQString(programBundle().shortVersion)));
    connectWindow(controls_.about, window);
}

void ProgramWindows::buildUpdateNotice()
{
    ProgramDialog& window = *dialogs_.emplace_back(ProgramDialog::from<Ui::UpdateNotice>());
    auto* label = window.findChild<QLabel*>(QStringLiteral("labelUpdateNotification"));
    label->setMinimumWidth(window.fontMetrics().height() * noticeWidth);
    connectWindow(controls_.updateNotice, window);
}

void ProgramWindows::showNotice(const QString& text)
{
    if (stationListWindow_ && stationListWindow_->isVisible())
        stationListWindow_->showNotice(text);
    else
        mainWindow_->showNotice(text);
}

void ProgramWindows::savePlaces() const
{
    if (isMainWindowConnected_)
        windowState_.save(*mainWindow_);
    if (stationListWindow_)
        windowState_.save(*stationListWindow_);
}

} // namespace sonavel
