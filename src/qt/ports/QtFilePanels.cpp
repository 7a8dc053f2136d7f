#include "qt/ports/QtFilePanels.h"

#include "platform/Alerts.h"
#include "qt/kit/TextConversion.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

#include <utility>

namespace sonavel {

namespace {

QFileInfo withExtension(const QFileInfo& entered, const QString& extension)
{
    const bool isNamedWhole = entered.isDir() || !entered.suffix().isEmpty();
    return isNamedWhole ? entered : QFileInfo(entered.filePath() + u'.' + extension);
}

} // namespace

QtFilePanels::QtFilePanels(Alerts& alerts, QString passingFolder)
    : alerts_(alerts)
    , folder_(QDir::homePath())
    , passingFolder_(std::move(passingFolder))
{
}

// The desktop's own panel, where there is one, ends at the first choice: each is looked at when the panel has ended,
// and the panel shown again until one serves.

Text QtFilePanels::runModal(const OpenPanel& panel)
{
    const QString type = toQString(panel.allowedFileType);
    QFileDialog dialog(QApplication::activeWindow(), qtTrId("PANEL_IMPORT"), folder_);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setOption(QFileDialog::ReadOnly);
    dialog.setNameFilter(qtTrId("PANEL_STATION_LISTS") + QStringLiteral(" (*.%1)").arg(type));
    while (dialog.exec() == QDialog::Accepted) {
        const QFileInfo chosen(dialog.selectedFiles().value(0));
        const bool isOfKind = chosen.suffix().compare(type, Qt::CaseInsensitive) == 0;
        if (isOfKind && !chosen.isDir()) {
            folder_ = chosen.absolutePath();
            return toText(chosen.filePath());
        }
        if (chosen.isDir())
            dialog.setDirectory(chosen.filePath());
        else
            alerts_.runModal({toText(filledIn("PANEL_OTHER_KIND", type)), {toText(qtTrId("BUTTON_CONTINUE"))}});
    }
    return {};
}

Text QtFilePanels::runModal(const SavePanel& panel)
{
    const QString name = toQString(panel.nameFieldStringValue);
    const QString directory = toQString(panel.directory);
    QFileDialog dialog(QApplication::activeWindow(), qtTrId("PANEL_EXPORT"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setDirectory(directory == passingFolder_ ? folder_ : directory);
    dialog.selectFile(name);
    while (dialog.exec() == QDialog::Accepted) {
        const QFileInfo chosen = withExtension(QFileInfo(dialog.selectedFiles().value(0)), QFileInfo(name).suffix());
        if (chosen.isDir())
            dialog.setDirectory(chosen.filePath());
        else if (!chosen.exists() || isToBeReplaced(chosen.fileName()))
            return toText(chosen.filePath());
    }
    return {};
}

bool QtFilePanels::isToBeReplaced(const QString& name)
{
    return alerts_.runModal(
               {toText(filledIn("PANEL_REPLACE", name)), {toText(qtTrId("BUTTON_YES")), toText(qtTrId("BUTTON_NO"))}})
        == firstButtonAnswer;
}

} // namespace sonavel
