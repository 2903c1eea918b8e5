#pragma once

#include "drivecard.h"
#include "focuskeeper.h"
#include "largefilemodel.h"
#include "largefilescanner.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <memory>

class FileCard;
class LargeFileResultsView;
class LargeFileSelectionView;
class ProgressDialog;
class QStackedWidget;
class ScanProgressDialog;

/// The page on which large files are searched for on chosen drives, reviewed and deleted.
///
/// Owns its scanner and the model of what it found. While files are deleted, which the scanner does
/// on its worker, the results are locked. GUI thread.
class LargeFilePage final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LargeFilePage)
public:
    explicit LargeFilePage(QWidget *parent = nullptr);
    /// With other drives to choose from than those that are mounted.
    explicit LargeFilePage(const QList<DriveInfo> &drives, QWidget *parent = nullptr);
    ~LargeFilePage() override;

    [[nodiscard]] LargeFileScanner *scanner() { return &m_scanner; }
    [[nodiscard]] LargeFileModel *model() { return &m_model; }
    [[nodiscard]] qint64 customSize() const { return m_customSize; }

public Q_SLOTS:
    void onStartScan();
    void onCancelScan();
    void onScanStarted();
    void onScanProgress(int percent, QString currentPath, int foundCount, qint64 totalSize);
    void onScanFinished(int totalFound, qint64 totalSize);
    void onBackClicked();
    void onDeleteSelected();
    /// The sender is a card's check box.
    void onFileCheckChanged(bool checked);
    void onSizeComboChanged(int index);
    void updateSelectedInfo();

protected:
    /// A click anywhere on a drive's card toggles its check box.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// What a deletion was asked for by, which decides what is said at its end.
    enum class Deletion { TickedFiles, OneFile };

    void listenToScanner();
    void closeScanDialog();
    void connectCard(FileCard *card);
    void showFileMenu(FileCard *card, QPoint position);
    /// Asks, and deletes the file if it still stands in @p row.
    void deleteFile(const LargeFileInfo &file, int row);
    void startDeletion(Deletion kind, const QList<int> &rows);
    void showDeletionDialog();
    void onDeleteProgress(int done, int total, qint64 size);
    void onDeleteFinished(const QBitArray &deleted, int tried);
    void showOutcome(Deletion kind, int deleted, int failed);
    void updateSummary();

    LargeFileScanner m_scanner;
    std::unique_ptr<QObject> m_runReceiver = m_scanner.makeRunReceiver();
    LargeFileModel m_model;
    QStackedWidget *m_views;
    LargeFileSelectionView *m_selection;
    LargeFileResultsView *m_results;
    qint64 m_customSize = 0; ///< bytes
    QPointer<ScanProgressDialog> m_scanDialog;
    Deletion m_deletion = Deletion::TickedFiles;
    QList<int> m_rowsToDelete; ///< that the scanner is deleting
    FocusKeeper m_focus; ///< while the results are locked
    QTimer m_deletionDialogTimer; ///< a deletion that takes longer shows its dialog
    QPointer<ProgressDialog> m_deletionDialog;
};
