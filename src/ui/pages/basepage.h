#pragma once

#include "cleanengine.h"
#include "focuskeeper.h"
#include "scanresult.h"

#include <QList>
#include <QPointer>
#include <QWidget>

#include <memory>

class ProgressDialog;
class ResultWidget;
class QLabel;
class QPushButton;
class QScrollArea;
class QVBoxLayout;

/// The one page design of every rule-driven engine: scan, review by category, confirm, clean.
///
/// GUI thread. The result widgets are bound to the records inside the engine's result: they are
/// made when a scan has finished and deleted when a scan starts, whoever starts it, since the
/// engine then drops the records. From the start of a clean to its end they are locked.
class BasePage : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(BasePage)
public:
    explicit BasePage(QWidget *parent = nullptr);
    ~BasePage() override;

    /// Attaches @p engine, which is not owned and must outlive the page; the one before is let go.
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
    /// Sets all texts. Subclasses call it and then replace title, subtitle and statistic caption.
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
    /// Makes the widgets of a result that is not empty, with @p parent; here one a category.
    [[nodiscard]] virtual QList<ResultWidget *> makeResultWidgets(QList<CleanCategory> &categories,
                                                                  QWidget *parent);
    /// Puts @p bar, which holds controls in the order of the eye, above the result list.
    void insertTopBar(QWidget *bar);
    /// Deletes all result widgets.
    virtual void clearResults();
    /// Shows what is selected now and enables the clean button accordingly.
    void updateSelection();

    /// Whether the page speaks in bytes (the default) or in item counts.
    void setShowSizes(bool show) { m_showSizes = show; }
    void setTitle(const QString &text);
    void setSubtitle(const QString &text);
    void setStatisticCaption(const QString &text);
    /// What stands in the place of the selection while there is none.
    void setNoSelectionText(const QString &text);
    /// How many items would be cleaned now. Only what is listed can have been chosen: a scan that
    /// was cancelled leaves records that nobody has seen.
    [[nodiscard]] int chosenCount() const;
    /// Whether what is listed may be cleaned now.
    [[nodiscard]] bool canClean() const;
    /// The end of every way to start a clean: opens the dialog and starts the engine, unless what
    /// is listed may not be cleaned any more.
    void runClean();
    /// Makes the dialog of a new run in the place of any earlier one and locks the buttons.
    ProgressDialog *openProgressDialog(int mode);
    [[nodiscard]] bool isEngineBusy() const;

private:
    void onStateChanged(CleanEngine::State state);
    void releaseResult();
    /// While a clean runs, the ticks on the screen mean nothing any more.
    void setLocked(bool locked);
    void closeProgressDialog();
    void orderFocus() const;
    [[nodiscard]] bool isResultShown() const { return !m_resultWidgets.isEmpty(); }

    CleanEngine *m_engine = nullptr;
    std::unique_ptr<QObject> m_runReceiver; ///< of its signals
    bool m_isCleanPending = false; ///< one has begun; the page has not heard of its end
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
    QWidget *m_topBar = nullptr; ///< above the list, if a subclass has one
    QWidget *m_lastBarControl = nullptr; ///< of it to take the focus
    QPointer<ProgressDialog> m_progressDialog;
};
