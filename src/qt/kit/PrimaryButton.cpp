#include "qt/kit/PrimaryButton.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QStyleOptionButton>

namespace sonavel {

namespace {

constexpr int paledByStyles = 160; // percent; styles lighten the colour of a button, and light words must stay readable
constexpr int insideEdge = 3; // pixels

} // namespace

PrimaryButton::PrimaryButton(QWidget* parent)
    : QPushButton(parent)
{
    takeHighlightColors();
}

void PrimaryButton::reserveRoomFor(const QStringList& words, Picture picture)
{
    const QString shown = text();
    const QIcon shownPicture = icon();
    setIcon(picture == Picture::BesideWords ? QIcon(QPixmap(iconSize())) : QIcon());
    int width = 0;
    for (const QString& word : words) {
        setText(word);
        width = qMax(width, sizeHint().width());
    }
    setText(shown);
    setIcon(shownPicture);
    setMinimumWidth(width);
}

void PrimaryButton::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange || event->type() == QEvent::PaletteChange)
        takeHighlightColors();
    QPushButton::changeEvent(event);
}

/// The outline by which styles show the keyboard's place is of this button's own colour.
void PrimaryButton::paintEvent(QPaintEvent* event)
{
    QPushButton::paintEvent(event);
    QStyleOptionButton option;
    initStyleOption(&option);
    if (!hasFocus() || !option.state.testFlag(QStyle::State_KeyboardFocusChange))
        return;
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.drawRect(rect().adjusted(insideEdge, insideEdge, -insideEdge - 1, -insideEdge - 1));
}

/// A disabled button looks like any other.
void PrimaryButton::takeHighlightColors()
{
    QPalette palette;
    if (isEnabled()) {
        const QPalette colors = QGuiApplication::palette();
        const QColor highlight = colors.color(QPalette::Active, QPalette::Highlight);
        const QColor words = colors.color(QPalette::Active, QPalette::HighlightedText);
        const bool areLight = words.lightness() > highlight.lightness();
        palette.setColor(QPalette::Button, areLight ? highlight.darker(paledByStyles) : highlight);
        palette.setColor(QPalette::ButtonText, words);
    }
    setPalette(palette);
}

} // namespace sonavel
