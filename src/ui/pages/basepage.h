#pragma once

#include "scanresult.h"

#include <QList>
#include <QPointer>
#include <QWidget>

class CategoryWidget;
class CleanEngine;
class ProgressDialog;
class QLabel;
class QPushButton;
class QScrollArea;
class QVBoxLayout;

/// The one page design of every rule-driven engine: scan, review by category, confirm, clean.
///
/// GUI thread. The category widgets are bound to the records inside the engine's result: they are
/// made when a scan has finished and deleted when a scan starts, whoever starts it, since the
/// engine then drops the records.
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
    /// Rebuilds the category list from the engine's result.
    virtual void displayResults();
    /// Deletes all category widgets.
    virtual void clearResults();
    /// Shows what is selected now and enables the clean button accordingly.
    void updateSelection();

    /// Whether the page speaks in bytes (the default) or in item counts.
    void setShowSizes(bool show) { m_showSizes = show; }
    void setTitle(const QString &text);
    void setSubtitle(const QString &text);
    void setStatisticCaption(const QString &text);
    /// Makes the dialog of a new run in the place of any earlier one and locks the buttons.
    ProgressDialog *openProgressDialog(int mode);
    [[nodiscard]] bool isEngineBusy() const;

private:
    void letGoOfResult();
    void deliverLateSignals();
    void closeProgressDialog();
    void orderFocus() const;
    [[nodiscard]] bool isResultShown() const { return !m_categoryWidgets.isEmpty(); }

    CleanEngine *m_engine = nullptr;
    bool m_showSizes = true;
    QVBoxLayout *m_layout;
    QLabel *m_icon = nullptr;
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
    QList<CategoryWidget *> m_categoryWidgets;
    QPointer<ProgressDialog> m_progressDialog;
};
