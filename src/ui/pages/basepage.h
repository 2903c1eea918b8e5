#pragma once

#include "cleanengine.h"
#include "focuskeeper.h"
#include "progressdialog.h"
#include "scanresult.h"

#include <QList>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <memory>

class ResultWidget;
class QLabel;
class QPushButton;
class QScrollArea;
class QVBoxLayout;

/// The common page of the rule-driven engines: scan, review by category, confirm, clean. MainWindow
/// owns it. GUI thread.
///
/// The result widgets are bound to records inside the result of the engine. They are created when a
/// scan has finished. They are deleted when any scan starts, because the engine then drops the
/// records. A clean locks them from its start to its end.
class BasePage : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(BasePage)
public:
    explicit BasePage(QWidget *parent = nullptr);
    ~BasePage() override;

    /// Attaches @p engine and detaches the previous one. The page does not own the engine, which
    /// must outlive the page.
    virtual void setEngine(CleanEngine *engine);
    [[nodiscard]] CleanEngine *engine() const { return m_engine; }

    [[nodiscard]] bool showsSizes() const { return m_showSizes; }

public Q_SLOTS:
    virtual void startScan();
    virtual void startClean();
    virtual void cancelOperation();
    virtual void onScanProgress(int current, int total, QString currentPath);
    virtual void onScanFinished(ScanResult result);
    virtual void onCleanProgress(int current, int total, qint64 cleanedSize);
    virtual void onCleanFinished(qint64 totalCleaned, int itemsCleaned);
    virtual void onEngineError(QString error);

public:
    /// Sets all texts. A subclass calls it first and then replaces title, subtitle and statistic
    /// caption.
    virtual void retranslateUi();

Q_SIGNALS:
    void scanFinished();
    void cleanFinished();

protected:
    virtual void setupHeader();
    virtual void setupContent();
    virtual void setupFooter();
    /// Rebuilds the result list from the engine's result.
    virtual void displayResults();
    /// Creates the widgets of a result that is not empty, as children of @p parent. The default is
    /// one widget for each category.
    [[nodiscard]] virtual QList<ResultWidget *> makeResultWidgets(QList<CleanCategory> &categories,
                                                                  QWidget *parent);
    /// Puts @p bar above the result list. Its controls must be created in the order in which they
    /// are seen, because that is their tab order.
    void insertTopBar(QWidget *bar);
    /// Deletes all result widgets.
    virtual void clearResults();
    /// Shows the size or the number of the selected items, and enables the clean button when there
    /// are any.
    void updateSelection();

    /// Whether the page shows bytes (the default) or numbers of items.
    void setShowSizes(bool show) { m_showSizes = show; }
    void setTitle(const QString &text);
    void setSubtitle(const QString &text);
    void setStatisticCaption(const QString &text);
    /// The text that replaces the selection while no result is shown.
    void setNoSelectionText(const QString &text);
    /// The number of items that a clean would take now. It is 0 while no result is listed: a
    /// cancelled scan leaves records that the user has not seen.
    [[nodiscard]] int chosenCount() const;
    /// Whether the user may be asked to clean. Not while the engine works. After a cancelled clean
    /// not before its list is emptied: that is not the list to ask about.
    [[nodiscard]] bool canAskToClean() const;
    /// Whether the listed items may be cleaned now.
    [[nodiscard]] bool canClean() const;
    /// The last step of every clean: opens the progress dialog and starts the engine, if canClean()
    /// still allows it.
    void runClean();
    /// Replaces any earlier progress dialog by one for a new run, and locks the buttons.
    ProgressDialog *openProgressDialog(ProgressDialog::Mode mode);

private:
    void onStateChanged(CleanEngine::State state);
    void releaseResult();
    /// Locks the list and the bar. While a clean runs, a change of a check box would have no
    /// effect.
    void setLocked(bool locked);
    void closeProgressDialog();
    /// Shows in the dialog what the worker has reached.
    void showProgress();
    void orderFocus() const;
    /// What is checked of the listed records.
    [[nodiscard]] Selection shownSelection() const;
    [[nodiscard]] bool isEngineBusy() const;
    [[nodiscard]] bool isResultShown() const { return !m_resultWidgets.isEmpty(); }

    CleanEngine *m_engine = nullptr;
    std::unique_ptr<QObject> m_runReceiver; ///< context of the engine connections
    bool m_isCleanPending = false; ///< a clean has started, and its end has not arrived yet
    bool m_showSizes = true;
    QString m_noSelectionText;
    QVBoxLayout *m_layout;
    QLabel *m_title = nullptr;
    QLabel *m_subtitle = nullptr;
    QLabel *m_statisticCaption = nullptr;
    QLabel *m_statisticValue = nullptr;
    QScrollArea *m_scrollArea = nullptr;
    QVBoxLayout *m_listLayout = nullptr;
    QWidget *m_emptyState = nullptr;
    QLabel *m_emptyText = nullptr;
    QLabel *m_selection = nullptr;
    QPushButton *m_scanButton = nullptr;
    QPushButton *m_cleanButton = nullptr;
    QList<ResultWidget *> m_resultWidgets;
    FocusKeeper m_focus;
    QWidget *m_topBar = nullptr; ///< above the list; null when the subclass has none
    QWidget *m_lastBarControl = nullptr; ///< the last focusable control of the bar
    QPointer<ProgressDialog> m_progressDialog;
    QTimer m_progressTimer{this}; ///< runs while the dialog is open
    CleanProgress m_shownProgress; ///< of the clean
    qint64 m_shownActivity = 0; ///< of the scan
};
