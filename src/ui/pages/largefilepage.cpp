#include "largefilepage.h"

#include "ask.h"
#include "filecard.h"
#include "filecardlist.h"
#include "filelocation.h"
#include "largefileviews.h"
#include "progressdialog.h"
#include "scanprogressdialog.h"
#include "scanresult.h"
#include "text.h"
#include "theme.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QInputDialog>
#include <QMenu>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <functional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 mebibyte = 1'048'576;
constexpr qint64 defaultSize = 100 * mebibyte;
// In milliseconds. A shorter deletion shows no progress dialog.
constexpr int deletionDialogDelay = 300;

} // namespace

LargeFilePage::LargeFilePage(QWidget *parent)
    : LargeFilePage(mountedDrives(), parent)
{
}

LargeFilePage::LargeFilePage(const QList<DriveInfo> &drives, QWidget *parent)
    : QWidget(parent)
    , m_views(new QStackedWidget(this))
    , m_selection(new LargeFileSelectionView(drives, m_views))
    , m_results(new LargeFileResultsView(&m_model, m_views))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_views);
    m_views->addWidget(m_selection);
    m_views->addWidget(m_results);

    for (DriveCard *card : m_selection->driveCards())
        card->installEventFilter(this);
    connect(m_selection->sizeCombo(), &QComboBox::currentIndexChanged, this,
            &LargeFilePage::onSizeComboChanged);
    connect(m_selection->startButton(), &QPushButton::clicked, this, &LargeFilePage::onStartScan);
    connect(m_results->backButton(), &QPushButton::clicked, this, &LargeFilePage::onBackClicked);
    connect(m_results->deleteButton(), &QPushButton::clicked, this,
            &LargeFilePage::onDeleteSelected);
    connect(m_results->list(), &FileCardList::cardCreated, this, &LargeFilePage::connectCard);
    listenToScanner();
    // Without a time limit: nothing may run any more when the program destroys its static objects.
    connect(qApp, &QCoreApplication::aboutToQuit, &m_scanner, &LargeFileScanner::stopAndWait);
    m_deletionDialogTimer.setSingleShot(true);
    m_deletionDialogTimer.setInterval(deletionDialogDelay);
    connect(&m_deletionDialogTimer, &QTimer::timeout, this, &LargeFilePage::showDeletionDialog);
}

LargeFilePage::~LargeFilePage() = default;

void LargeFilePage::listenToScanner()
{
    const auto listen = [this](auto signal, auto slot) {
        connect(&m_scanner, signal, m_runReceiver.get(), std::bind_front(slot, this));
    };
    listen(&LargeFileScanner::scanStarted, &LargeFilePage::onScanStarted);
    listen(&LargeFileScanner::scanProgress, &LargeFilePage::onScanProgress);
    listen(&LargeFileScanner::scanFinished, &LargeFilePage::onScanFinished);
    listen(&LargeFileScanner::deleteProgress, &LargeFilePage::onDeleteProgress);
    listen(&LargeFileScanner::deleteFinished, &LargeFilePage::onDeleteFinished);
    listen(&LargeFileScanner::errorOccurred, &LargeFilePage::onScannerError);
}

bool LargeFilePage::eventFilter(QObject *watched, QEvent *event)
{
    auto *card = qobject_cast<DriveCard *>(watched);
    if (card && event->type() == QEvent::MouseButtonRelease) {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        if (mouse->button() == Qt::LeftButton && card->rect().contains(mouse->position().toPoint()))
            card->checkBox()->toggle();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void LargeFilePage::onStartScan()
{
    QStringList drives;
    const QMap<QString, QCheckBox *> &boxes = m_selection->driveBoxes();
    for (auto it = boxes.cbegin(); it != boxes.cend(); ++it) {
        if (it.value()->isChecked())
            drives.append(it.key());
    }
    if (drives.isEmpty()) {
        ask::notice(this, tr("Tip"), tr("Please select at least one drive to scan."),
                    QMessageBox::Warning);
        return;
    }
    const qint64 size = m_selection->sizeCombo()->currentData().toLongLong();
    m_scanner.setDrives(drives);
    m_scanner.setMinSize(size < 1 ? defaultSize : size);
    m_scanner.startScan();
}

void LargeFilePage::onSizeComboChanged(int index)
{
    if (m_selection->sizeCombo()->itemData(index).toLongLong()
        != LargeFileSelectionView::customItem)
        return;
    QInputDialog dialog(this);
    dialog.setInputMode(QInputDialog::IntInput);
    dialog.setWindowTitle(tr("Custom File Size"));
    dialog.setLabelText(tr("Enter minimum file size (MB):"));
    dialog.setIntRange(1, 10'240);
    dialog.setIntStep(10);
    dialog.setIntValue(100);
    dialog.setStyleSheet(theme::inputDialog());
    const bool isAccepted = dialog.exec() == QDialog::Accepted;
    const int value = dialog.intValue();
    const QSignalBlocker blocker(m_selection->sizeCombo());
    if (!isAccepted) {
        m_selection->sizeCombo()->setCurrentIndex(LargeFileSelectionView::defaultSizeIndex);
        return;
    }
    m_customSize = value * mebibyte;
    m_selection->sizeCombo()->setItemText(index, tr("%1 MB").arg(value));
    m_selection->sizeCombo()->setItemData(index, m_customSize);
}

void LargeFilePage::onScanStarted()
{
    closeScanDialog();
    m_model.setFiles({});
    updateSelectedInfo();
    m_scanDialog = new ScanProgressDialog(this);
    connect(m_scanDialog, &ScanProgressDialog::cancelRequested, this, &LargeFilePage::onCancelScan);
    m_scanDialog->showWith(this);
}

void LargeFilePage::onScanProgress(int, QString currentPath, int foundCount, qint64 totalSize)
{
    if (m_scanDialog)
        m_scanDialog->updateProgress(currentPath, foundCount, totalSize);
}

void LargeFilePage::onCancelScan()
{
    m_scanner.cancel();
    closeScanDialog();
}

void LargeFilePage::closeScanDialog()
{
    if (!m_scanDialog)
        return;
    m_scanDialog->hide();
    m_scanDialog->deleteLater();
    m_scanDialog.clear();
}

void LargeFilePage::onScanFinished(int totalFound, qint64 totalSize)
{
    closeScanDialog();
    if (totalFound == 0) {
        ask::notice(this, tr("Scan Completed"),
                    tr("No large files found that match the criteria."));
        return;
    }
    m_results->setSummary(totalFound, totalSize);
    m_model.setFiles(m_scanner.results());
    updateSelectedInfo();
    m_views->setCurrentIndex(1);
    // The view gives the focus back to the card that had it before. That card may have no row in
    // this list.
    if (const QWidget *focus = focusWidget(); focus && focus->hasFocus() && !focus->isVisible())
        m_results->list()->tabStop()->setFocus();
}

void LargeFilePage::connectCard(FileCard *card)
{
    connect(card->checkBox(), &QCheckBox::toggled, this, &LargeFilePage::onFileCheckChanged);
    connect(card, &QWidget::customContextMenuRequested, this,
            [this, card](QPoint position) { showFileMenu(card, position); });
}

void LargeFilePage::onBackClicked()
{
    m_views->setCurrentIndex(0);
}

void LargeFilePage::onFileCheckChanged(bool checked)
{
    const int row = m_results->list()->rowOf(sender());
    if (row < 0)
        return;
    m_model.setTicked(row, checked);
    updateSelectedInfo();
}

void LargeFilePage::updateSelectedInfo()
{
    m_results->setSelected(m_model.tickedCount(), m_model.tickedSize());
}

void LargeFilePage::updateSummary()
{
    m_results->setSummary(m_model.rowCount(), m_scanner.totalSize());
}

void LargeFilePage::showFileMenu(FileCard *card, QPoint position)
{
    auto *menu = new QMenu(card);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setStyleSheet(theme::contextMenu());
    // The file is copied, because the card may show another file when the user chooses an action.
    const LargeFileInfo file = card->info();
    const int row = m_results->list()->rowOf(card);
    QAction *open = menu->addAction(tr("📂 Open file location"));
    open->setProperty("filePath", file.path);
    connect(open, &QAction::triggered, this,
            [this, path = file.path] { filelocation::show(this, path); });
    menu->addSeparator();
    QAction *remove = menu->addAction(tr("🗑️ Delete this file"));
    remove->setProperty("filePath", file.path);
    remove->setProperty("card", QVariant::fromValue<QWidget *>(card));
    connect(remove, &QAction::triggered, this, [this, file, row] { deleteFile(file, row); });
    menu->popup(card->mapToGlobal(position));
}

void LargeFilePage::deleteFile(const LargeFileInfo &file, int row)
{
    const QString question = tr("Are you sure you want to delete this file?\n\n%1\nSize: %2\n\n"
                                "This action cannot be undone!")
                                 .arg(singleLine(file.path).left(1024), formatSize(file.size));
    if (!ask::question(this, tr("Confirm Delete"), question))
        return;
    const bool isSameFile =
        row >= 0 && row < m_model.rowCount() && m_model.at(row).path == file.path;
    if (isSameFile)
        startDeletion(Deletion::OneFile, {row});
}

void LargeFilePage::onDeleteSelected()
{
    const QList<int> rows = m_model.tickedRows();
    if (rows.isEmpty())
        return;
    const QString question =
        tr("Are you sure you want to delete the selected %1 files?\n\n"
           "Total: %2\n\nThis action cannot be undone!")
            .arg(QString::number(rows.size()), formatSize(m_model.tickedSize()));
    if (!ask::question(this, tr("Confirm Delete"), question))
        return;
    // The selection may have changed while the question was open. Only what the question named is
    // deleted.
    if (rows == m_model.tickedRows())
        startDeletion(Deletion::TickedFiles, rows);
}

void LargeFilePage::startDeletion(Deletion kind, const QList<int> &rows)
{
    if (m_scanner.isRunning() || m_scanner.isDeleting())
        return;
    m_deletion = kind;
    m_rowsToDelete = rows;
    m_focus.keep(this, [this] { m_results->setEnabled(false); });
    QList<LargeFileInfo> files;
    files.reserve(rows.size());
    for (const int row : rows)
        files.append(m_model.at(row));
    m_deletionDialogTimer.start();
    m_scanner.startDelete(files);
}

void LargeFilePage::showDeletionDialog()
{
    m_deletionDialog = new ProgressDialog(ProgressDialog::Cleaning, this);
    connect(m_deletionDialog, &ProgressDialog::cancelRequested, &m_scanner,
            &LargeFileScanner::cancelDelete);
    m_deletionDialog->showWith(this);
}

void LargeFilePage::onDeleteProgress(int done, int total, qint64 size)
{
    if (!m_deletionDialog)
        return;
    m_deletionDialog->setProgress(done, total);
    m_deletionDialog->setCleanedSize(size);
}

void LargeFilePage::onDeleteFinished(const QBitArray &deleted, int tried)
{
    m_deletionDialogTimer.stop();
    delete m_deletionDialog;
    QList<int> deletedRows;
    for (qsizetype i = 0; i < m_rowsToDelete.size(); ++i) {
        if (deleted.testBit(i))
            deletedRows.append(m_rowsToDelete.at(i));
    }
    m_rowsToDelete.clear();
    m_results->setEnabled(true);
    m_model.removeRows(deletedRows);
    updateSelectedInfo();
    updateSummary();
    QWidget *rows = m_results->list()->tabStop();
    // The card that had the focus may show another file now.
    if (m_results->list()->isAncestorOf(m_focus.control()))
        m_focus.replaceControl(rows);
    m_focus.restore(rows ? rows : m_results->backButton());
    const auto count = static_cast<int>(deletedRows.size());
    if (m_deletionError.isEmpty())
        showOutcome(m_deletion, count, tried - count);
    else
        showError(std::exchange(m_deletionError, {}));
}

void LargeFilePage::onScannerError(const QString &error)
{
    if (m_scanner.isDeleting()) {
        m_deletionError = error; // the end of the deletion follows
        return;
    }
    closeScanDialog();
    showError(error);
}

void LargeFilePage::showError(const QString &error)
{
    ask::notice(this, tr("Operation Failed"), error, QMessageBox::Warning);
}

void LargeFilePage::showOutcome(Deletion kind, int deleted, int failed)
{
    if (kind == Deletion::TickedFiles) {
        QString message = tr("Deleted %1 files successfully.").arg(deleted);
        if (failed > 0)
            message += tr(" %1 files failed to delete.").arg(failed);
        ask::notice(this, tr("Delete Completed"), message);
    } else if (failed > 0) {
        ask::notice(this, tr("Delete Failed"),
                    tr("Unable to delete this file. It may be in use by another program."),
                    QMessageBox::Warning);
    } else if (m_model.rowCount() == 0) {
        ask::notice(this, tr("Info"), tr("All files have been deleted"));
    }
}
