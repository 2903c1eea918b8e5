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

/// The page that finds large files on chosen drives, lists them and deletes them. MainWindow owns
/// it. GUI thread.
///
/// It owns the scanner and the model of the results. The scanner deletes on its worker, and the
/// results are locked until it has finished.
class LargeFilePage final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LargeFilePage)
public:
    explicit LargeFilePage(QWidget *parent = nullptr);
    /// Offers @p drives instead of the mounted volumes.
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
    /// The sender must be the check box of a card.
    void onFileCheckChanged(bool checked);
    void onSizeComboChanged(int index);
    void updateSelectedInfo();

protected:
    /// Toggles the check box of a drive's card on a click anywhere on the card.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// How the user asked for the deletion. It decides which message follows.
    enum class Deletion { TickedFiles, OneFile };

    void listenToScanner();
    void closeScanDialog();
    void connectCard(FileCard *card);
    void showFileMenu(FileCard *card, QPoint position);
    /// Asks, and then deletes the file if @p row still shows it.
    void deleteFile(const LargeFileInfo &file, int row);
    void startDeletion(Deletion kind, const QList<int> &rows);
    void showDeletionDialog();
    void onDeleteProgress(int done, int total, qint64 size);
    void onDeleteFinished(const QBitArray &deleted, int tried);
    void showOutcome(Deletion kind, int deleted, int failed);
    void onScannerError(const QString &error);
    void showError(const QString &error);
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
    QList<int> m_rowsToDelete; ///< the rows of the running deletion
    QString m_deletionError; ///< why the running deletion has failed
    FocusKeeper m_focus; ///< holds the focus while the results are locked
    QTimer m_deletionDialogTimer; ///< delays the progress dialog of a deletion
    QPointer<ProgressDialog> m_deletionDialog;
};
