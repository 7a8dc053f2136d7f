#include "qt/windows/stationlist/FindField.h"

#include "qt/kit/Images.h"
#include "qt/kit/Palettes.h"

#include <QAction>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QStyle>

namespace sonavel {

namespace {

constexpr qreal strengthOfTint = 0.18;

} // namespace

FindField::FindField(QWidget* parent)
    : QLineEdit(parent)
    , searchIcon_(addAction(QIcon(), LeadingPosition))
{
    searchIcon_->setEnabled(false);
    setPlaceholderText(qtTrId("FIND_PLACEHOLDER"));
    setAccessibleName(qtTrId("FIND"));
    setClearButtonEnabled(true);
    setAcceptDrops(false); // files are dropped on the window
    takeColors();
    takeDirection();
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (requests_.search)
            requests_.search();
    });
}

QSize FindField::sizeHint() const
{
    const int aroundText = fontMetrics().height() * 4;
    return {fontMetrics().horizontalAdvance(placeholderText()) + aroundText, QLineEdit::sizeHint().height()};
}

void FindField::showOutcome(Outcome outcome)
{
    if (outcome == outcome_)
        return;
    outcome_ = outcome;
    takeColors();
}

void FindField::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        (event->modifiers() & Qt::ShiftModifier ? requests_.previous : requests_.next)();
        break;
    case Qt::Key_Escape:
        clear();
        requests_.leave();
        break;
    default:
        QLineEdit::keyPressEvent(event);
    }
}

void FindField::changeEvent(QEvent* event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        takeColors();
    else if (event->type() == QEvent::LayoutDirectionChange)
        takeDirection();
}

/// The text begins beside the lens, whichever way it is written.
void FindField::takeDirection()
{
    setAlignment(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeading | Qt::AlignVCenter));
}

void FindField::takeColors()
{
    const QPalette usual = QGuiApplication::palette();
    QPalette colors;
    if (outcome_ == Outcome::Nothing)
        colors.setColor(QPalette::Base, mixed(usual.color(QPalette::Base), readableRed(), strengthOfTint));
    setPalette(colors);
    const QColor quiet = usual.color(QPalette::PlaceholderText);
    searchIcon_->setIcon(imageNamed("find.png", quiet, quiet));
}

} // namespace sonavel
