#include "qt/windows/ProgramDialog.h"

#include "qt/kit/Fonts.h"

#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QVariant>

namespace sonavel {

namespace {

constexpr double headlineSize = 1.25; // times the usual size of the font
constexpr int besideTitle = 9; // lines of text: what a window manager has beside it

} // namespace

bool ProgramDialog::event(QEvent* event)
{
    const bool isHandled = QDialog::event(event);
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize)
        growWithTexts();
    return isHandled;
}

/// The toolkit lets a window become lower than its wrapped texts are.
void ProgramDialog::growWithTexts()
{
    if (layout()->sizeConstraint() != QLayout::SetFixedSize && layout()->hasHeightForWidth())
        setMinimumHeight(layout()->totalMinimumHeightForWidth(width()));
}

/// Each desktop has an order of its own in which its users look for buttons.
void ProgramDialog::arrangeButtons()
{
    auto* box = findChild<QDialogButtonBox*>();
    if (box == nullptr)
        return;
    for (auto* button : findChildren<QPushButton*>())
        box->addButton(button, button->isDefault() ? QDialogButtonBox::AcceptRole : QDialogButtonBox::RejectRole);
}

/// All distances follow the font.
void ProgramDialog::updateProportions()
{
    const int line = fontMetrics().height();
    if (auto* rows = qobject_cast<QBoxLayout*>(layout()))
        rows->addStrut(fontMetrics().horizontalAdvance(windowTitle()) + line * besideTitle);
    layout()->setContentsMargins(line, line, line, line);
    layout()->setSpacing(line * 3 / 4);
    for (auto* fields : findChildren<QFormLayout*>()) {
        fields->setHorizontalSpacing(line * 3 / 4);
        fields->setVerticalSpacing(line * 5 / 8);
    }
    for (auto* field : findChildren<QLineEdit*>()) {
        field->setMinimumHeight(line * 7 / 4);
        field->setTextMargins(line / 4, 0, line / 4, 0);
    }
    for (auto* label : findChildren<QLabel*>()) {
        // The toolkit aligns a label by the direction of its text, whichever that of the window is.
        label->setAlignment(QStyle::visualAlignment(layoutDirection(), label->alignment()));
        if (label->property("headline").toBool())
            label->setFont(scaledFont(label->font(), headlineSize));
    }
    for (auto* button : findChildren<QPushButton*>())
        button->setMinimumHeight(line * 2);
}

} // namespace sonavel
