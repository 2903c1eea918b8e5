#include "basepage.h"

#include "application.h"
#include "ask.h"
#include "categorywidget.h"
#include "options.h"
#include "parts.h"
#include "svglabel.h"
#include "theme.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QSettings>
#include <QVBoxLayout>

#include <functional>
#include <utility>

using namespace Qt::StringLiterals;

BasePage::BasePage(QWidget *parent)
    : QWidget(parent)
    , m_layout(new QVBoxLayout(this))
{
    m_layout->setContentsMargins(28, 8, 28, 20);
    m_layout->setSpacing(16);
    BasePage::setupHeader();
    BasePage::setupContent();
    BasePage::setupFooter();
    BasePage::retranslateUi();
    m_progressTimer.setInterval(50);
    connect(&m_progressTimer, &QTimer::timeout, this, &BasePage::showProgress);
}

BasePage::~BasePage() = default;

void BasePage::setEngine(CleanEngine *engine)
{
    m_runReceiver.reset();
    closeProgressDialog();
    releaseResult();
    m_scanButton->setEnabled(true);
    m_engine = engine;
    m_isCleanPending = false;
    if (!engine)
        return;
    m_runReceiver = engine->makeRunReceiver();
    const auto listen = [this](auto signal, auto slot) {
        connect(m_engine, signal, m_runReceiver.get(), std::bind_front(slot, this));
    };
    listen(&CleanEngine::stateChanged, &BasePage::onStateChanged);
    listen(&CleanEngine::scanProgress, &BasePage::onScanProgress);
    listen(&CleanEngine::scanFinished, &BasePage::onScanFinished);
    listen(&CleanEngine::cleanFinished, &BasePage::onCleanFinished);
    listen(&CleanEngine::errorOccurred, &BasePage::onEngineError);
}

void BasePage::setupHeader()
{
    auto *header = new QHBoxLayout;
    header->setSpacing(16);
    auto *icon = new SvgLabel(this);
    icon->setObjectName("pageIcon"_L1);
    icon->setFixedSize(48, 48);
    icon->setSvg(u":/icons/trash.svg"_s, {26, 26}, theme::color(theme::accent));
    header->addWidget(icon);

    auto *titles = new QVBoxLayout;
    titles->setSpacing(2);
    m_title = parts::label({}, theme::label(theme::text, 24, 600), this);
    m_subtitle = parts::label({}, theme::label(theme::muted, 14), this);
    for (QLabel *label : {m_title, m_subtitle})
        label->setIndent(2); // a bold letter such as J begins left of its origin
    titles->addWidget(m_title);
    titles->addWidget(m_subtitle);
    header->addLayout(titles, 1);

    auto *statistic = new QVBoxLayout;
    statistic->setSpacing(2);
    m_statisticCaption = parts::label({}, theme::label(theme::muted, 13), this);
    m_statisticValue = parts::label(u"--"_s, theme::label(theme::accentText, 24, 700), this);
    m_statisticValue->setObjectName("statisticValue"_L1);
    for (QLabel *label : {m_statisticCaption, m_statisticValue}) {
        label->setAlignment(Qt::AlignRight);
        statistic->addWidget(label);
    }
    header->addLayout(statistic);
    m_layout->addLayout(header);
}

void BasePage::setupContent()
{
    m_scrollArea = parts::verticalScrollArea(u"contentScrollArea"_s, this);

    auto *list = new QWidget(m_scrollArea);
    list->setObjectName("categoryList"_L1);
    m_listLayout = new QVBoxLayout(list);
    m_listLayout->setContentsMargins(0, 0, 8, 0);
    m_listLayout->setSpacing(10);

    m_emptyState = new QWidget(list);
    m_emptyState->setObjectName("emptyState"_L1);
    auto *emptyLayout = new QVBoxLayout(m_emptyState);
    QLabel *emptyIcon = parts::centredLabel(u"🔍"_s, theme::uncolouredLabel(48), m_emptyState);
    m_emptyText = parts::centredLabel({}, theme::label(theme::faint, 14), m_emptyState);
    m_emptyText->setWordWrap(true);
    emptyLayout->addStretch();
    emptyLayout->addWidget(emptyIcon);
    emptyLayout->addWidget(m_emptyText);
    emptyLayout->addStretch();
    m_listLayout->addWidget(m_emptyState);

    m_scrollArea->setWidget(list);
    list->setAutoFillBackground(false);
    m_layout->addWidget(m_scrollArea, 1);
}

void BasePage::setupFooter()
{
    auto *footer = new QHBoxLayout;
    footer->setSpacing(12);
    m_selection = parts::label({}, theme::label(theme::muted, 13), this);
    m_selection->setObjectName("selectionLabel"_L1);
    footer->addWidget(m_selection, 1);

    m_scanButton = parts::tabButton(u"scanBtn"_s, {},
                                    theme::filledButton({.background = theme::accent,
                                                         .hovered = theme::accentHover,
                                                         .radius = theme::buttonRadius,
                                                         .fontSize = 14,
                                                         .padding = u"0 22px"_s}),
                                    this);
    m_cleanButton = parts::tabButton(u"cleanBtn"_s, {},
                                     theme::filledButton({.background = theme::danger,
                                                          .hovered = theme::dangerHover,
                                                          .radius = theme::buttonRadius,
                                                          .fontSize = 14,
                                                          .padding = u"0 22px"_s}),
                                     this);
    m_cleanButton->setEnabled(false);
    for (QPushButton *button : {m_scanButton, m_cleanButton}) {
        button->setMinimumHeight(44);
        footer->addWidget(button);
    }
    connect(m_scanButton, &QPushButton::clicked, this, &BasePage::startScan);
    connect(m_cleanButton, &QPushButton::clicked, this, &BasePage::startClean);
    m_layout->addLayout(footer);
}

void BasePage::retranslateUi()
{
    setTitle(tr("Cleanup Tool"));
    setSubtitle(tr("Scan and clean up unnecessary files"));
    setStatisticCaption(tr("Cleanable"));
    m_emptyText->setText(tr("Click \"Start Scanning\" to find cleanable items"));
    m_scanButton->setText(tr("Start Scanning"));
    m_cleanButton->setText(tr("Clean Now"));
    if (isResultShown())
        updateSelection();
    else
        setNoSelectionText(tr("Selected: --"));
}

void BasePage::setNoSelectionText(const QString &text)
{
    m_noSelectionText = text;
    if (!isResultShown())
        m_selection->setText(text);
}

void BasePage::setTitle(const QString &text)
{
    m_title->setText(text);
}

void BasePage::setSubtitle(const QString &text)
{
    m_subtitle->setText(text);
}

void BasePage::setStatisticCaption(const QString &text)
{
    m_statisticCaption->setText(text);
}

bool BasePage::isEngineBusy() const
{
    return m_engine->state() == CleanEngine::State::Scanning
        || m_engine->state() == CleanEngine::State::Cleaning;
}

void BasePage::startScan()
{
    if (!m_engine || isEngineBusy())
        return;
    openProgressDialog(ProgressDialog::Scanning);
    m_engine->startScan();
}

void BasePage::startClean()
{
    if (!canAskToClean())
        return;
    const int count = chosenCount();
    if (count == 0) {
        ask::notice(this, tr("Notice"), tr("No items selected"));
        return;
    }
    const bool confirm = options::isOn(*Application::instance()->settings(), options::confirmClean);
    const auto askToClean = [this, count] {
        return ask::question(this, tr("Confirm Clean"),
                             tr("Are you sure you want to clean %1 selected items?\n"
                                "This action cannot be undone!")
                                 .arg(count));
    };
    if (confirm && !askToClean())
        return;
    runClean();
}

Selection BasePage::shownSelection() const
{
    Selection sum;
    for (const ResultWidget *widget : m_resultWidgets)
        sum += widget->selection();
    return sum;
}

int BasePage::chosenCount() const
{
    return isResultShown() ? std::as_const(*m_engine).result().checkedCount() : 0;
}

void BasePage::runClean()
{
    if (!canClean())
        return;
    openProgressDialog(ProgressDialog::Cleaning);
    m_engine->startClean();
}

// A scan from another page may have removed the list while a question was open. After a cancelled
// clean, part of the listed items no longer exists. The end of that clean empties the list when it
// arrives.
bool BasePage::canClean() const
{
    return canAskToClean() && isResultShown();
}

bool BasePage::canAskToClean() const
{
    return m_engine && !isEngineBusy() && !m_isCleanPending;
}

void BasePage::onStateChanged(CleanEngine::State state)
{
    if (state == CleanEngine::State::Cleaning)
        m_isCleanPending = true;
    if (state != CleanEngine::State::Scanning)
        return;
    if (!m_isCleanPending) {
        releaseResult();
        return;
    }
    // The scan has dropped the end of a clean.
    onCleanFinished(m_engine->cleanedSize(), m_engine->cleanedCount());
}

ProgressDialog *BasePage::openProgressDialog(ProgressDialog::Mode mode)
{
    m_focus.keep(this, [this, mode] {
        m_scanButton->setEnabled(false);
        m_cleanButton->setEnabled(false);
        setLocked(mode == ProgressDialog::Cleaning);
    });
    closeProgressDialog();
    m_progressDialog = new ProgressDialog(mode, this);
    connect(m_progressDialog, &ProgressDialog::cancelRequested, this, &BasePage::cancelOperation);
    m_progressDialog->showWith(this);
    m_shownProgress = {};
    m_shownActivity = m_engine->activity();
    m_progressTimer.start();
    return m_progressDialog;
}

void BasePage::showProgress()
{
    ProgressDialog *dialog = m_progressDialog;
    if (!dialog || dialog->isFinished()) {
        m_progressTimer.stop();
        return;
    }
    if (dialog->mode() == ProgressDialog::Cleaning) {
        const CleanProgress latest = m_engine->latestProgress();
        if (std::exchange(m_shownProgress, latest) != latest)
            onCleanProgress(latest.current, latest.total, latest.cleanedSize);
        return;
    }
    const qint64 activity = m_engine->activity();
    if (std::exchange(m_shownActivity, activity) != activity)
        dialog->showActivity();
}

void BasePage::closeProgressDialog()
{
    if (!m_progressDialog)
        return;
    m_progressDialog->hide();
    m_progressDialog->deleteLater();
    m_progressDialog.clear();
}

void BasePage::cancelOperation()
{
    if (m_engine)
        m_engine->cancel();
    closeProgressDialog();
    m_scanButton->setEnabled(true);
    // The list decides, because a worker that is stopping still uses the result of the engine.
    m_cleanButton->setEnabled(isResultShown());
    m_focus.restore(m_scanButton);
}

void BasePage::onScanProgress(int current, int total, QString currentPath)
{
    if (!m_progressDialog)
        return;
    m_progressDialog->setProgress(current, total);
    m_progressDialog->setDetail(currentPath);
}

void BasePage::onScanFinished(ScanResult)
{
    if (m_progressDialog) {
        m_progressDialog->hide();
        delete m_progressDialog.data();
    }
    // Removes the dialog from the screen first, because building the list may take a while.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    // An event may have started the next run, whose records are different.
    if (isEngineBusy())
        return;
    m_scanButton->setEnabled(true);
    m_cleanButton->setEnabled(!std::as_const(*m_engine).result().categories.isEmpty());
    displayResults();
    updateSelection();
    m_focus.restore(m_scanButton);
    Q_EMIT scanFinished();
}

void BasePage::displayResults()
{
    clearResults();
    if (!m_engine || std::as_const(*m_engine).result().categories.isEmpty()) {
        m_emptyState->show();
        return;
    }
    m_emptyState->hide();
    m_resultWidgets =
        makeResultWidgets(m_engine->result().categories, m_emptyState->parentWidget());
    for (ResultWidget *widget : std::as_const(m_resultWidgets)) {
        widget->setShowSizes(m_showSizes);
        connect(widget, &ResultWidget::selectionChanged, this, &BasePage::updateSelection);
        m_listLayout->addWidget(widget);
    }
    m_listLayout->addStretch();
    orderFocus();
}

QList<ResultWidget *> BasePage::makeResultWidgets(QList<CleanCategory> &categories, QWidget *parent)
{
    QList<ResultWidget *> widgets;
    for (CleanCategory &category : categories)
        widgets.append(new CategoryWidget(&category, parent));
    return widgets;
}

void BasePage::insertTopBar(QWidget *bar)
{
    m_topBar = bar;
    m_layout->insertWidget(1, bar);
    const auto controls = bar->findChildren<QWidget *>();
    for (QWidget *control : controls) {
        if (control->focusPolicy() != Qt::NoFocus)
            m_lastBarControl = control;
    }
    orderFocus();
}

// The list is created after the buttons but stands above them.
void BasePage::orderFocus() const
{
    QWidget *previous = m_lastBarControl;
    const auto append = [&previous](QWidget *next) {
        if (previous)
            setTabOrder(previous, next);
        previous = next;
    };
    for (const ResultWidget *widget : m_resultWidgets) {
        for (QWidget *control : widget->focusChain())
            append(control);
    }
    append(m_scanButton);
    append(m_cleanButton);
}

void BasePage::clearResults()
{
    qDeleteAll(m_resultWidgets);
    m_resultWidgets.clear();
    while (m_listLayout->count() > 1)
        delete m_listLayout->takeAt(1);
}

void BasePage::updateSelection()
{
    if (!m_engine)
        return;
    const auto [count, bytes] = shownSelection();
    if (m_showSizes) {
        const QString size = formatSize(bytes);
        m_statisticValue->setText(size);
        m_selection->setText(tr("Selected: %1 items, %2").arg(QString::number(count), size));
    } else {
        m_statisticValue->setText(tr("%1 items").arg(count));
        m_selection->setText(tr("Selected: %1 items").arg(count));
    }
    m_cleanButton->setEnabled(count >= 1 && !isEngineBusy());
}

void BasePage::onCleanProgress(int current, int total, qint64 cleanedSize)
{
    if (!m_progressDialog)
        return;
    m_progressDialog->setProgress(current, total);
    m_progressDialog->setCleanedSize(cleanedSize);
}

void BasePage::onCleanFinished(qint64 totalCleaned, int itemsCleaned)
{
    // After a clean that was cancelled the dialog may be that of the next scan.
    ProgressDialog *dialog = m_progressDialog;
    const bool isScanOpen = dialog && dialog->mode() == ProgressDialog::Scanning;
    if (dialog && !isScanOpen)
        dialog->showResult(true,
                           tr("Cleaned %1 items, freed %2")
                               .arg(QString::number(itemsCleaned), formatSize(totalCleaned)));
    m_isCleanPending = false;
    releaseResult();
    if (!isScanOpen) {
        m_scanButton->setEnabled(true);
        m_focus.restore(m_scanButton);
    }
    Q_EMIT cleanFinished();
}

void BasePage::onEngineError(QString error)
{
    if (m_progressDialog)
        m_progressDialog->showResult(false, error);
    m_isCleanPending = false;
    setLocked(false);
    m_scanButton->setEnabled(true);
    m_cleanButton->setEnabled(isResultShown());
    m_focus.restore(m_scanButton);
}

void BasePage::setLocked(bool locked)
{
    m_scrollArea->widget()->setEnabled(!locked);
    if (m_topBar)
        m_topBar->setEnabled(!locked);
}

void BasePage::releaseResult()
{
    clearResults();
    setLocked(false);
    m_emptyState->show();
    m_cleanButton->setEnabled(false);
    m_statisticValue->setText(u"--"_s);
    m_selection->setText(m_noSelectionText);
}
