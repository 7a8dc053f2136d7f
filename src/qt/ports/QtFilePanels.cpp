#include "qt/ports/QtFilePanels.h"

#include "qt/kit/TextConversion.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

#include <utility>

namespace sonavel {

namespace {

/// Stays open over a file of another kind, however its name was entered.
class OpenDialog : public QFileDialog {
public:
    OpenDialog(QWidget* parent, QString type)
        : QFileDialog(parent, qtTrId("PANEL_IMPORT"))
        , type_(std::move(type))
    {
    }

protected:
    void accept() override
    {
        const QFileInfo chosen(selectedFiles().value(0));
        const bool isOfKind = chosen.suffix().compare(type_, Qt::CaseInsensitive) == 0;
        if (isOfKind || chosen.isDir() || !chosen.exists())
            QFileDialog::accept();
        else
            QMessageBox::warning(this, windowTitle(), qtTrId("PANEL_OTHER_KIND").replace(QStringLiteral("%@"), type_));
    }

private:
    QString type_;
};

/// Asks about the file that will be replaced, with the extension that a name without one gets.
class SaveDialog : public QFileDialog {
public:
    SaveDialog(QWidget* parent, QString extension)
        : QFileDialog(parent, qtTrId("PANEL_EXPORT"))
        , extension_(std::move(extension))
    {
        setAcceptMode(QFileDialog::AcceptSave);
        setFileMode(QFileDialog::AnyFile);
        setOption(QFileDialog::DontConfirmOverwrite);
    }

    [[nodiscard]] QString chosen() const { return chosen_.filePath(); }

protected:
    void accept() override
    {
        const QFileInfo entered(selectedFiles().value(0));
        const bool isNamedWhole = entered.isDir() || !entered.suffix().isEmpty();
        chosen_ = QFileInfo(isNamedWhole ? entered.filePath() : entered.filePath() + u'.' + extension_);
        if (chosen_.isDir())
            setDirectory(chosen_.filePath());
        else if (!chosen_.exists() || isToBeReplaced(chosen_.fileName()))
            QFileDialog::accept();
    }

private:
    bool isToBeReplaced(const QString& name)
    {
        const QString question = qtTrId("PANEL_REPLACE").replace(QStringLiteral("%@"), name);
        QMessageBox box(QMessageBox::Warning, windowTitle(), question, QMessageBox::Yes | QMessageBox::No, this);
        box.setTextFormat(Qt::PlainText);
        box.setDefaultButton(QMessageBox::No);
        return box.exec() == QMessageBox::Yes;
    }

    QString extension_;
    QFileInfo chosen_;
};

} // namespace

QtFilePanels::QtFilePanels(QString passingFolder)
    : folder_(QDir::homePath())
    , passingFolder_(std::move(passingFolder))
{
}

Text QtFilePanels::runModal(const OpenPanel& panel)
{
    const QString type = toQString(panel.allowedFileType);
    OpenDialog dialog(QApplication::activeWindow(), type);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setOption(QFileDialog::ReadOnly);
    dialog.setNameFilter(qtTrId("PANEL_STATION_LISTS") + QStringLiteral(" (*.%1)").arg(type));
    dialog.setDirectory(folder_);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    const QString chosen = dialog.selectedFiles().constFirst();
    folder_ = QFileInfo(chosen).absolutePath();
    return toText(chosen);
}

Text QtFilePanels::runModal(const SavePanel& panel)
{
    const QString name = toQString(panel.nameFieldStringValue);
    SaveDialog dialog(QApplication::activeWindow(), QFileInfo(name).suffix());
    const QString directory = toQString(panel.directory);
    dialog.setDirectory(directory == passingFolder_ ? folder_ : directory);
    dialog.selectFile(name);
    return dialog.exec() == QDialog::Accepted ? toText(dialog.chosen()) : Text();
}

} // namespace sonavel
