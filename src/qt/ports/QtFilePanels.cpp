#include "qt/ports/QtFilePanels.h"

#include "qt/kit/TextConversion.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

#include <utility>

namespace sonavel {

namespace {

Text chosenIn(QFileDialog& dialog)
{
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    return toText(dialog.selectedFiles().constFirst());
}

} // namespace

QtFilePanels::QtFilePanels(QString passingFolder)
    : folder_(QDir::homePath())
    , passingFolder_(std::move(passingFolder))
{
}

Text QtFilePanels::runModal(const OpenPanel& panel)
{
    const QString type = toQString(panel.allowedFileType);
    QFileDialog dialog(QApplication::activeWindow(), qtTrId("PANEL_IMPORT"));
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setOption(QFileDialog::ReadOnly);
    dialog.setNameFilter(qtTrId("PANEL_STATION_LISTS") + QStringLiteral(" (*.%1)").arg(type));
    dialog.setDirectory(folder_);
    Text chosen = chosenIn(dialog);
    if (!chosen.isAbsent())
        folder_ = QFileInfo(toQString(chosen)).absolutePath();
    return chosen;
}

Text QtFilePanels::runModal(const SavePanel& panel)
{
    QFileDialog dialog(QApplication::activeWindow(), qtTrId("PANEL_EXPORT"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    const QString directory = toQString(panel.directory);
    dialog.setDirectory(directory == passingFolder_ ? folder_ : directory);
    dialog.selectFile(toQString(panel.nameFieldStringValue));
    return chosenIn(dialog);
}

} // namespace sonavel
