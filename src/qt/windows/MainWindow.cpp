#include "qt/windows/MainWindow.h"

#include "qt/kit/Images.h"
#include "qt/kit/Palettes.h"
#include "qt/windows/ProgramMenus.h"
#include "ui_MainWindow.h"

#include <QEvent>

namespace sonavel {

namespace {

constexpr double headlineSize = 1.25; // times the usual size of the font
constexpr int usualWidth = 68; // characters

QFont scaled(QFont font, double factor)
{
    font.setPointSizeF(font.pointSizeF() * factor);
    return font;
}

} // namespace

MainWindow::MainWindow(ProgramMenus* menus)
    : description_(std::make_unique<Ui::MainWindow>())
{
    description_->setupUi(this);
    setUpProportions();
    if (menus != nullptr)
        menus->addTo(*this);
    setUpSize();
    setUpColors();
    showNowPlaying(qtTrId("NOW_PLAYING_NOTHING"), Emphasis::Faded);
}

MainWindow::~MainWindow() = default;

/// All distances follow the font, so that the window keeps its looks at every size of text.
void MainWindow::setUpProportions()
{
    const int line = fontMetrics().height();
    description_->rows->setContentsMargins(line, line, line, line / 3);
    description_->rows->setSpacing(line * 3 / 4);
    description_->controls->setHorizontalSpacing(line * 3 / 4);
    description_->controls->setVerticalSpacing(line * 5 / 8);
    description_->buttons->setSpacing(line / 2);
    description_->displayRows->setContentsMargins(line * 3 / 4, line * 5 / 8, line * 3 / 4, line * 5 / 8);

    description_->labelNowPlaying->setFont(scaled(font(), headlineSize));
    description_->buttonPlayPause->reserveRoomFor(
        {qtTrId("BUTTON_PLAY"), qtTrId("BUTTON_PAUSE")}, PrimaryButton::Picture::BesideWords);
    for (QPushButton* button : {static_cast<QPushButton*>(description_->buttonPlayPause), description_->buttonStop,
             description_->buttonMute, description_->buttonEditRadioList})
        button->setMinimumHeight(line * 2);
    description_->popupbuttonRadioList->setMinimumHeight(line * 2 - line / 4);
}

void MainWindow::setUpSize()
{
    const QSize smallest = minimumSizeHint();
    setMinimumSize(smallest);
    setMaximumHeight(smallest.height());
    resize(qMax(smallest.width(), fontMetrics().averageCharWidth() * usualWidth), smallest.height());
}

void MainWindow::setUpColors()
{
    description_->displayPanel->setBackgroundRole(QPalette::Base);
    description_->labelNowPlaying->setForegroundRole(
        emphasis_ == Emphasis::Faded ? QPalette::PlaceholderText : QPalette::Text);
    const bool isFailure = emphasis_ == Emphasis::Failure;
    description_->labelNowPlaying->setMark(
        isFailure ? imageNamed("warning.png", readableRed(), readableRed()) : QIcon());
}

void MainWindow::showNowPlaying(const QString& text, Emphasis emphasis)
{
    description_->labelNowPlaying->setText(text);
    emphasis_ = emphasis;
    setUpColors();
}

void MainWindow::showNotice(const QString& text)
{
    description_->labelNotice->tell(text, StatusLine::Tone::Failure);
}

void MainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        setUpColors();
}

} // namespace sonavel
