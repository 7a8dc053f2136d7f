#include "qt/windows/main/MainWindow.h"

#include "qt/kit/Fonts.h"
#include "qt/kit/Images.h"
#include "qt/kit/Palettes.h"
#include "qt/windows/ProgramMenus.h"
#include "ui_MainWindow.h"

#include <QEvent>
#include <QTimer>

#include <utility>

namespace sonavel {

namespace {

constexpr double headlineSize = 1.25; // times the usual size of the font
constexpr double centeredHeadlineSize = 1.5; // from here on
constexpr double maxHeadlineSize = 4.5;
constexpr int linesPerHeadlineSize = 8; // added to the window's height enlarge the headline by once the usual size
constexpr int usualWidth = 68; // characters
constexpr int widestContent = 80; // lines of text

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
    keepMargins();
    description_->rows->setSpacing(0);
    for (QLayout* lower : {static_cast<QLayout*>(description_->controls), static_cast<QLayout*>(description_->buttons)})
        description_->rows->insertSpacing(description_->rows->indexOf(lower), line * 3 / 4);
    // The notice stands in what is the margin without it.
    description_->labelNotice->setFixedHeight(description_->rows->contentsMargins().top());
    description_->controls->setHorizontalSpacing(line * 3 / 4);
    description_->controls->setVerticalSpacing(line * 5 / 8);
    description_->buttons->setSpacing(line / 2);
    description_->volume->setSpacing(line / 2);
    description_->displayRows->setContentsMargins(line * 3 / 4, line * 5 / 8, line * 3 / 4, line * 5 / 8);

    description_->labelNowPlaying->setFont(scaledFont(font(), headlineSize));
    description_->labelNowPlaying->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
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
    resize(qMax(smallest.width(), fontMetrics().averageCharWidth() * usualWidth), smallest.height());
}

/// A higher window shows the headline larger, and on more lines; the content of a wide one stays together in its
/// middle.
void MainWindow::resizeEvent(QResizeEvent* event)
{
    const double added = double(height() - minimumHeight()) / (fontMetrics().height() * linesPerHeadlineSize);
    const double size = qBound(headlineSize, headlineSize + added, maxHeadlineSize);
    description_->labelNowPlaying->setFont(scaledFont(font(), size));
    description_->labelNowPlaying->setAlignment(
        size > centeredHeadlineSize ? Qt::AlignCenter : Qt::AlignLeading | Qt::AlignVCenter);
    keepMargins();
    QMainWindow::resizeEvent(event);
}

void MainWindow::keepMargins()
{
    const int line = fontMetrics().height();
    const int aroundContent = line * 5 / 4;
    const int besideContent = qMax(aroundContent, (width() - line * widestContent) / 2);
    description_->rows->setContentsMargins(besideContent, aroundContent, besideContent, 0);
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
    description_->labelNotice->showFailure(text);
}

void MainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        setUpColors();
}

void MainWindow::paintEvent(QPaintEvent* event)
{
    QMainWindow::paintEvent(event);
    // A timer, unlike a posted event, lets the picture reach the screen first.
    if (afterFirstPaint_)
        QTimer::singleShot(0, this, std::exchange(afterFirstPaint_, {}));
}

} // namespace sonavel
