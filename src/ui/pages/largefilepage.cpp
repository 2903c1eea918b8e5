#include "largefilepage.h"

#include "filecard.h"
#include "filecardlist.h"
#include "filemanager.h"
#include "largefileviews.h"
#include "scanprogressdialog.h"
#include "scanresult.h"
#include "text.h"
#include "theme.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QInputDialog>
#include <QMenu>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 mebibyte = 1'048'576;
constexpr qint64 defaultSize = 100 * mebibyte;
constexpr qint64 longestWork = 8; // milliseconds between two looks at the window's events

QMessageBox::StandardButton showBox(QWidget *parent, QMessageBox::Icon icon, const QString &title,
                                    const QString &text)
{
    const bool isQuestion = icon == QMessageBox::Question;
    QMessageBox box(icon, title, text,
                    isQuestion ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(isQuestion ? QMessageBox::No : QMessageBox::Ok);
    box.setStyleSheet(theme::messageBox());
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

} // namespace

LargeFilePage::LargeFilePage(QWidget *parent)
    : LargeFilePage(mountedDrives(), parent)
{
}

LargeFilePage::LargeFilePage(const QList<DriveInfo> &drives, QWidget *parent)
    : QWidget(parent)
    , m_views(new QStackedWidget(this))
    , m_selection(new LargeFileSelectionView(drives, m_views))
    , m_results(new LargeFileResultsView(m_views))
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
    connect(m_results->list(), &FileCardList::cardAdded, this, &LargeFilePage::onCardAdded);
    connect(&m_scanner, &LargeFileScanner::scanStarted, this, &LargeFilePage::onScanStarted);
    connect(&m_scanner, &LargeFileScanner::scanProgress, this, &LargeFilePage::onScanProgress);
    connect(&m_scanner, &LargeFileScanner::scanFinished, this, &LargeFilePage::onScanFinished);
    connect(qApp, &QCoreApplication::aboutToQuit, &m_scanner, &LargeFileScanner::cancel);
}

LargeFilePage::~LargeFilePage() = default;

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
        showBox(this, QMessageBox::Warning, tr("Tip"),
                tr("Please select at least one drive to scan."));
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
    closeDialog();
    m_dialog = new ScanProgressDialog(this);
    connect(m_dialog, &ScanProgressDialog::cancelRequested, this, &LargeFilePage::onCancelScan);
    m_dialog->show();
}

void LargeFilePage::onScanProgress(int, QString currentPath, int foundCount, qint64 totalSize)
{
    if (m_dialog)
        m_dialog->updateProgress(currentPath, foundCount, totalSize);
}

void LargeFilePage::onCancelScan()
{
    m_scanner.cancel();
    closeDialog();
}

void LargeFilePage::closeDialog()
{
    if (!m_dialog)
        return;
    m_dialog->hide();
    m_dialog->deleteLater();
    m_dialog.clear();
}

void LargeFilePage::onScanFinished(int totalFound, qint64 totalSize)
{
    closeDialog();
    if (totalFound == 0) {
        showBox(this, QMessageBox::Information, tr("Scan Completed"),
                tr("No large files found that match the criteria."));
        return;
    }
    m_results->setSummary(totalFound, totalSize);
    m_fileCards.clear();
    m_selectedCount = 0;
    m_selectedSize = 0;
    updateSelectedInfo();
    QList<LargeFileInfo> files = m_scanner.results();
    std::stable_sort(files.begin(), files.end(),
                     [](const LargeFileInfo &left, const LargeFileInfo &right) {
                         return left.size > right.size;
                     });
    m_results->list()->setFiles(files);
    m_views->setCurrentIndex(1);
}

void LargeFilePage::onCardAdded(FileCard *card)
{
    m_fileCards.insert(card->info().path, card);
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
    const QObject *box = sender();
    if (!box)
        return;
    const qint64 size = box->property("fileSize").toLongLong();
    m_selectedCount += checked ? 1 : -1;
    m_selectedSize += checked ? size : -size;
    updateSelectedInfo();
}

void LargeFilePage::updateSelectedInfo()
{
    m_results->setSelected(m_selectedCount, m_selectedSize);
}

void LargeFilePage::updateSummaryFromScanner()
{
    m_results->setSummary(m_scanner.results().size(), m_scanner.totalSize());
}

void LargeFilePage::showFileMenu(FileCard *card, QPoint position)
{
    auto *menu = new QMenu(card);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setStyleSheet(theme::contextMenu());
    const QString path = card->info().path;
    QAction *open = menu->addAction(tr("📂 Open file location"));
    open->setProperty("filePath", path);
    connect(open, &QAction::triggered, this, [path] {
        if (!path.isEmpty() && !platform::revealFile(path))
            qWarning("[LargeFilePage] The file manager could not be started");
    });
    menu->addSeparator();
    QAction *remove = menu->addAction(tr("🗑️ Delete this file"));
    remove->setProperty("filePath", path);
    remove->setProperty("card", QVariant::fromValue<QWidget *>(card));
    // The card may go while the question stands open.
    connect(remove, &QAction::triggered, this,
            [this, guarded = QPointer(card)] { deleteOne(guarded); });
    menu->popup(card->mapToGlobal(position));
}

void LargeFilePage::deleteOne(FileCard *card)
{
    const QPointer<FileCard> guarded = card;
    if (!card)
        return;
    const LargeFileInfo info = card->info();
    const QString question = tr("Are you sure you want to delete this file?\n\n%1\nSize: %2\n\n"
                                "This action cannot be undone!")
                                 .arg(singleLine(info.path).left(1024), formatSize(info.size));
    if (showBox(this, QMessageBox::Question, tr("Confirm Delete"), question) != QMessageBox::Yes
        || !guarded)
        return;
    if (!m_scanner.deleteFile(info.path)) {
        showBox(this, QMessageBox::Warning, tr("Delete Failed"),
                tr("Unable to delete this file. It may be in use by another program."));
        return;
    }
    dropCard(card);
    updateSelectedInfo();
    updateSummaryFromScanner();
    if (m_results->list()->isEmpty())
        showBox(this, QMessageBox::Information, tr("Info"), tr("All files have been deleted"));
}

// Of a deleted file, which leaves the selection with its card.
void LargeFilePage::dropCard(FileCard *card)
{
    if (card->checkBox()->isChecked()) {
        --m_selectedCount;
        m_selectedSize -= card->info().size;
    }
    m_fileCards.remove(card->info().path);
    m_results->list()->discard(card);
}

void LargeFilePage::onDeleteSelected()
{
    if (m_selectedCount == 0)
        return;
    const QString question = tr("Are you sure you want to delete the selected %1 files?\n\n"
                                "Total: %2\n\nThis action cannot be undone!")
                                 .arg(QString::number(m_selectedCount), formatSize(m_selectedSize));
    if (showBox(this, QMessageBox::Question, tr("Confirm Delete"), question) != QMessageBox::Yes)
        return;
    QList<FileCard *> chosen;
    for (FileCard *card : m_results->list()->cards()) {
        if (card->checkBox()->isChecked())
            chosen.append(card);
    }
    int deleted = 0;
    int failed = 0;
    QElapsedTimer timer;
    timer.start();
    for (FileCard *card : std::as_const(chosen)) {
        if (m_scanner.deleteFile(card->info().path)) {
            dropCard(card);
            ++deleted;
        } else {
            ++failed;
        }
        // Thousands of files take their time, in which the window is at least painted.
        if (timer.elapsed() >= longestWork) {
            updateSelectedInfo();
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
            timer.restart();
        }
    }
    updateSelectedInfo();
    updateSummaryFromScanner();
    QString message = tr("Deleted %1 files successfully.").arg(deleted);
    if (failed > 0)
        message += tr(" %1 files failed to delete.").arg(failed);
    showBox(this, QMessageBox::Information, tr("Delete Completed"), message);
}
