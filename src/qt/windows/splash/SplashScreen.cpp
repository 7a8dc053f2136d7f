#include "qt/windows/splash/SplashScreen.h"

#include "qt/kit/ElidedLabel.h"
#include "qt/kit/Fonts.h"
#include "qt/kit/Images.h"

#include <QGridLayout>
#include <QScreen>

namespace sonavel {

namespace {

constexpr int pictureSize = 64;
constexpr int usualLength = 44; // characters
constexpr double headlineSize = 1.6; // times the usual size of the font

} // namespace

SplashScreen::SplashScreen()
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint)
    , line_(new ElidedLabel(this))
{
    auto* picture = new QLabel(this);
    picture->setPixmap(programIcon().pixmap(QSize(pictureSize, pictureSize), devicePixelRatioF()));
    auto* name = new QLabel(qtTrId("WIN_SONAVEL"), this);
    name->setTextFormat(Qt::PlainText);
    QFont large = scaledFont(font(), headlineSize);
    large.setBold(true);
    name->setFont(large);

    auto* grid = new QGridLayout(this);
    const int gap = fontMetrics().height();
    grid->setContentsMargins(gap * 3 / 2, gap * 3 / 2, gap * 3 / 2, gap * 3 / 2);
    grid->setHorizontalSpacing(gap);
    grid->addWidget(picture, 0, 0, 2, 1);
    grid->addWidget(name, 0, 1, Qt::AlignBottom);
    grid->addWidget(line_, 1, 1, Qt::AlignTop);
    line_->setMinimumWidth(fontMetrics().averageCharWidth() * usualLength);
}

void SplashScreen::setWaitingFor(const QString& line)
{
    line_->setText(line);
    adjustSize();
    move(screen()->availableGeometry().center() - rect().center());
}

} // namespace sonavel
