#include "qt/ports/QtPorts.h"

#include "qt/binders/OutletConnector.h"
#include "qt/kit/Images.h"
#include "qt/kit/TextConversion.h"
#include "qt/windows/ProgramDialog.h"
#include "ui_UpdateWindow.h"

#include <QApplication>
#include <QDesktopServices>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>

#include <unistd.h>

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

std::shared_ptr<void> QtInterfaces::loadAppUpdater(const UpdaterControls& owner)
{
    std::shared_ptr<ProgramDialog> dialog = ProgramDialog::from<Ui::UpdateWindow>();
    const int line = dialog->fontMetrics().height();
    dialog->resize(line * 30, line * 22);
    connectWindow(owner, *dialog);
    return dialog;
}

void QtProcess::exit(int status)
{
    if (beforeExit_)
        beforeExit_();
    for (QWidget* window : QApplication::topLevelWidgets())
        window->hide();
    QGuiApplication::sync();
    ::_exit(status);
}

void QtRunLoop::performOnNextTurn(std::function<void()> action)
{
    QMetaObject::invokeMethod(QCoreApplication::instance(), std::move(action), Qt::QueuedConnection);
}

void QtWebBrowser::openAddress(const Text& address)
{
    QDesktopServices::openUrl(QUrl(toQString(address), QUrl::StrictMode));
}

} // namespace sonavel
