#pragma once

#include "drivecard.h"
#include "largefilescanner.h"

#include <QHash>
#include <QPointer>
#include <QWidget>

class FileCard;
class LargeFileResultsView;
class LargeFileSelectionView;
class QStackedWidget;
class ScanProgressDialog;

/// The page on which large files are searched for on chosen drives, reviewed and deleted.
///
/// Owns its scanner. GUI thread.
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
    void closeDialog();
    void onCardAdded(FileCard *card);
    void showFileMenu(FileCard *card, QPoint position);
    void deleteOne(FileCard *card);
    void dropCard(FileCard *card);
    void updateSummaryFromScanner();

    LargeFileScanner m_scanner;
    QStackedWidget *m_views;
    LargeFileSelectionView *m_selection;
    LargeFileResultsView *m_results;
    qint64 m_customSize = 0; ///< bytes
    QHash<QString, FileCard *> m_fileCards; ///< by path
    int m_selectedCount = 0;
    qint64 m_selectedSize = 0;
    QPointer<ScanProgressDialog> m_dialog;
};
