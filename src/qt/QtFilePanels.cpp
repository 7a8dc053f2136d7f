#include "qt/QtFilePanels.h"

#include "qt/TextConversion.h"

#include <QApplication>
#include <QFileDialog>

namespace sonavel {

namespace {

Text chosenIn(QFileDialog& dialog)
{
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    return toText(dialog.selectedFiles().constFirst());
}

} // namespace

Text QtFilePanels::runModal(const OpenPanel& panel)
{
    const QString type = toQString(panel.allowedFileType);
    QFileDialog dialog(QApplication::activeWindow(), qtTrId("PANEL_IMPORT"));
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilter(qtTrId("PANEL_STATION_LISTS") + QStringLiteral(" (*.%1)").arg(type));
    return chosenIn(dialog);
}

Text QtFilePanels::runModal(const SavePanel& panel)
{
    QFileDialog dialog(QApplication::activeWindow(), qtTrId("PANEL_EXPORT"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setDirectory(toQString(panel.directory));
    dialog.selectFile(toQString(panel.nameFieldStringValue));
    return chosenIn(dialog);
}

} // namespace sonavel
