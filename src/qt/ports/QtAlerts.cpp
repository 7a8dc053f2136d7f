#include "qt/ports/QtAlerts.h"

#include "qt/kit/Images.h"
#include "qt/kit/TextConversion.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace sonavel {

namespace {

/// Whatever the desktop's order of buttons: the first goes ahead, the last declines.
QMessageBox::ButtonRole roleOf(std::size_t index, std::size_t count)
{
    if (index == 0)
        return QMessageBox::AcceptRole;
    return index + 1 == count ? QMessageBox::RejectRole : QMessageBox::ActionRole;
}

void addButtons(QMessageBox& box, const std::vector<Text>& titles)
{
    for (std::size_t index = 0; index < titles.size(); ++index) {
        QPushButton* button = box.addButton(escapeMnemonics(toQString(titles[index])), roleOf(index, titles.size()));
        button->setMinimumHeight(box.fontMetrics().height() * 2);
        button->setProperty("answer", firstButtonAnswer + static_cast<int>(index));
        if (index == 0)
            box.setDefaultButton(button);
        box.setEscapeButton(button);
    }
}

} // namespace

int QtAlerts::runModal(const Alert& alert)
{
    QMessageBox box(QApplication::activeWindow());
    box.setWindowTitle(qtTrId("WIN_SONAVEL"));
    box.setIconPixmap(programIcon().pixmap(box.fontMetrics().height() * 3));
    box.setTextFormat(Qt::PlainText);
    box.setText(toQString(alert.messageText));
    addButtons(box, alert.buttonTitles);
    box.exec();
    const QAbstractButton* pressed = box.clickedButton();
    const QVariant answer = pressed ? pressed->property("answer") : QVariant();
    if (answer.isValid())
        return answer.toInt();
    return firstButtonAnswer + qMax(0, static_cast<int>(alert.buttonTitles.size()) - 1);
}

} // namespace sonavel
