#include "qt/windows/stationlist/StationListWindow.h"

#include "model/StationListText.h"
#include "qt/kit/Images.h"
#include "qt/kit/TextConversion.h"
#include "qt/windows/stationlist/FindField.h"
#include "ui_EditSheet.h"
#include "ui_StationListWindow.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QHeaderView>
#include <QLayout>
#include <QMimeData>
#include <QShortcut>
#include <QUrl>

namespace sonavel {

namespace {

constexpr int usualWidth = 46; // lines of text
constexpr int usualHeight = 30;

/// The path of the one station list among what is dragged; a null string for anything else.
QString stationListIn(const QMimeData& dragged)
{
    const QList<QUrl> urls = dragged.urls();
    if (urls.size() != 1 || !urls.constFirst().isLocalFile())
        return {};
    const QFileInfo file(urls.constFirst().toLocalFile());
    const bool isList =
        file.isFile() && file.suffix().compare(QLatin1String(listTextExtension), Qt::CaseInsensitive) == 0;
    return isList ? file.absoluteFilePath() : QString();
}

} // namespace

StationListWindow::StationListWindow(const TableView& table)
    : description_(std::make_unique<Ui::StationListWindow>())
    , finder_(table)
    , table_(table)
    , findField_(new FindField(this))
{
    description_->setupUi(this);
    auto* gap = new QWidget(this);
    gap->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    description_->toolBar->addWidget(gap);
    description_->toolBar->addWidget(findField_);
    setUpIcons();
    setUpProportions();
    setUpFinding();
    setUpKeys();
}

StationListWindow::~StationListWindow() = default;

void StationListWindow::setUpProportions()
{
    const int line = fontMetrics().height();
    description_->rows->setContentsMargins(0, 0, 0, 0);
    description_->toolBar->setIconSize(QSize(line, line) * 5 / 4);
    description_->toolBar->layout()->setContentsMargins(line / 2, line / 2, line / 2, line / 2);
    findField_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    findField_->setMinimumHeight(line * 7 / 4);
    description_->labelListStatus->setContentsMargins(line * 2 / 3, line / 4, line * 2 / 3, line / 4);
    // As wide as the tools, which would hide behind a mark otherwise.
    setMinimumSize(description_->toolBar->sizeHint().width(), line * 14);
    resize(qMax(minimumWidth(), line * usualWidth), line * usualHeight);
    description_->tableViewListRadio->horizontalHeader()->setDefaultSectionSize(line * usualWidth * 2 / 5);
}

void StationListWindow::setUpIcons()
{
    for (QAction* tool : description_->toolBar->actions()) {
        const QVariant image = tool->property("imageName");
        if (image.isValid())
            tool->setIcon(imageNamed(toText(image.toString()), palette()));
    }
}

void StationListWindow::setUpFinding()
{
    using Direction = StationFinder::Direction;
    findField_->setRequests({
        .search = [this] { find(From::Selection, Direction::Forward); },
        .next = [this] { find(From::BesideSelection, Direction::Forward); },
        .previous = [this] { find(From::BesideSelection, Direction::Backward); },
        .leave = [this] { description_->tableViewListRadio->setFocus(); },
    });
}

/// The keys of the table work while it has the focus itself, not a cell that is open in it.
void StationListWindow::setUpKeys()
{
    const auto bind = [this](const QKeySequence& key, QAction* tool) {
        auto* shortcut = new QShortcut(key, description_->tableViewListRadio);
        shortcut->setContext(Qt::WidgetShortcut);
        shortcut->setAutoRepeat(false);
        connect(shortcut, &QShortcut::activated, tool, &QAction::trigger);
    };
    bind(Qt::Key_Return, description_->radioEdit);
    bind(Qt::Key_Enter, description_->radioEdit);
    bind(Qt::Key_Delete, description_->radioRemove);

    auto* findKey = new QShortcut(QKeySequence::Find, this);
    connect(findKey, &QShortcut::activated, this, [this] {
        findField_->setFocus(Qt::ShortcutFocusReason);
        findField_->selectAll();
    });
}

void StationListWindow::find(From from, StationFinder::Direction direction)
{
    const QString wanted = findField_->text();
    std::optional<long> row;
    if (!wanted.isEmpty()) {
        const long rows = table_.numberOfRows();
        long start = table_.selectedRow();
        if (from == From::BesideSelection && start >= 0 && rows > 0)
            start = (start + (direction == StationFinder::Direction::Forward ? 1 : rows - 1)) % rows;
        row = finder_.find(wanted, start, direction);
    }
    const bool isMissed = !wanted.isEmpty() && !row;
    findField_->showOutcome(isMissed ? FindField::Outcome::Nothing : FindField::Outcome::Found);
    description_->labelListStatus->showText(isMissed ? qtTrId("FIND_NOTHING") : QString());
    if (row)
        description_->tableViewListRadio->selectAndShow(static_cast<int>(*row));
}

void StationListWindow::showNotice(const QString& text)
{
    description_->labelListStatus->showFailure(text);
}

void StationListWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        setUpIcons();
}

void StationListWindow::dragEnterEvent(QDragEnterEvent* event)
{
    const bool isBlocked = QApplication::activeModalWidget() != nullptr;
    if (!isBlocked && !stationListIn(*event->mimeData()).isNull()) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
    }
}

/// The program that the file comes from waits for the end of the drop; questions are asked after it.
void StationListWindow::dropEvent(QDropEvent* event)
{
    const QString path = stationListIn(*event->mimeData());
    if (path.isNull() || !whenFileDropped_)
        return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    QMetaObject::invokeMethod(
        this, [this, path] { whenFileDropped_(toText(path)); }, Qt::QueuedConnection);
}

std::unique_ptr<ProgramDialog> editSheetOf(QWidget& window)
{
    auto sheet = ProgramDialog::from<Ui::EditSheet>(&window);
    sheet->findChild<PrimaryButton*>(QStringLiteral("buttonAction"))
        ->reserveRoomFor({qtTrId("BUTTON_ADD"), qtTrId("BUTTON_EDIT")}, PrimaryButton::Picture::None);
    sheet->resize(sheet->fontMetrics().height() * 30, sheet->sizeHint().height());
    return sheet;
}

} // namespace sonavel
