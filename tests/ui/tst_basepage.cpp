#include "basepage.h"

#include "appinfo.h"
#include "application.h"
#include "categorywidget.h"
#include "itemdetaildialog.h"
#include "junkpage.h"
#include "progressdialog.h"
#include "scriptedengine.h"
#include "signalspy.h"
#include "testhome.h"
#include "threadfault.h"
#include "uisupport.h"

#include <QApplication>
#include <QCheckBox>
#include <QDeadlineTimer>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QSettings>
#include <QStackedWidget>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using State = CleanEngine::State;

namespace {

constexpr int patience = 10'000;

/// A page that shows counts and no sizes.
class CountingPage final : public BasePage
{
public:
    CountingPage() { setShowSizes(false); }
};

QPushButton *button(const BasePage &page, const QString &name)
{
    return page.findChild<QPushButton *>(name);
}

void click(const BasePage &page, const QString &name)
{
    QTest::mouseClick(button(page, name), Qt::LeftButton);
}

QString label(const BasePage &page, const QString &name)
{
    return page.findChild<QLabel *>(name)->text();
}

ProgressDialog *dialog(const BasePage &page)
{
    for (auto *candidate : page.findChildren<ProgressDialog *>()) {
        if (candidate->isVisible())
            return candidate;
    }
    return nullptr;
}

QList<CategoryWidget *> categories(const BasePage &page)
{
    return page.findChildren<CategoryWidget *>();
}

bool isEmptyStateShown(const BasePage &page)
{
    return page.findChild<QWidget *>(u"emptyState"_s)->isVisible();
}

/// Counts how often it shows the progress of a clean.
class ProgressPage final : public BasePage
{
public:
    void onCleanProgress(int current, int total, qint64 cleanedSize) override
    {
        ++calls;
        BasePage::onCleanProgress(current, total, cleanedSize);
    }

    int calls = 0;
};

} // namespace

class TestBasePage : public QObject
{
    Q_OBJECT
public:
    explicit TestBasePage(const TestHome &) { }

private Q_SLOTS:
    void initTestCase() { Application::instance()->initialize(); }

    void init() { setConfirm(false); }

    void itStartsEmpty()
    {
        BasePage page;
        show(page);
        QVERIFY(isEmptyStateShown(page));
        QCOMPARE(label(page, u"statisticValue"_s), u"--"_s);
        QCOMPARE(label(page, u"selectionLabel"_s), u"Selected: --"_s);
        QCOMPARE(button(page, u"scanBtn"_s)->text(), u"Start Scanning"_s);
        QCOMPARE(button(page, u"cleanBtn"_s)->text(), u"Clean Now"_s);
        QVERIFY(button(page, u"scanBtn"_s)->isEnabled());
        QVERIFY(!button(page, u"cleanBtn"_s)->isEnabled());
        QVERIFY(hasText(page, u"Cleanup Tool"_s));
        QVERIFY(hasText(page, u"Scan and clean up unnecessary files"_s));
        QVERIFY(hasText(page, u"Cleanable"_s));
        QVERIFY(hasText(page, u"Click \"Start Scanning\" to find cleanable items"_s));
    }

    void withoutAnEngineTheButtonsDoNothing()
    {
        BasePage page;
        show(page);
        page.startScan();
        page.startClean();
        page.cancelOperation();
        QVERIFY(!dialog(page));
    }

    void theJunkPageHasItsTextsAndEngine()
    {
        JunkPage page;
        show(page);
        QVERIFY(hasText(page, u"Junk Cleaner"_s));
        QVERIFY(hasText(page, u"Clean system temp files, cache and logs"_s));
        QVERIFY(hasText(page, u"Cleanable Space"_s));
        QVERIFY(page.engine());
        QVERIFY(page.showsSizes());
    }

    // The percentage counts rules, and one rule may take long.
    void aSignMovesWhileTheScanWorks()
    {
        ScriptedEngine engine;
        engine.hold = true;
        engine.steps = 7; // of an earlier scan
        BasePage page;
        page.setEngine(&engine);
        show(page);
        click(page, u"scanBtn"_s);
        ProgressDialog *shown = dialog(page);
        QTRY_COMPARE_WITH_TIMEOUT(shown->findChild<QProgressBar *>()->value(), 25, patience);
        const QImage still = shown->grab().toImage();
        waitForPolls(engine);
        QCOMPARE(shown->grab().toImage(), still); // nothing is done
        ++engine.steps;
        QTRY_VERIFY_WITH_TIMEOUT(shown->grab().toImage() != still, patience);
        const QImage first = shown->grab().toImage();
        ++engine.steps;
        QTRY_VERIFY_WITH_TIMEOUT(shown->grab().toImage() != first, patience);
        for (int step = 0; step < 11; ++step)
            shown->showActivity();
        QCOMPARE(shown->grab().toImage(), first); // it has gone round once
        engine.hold = false;
    }

    void theSignIsGoneWhenTheRunHasFailed()
    {
        ProgressDialog usual(ProgressDialog::Scanning);
        ProgressDialog active(ProgressDialog::Scanning);
        active.showActivity();
        QVERIFY(active.grab().toImage() != usual.grab().toImage());
        for (ProgressDialog *one : {&usual, &active})
            one->showResult(false, u"broken"_s);
        QCOMPARE(active.grab().toImage(), usual.grab().toImage());
        active.showActivity();
        QCOMPARE(active.grab().toImage(), usual.grab().toImage());
    }

    // The scan before has read folders. A clean tells its progress for each item.
    void theDialogOfACleanHasNoSign()
    {
        ScriptedEngine engine;
        engine.found = {scriptedCategory(u"a"_s, 2)};
        BasePage page;
        showAndScan(page, engine);
        engine.hold = true;
        click(page, u"cleanBtn"_s);
        ProgressDialog *shown = dialog(page);
        QTRY_COMPARE_WITH_TIMEOUT(engine.cleans.load(), 1, patience);
        QTest::qWait(50); // the dialog is laid out
        const QImage still = shown->grab().toImage();
        ++engine.steps;
        QTest::qWait(200); // several times as long as the page waits
        QCOMPARE(shown->grab().toImage(), still);
        engine.hold = false;
    }

    void theDialogOfAScanShowsNothingOfTheCleanBefore_data()
    {
        QTest::addColumn<bool>("isCancelled");
        QTest::newRow("done") << false;
        QTest::newRow("cancelled") << true;
    }
    void theDialogOfAScanShowsNothingOfTheCleanBefore()
    {
        QFETCH(bool, isCancelled);
        ScriptedEngine engine;
        engine.found = {scriptedCategory(u"a"_s, 20'000)};
        BasePage page;
        showAndScan(page, engine);
        std::atomic_bool isThere = false;
        connect(
            &engine, &CleanEngine::cleanProgress, &engine,
            [&](int current) {
                engine.hold = isCancelled && current == 15'000;
                isThere = isThere || current == 15'000;
            },
            Qt::DirectConnection);
        const SignalSpy cleaned(&page, &BasePage::cleanFinished);
        click(page, u"cleanBtn"_s);
        QTRY_VERIFY_WITH_TIMEOUT(isThere, patience);
        if (isCancelled) {
            page.cancelOperation();
        } else {
            QTRY_COMPARE_WITH_TIMEOUT(cleaned.size(), 1, patience);
            dialog(page)->accept();
        }
        engine.hold = true;
        click(page, u"scanBtn"_s);
        const ProgressDialog *shown = dialog(page);
        QTRY_COMPARE_WITH_TIMEOUT(shown->findChild<QProgressBar *>()->value(), 25, patience);
        waitForPolls(engine);
        QCOMPARE(shown->findChild<QProgressBar *>()->value(), 25);
        QVERIFY(hasText(*shown, u"Some Files"_s));
        engine.hold = false;
    }

    void withoutADialogThePageIsNotWoken()
    {
        ScriptedEngine engine;
        engine.found = {scriptedCategory(u"a"_s, 2)};
        BasePage page;
        showAndScan(page, engine);
        const auto timers = page.findChildren<QTimer *>();
        QVERIFY(!timers.isEmpty());
        for (const QTimer *timer : timers)
            QTRY_VERIFY_WITH_TIMEOUT(!timer->isActive(), patience);
    }

    // A queued call for each item would fill the event loop.
    void theProgressOfACleanIsShownFromTimeToTime()
    {
        ScriptedEngine engine;
        engine.found = {scriptedCategory(u"a"_s, 20'000)};
        ProgressPage page;
        page.setEngine(&engine);
        show(page);
        const SignalSpy scanned(&page, &BasePage::scanFinished);
        click(page, u"scanBtn"_s);
        QTRY_COMPARE_WITH_TIMEOUT(scanned.size(), 1, patience);
        connect(
            &engine, &CleanEngine::cleanProgress, &engine,
            [&engine](int current) { engine.hold = current == 15'000; }, Qt::DirectConnection);
        const SignalSpy cleaned(&page, &BasePage::cleanFinished);
        click(page, u"cleanBtn"_s);
        const ProgressDialog *shown = dialog(page);
        QTRY_COMPARE_WITH_TIMEOUT(shown->findChild<QProgressBar *>()->value(), 75, patience);
        engine.hold = false;
        QTRY_COMPARE_WITH_TIMEOUT(cleaned.size(), 1, patience);
        QVERIFY(shown->isFinished());
        QVERIFY2(page.calls < 5'000, qPrintable(QString::number(page.calls)));
    }

    void aScanShowsTheDialogThenTheCategories()
    {
        ScriptedEngine engine;
        engine.found = {scriptedCategory(u"a"_s, 3), scriptedCategory(u"b"_s, 2)};
        engine.hold = true;
        BasePage page;
        page.setEngine(&engine);
        show(page);
        SignalSpy finished(&page, &BasePage::scanFinished);
        click(page, u"scanBtn"_s);
        QVERIFY(dialog(page));
        QVERIFY(!button(page, u"scanBtn"_s)->isEnabled());
        QVERIFY(!button(page, u"cleanBtn"_s)->isEnabled());
        QTRY_COMPARE_WITH_TIMEOUT(dialog(page)->findChild<QProgressBar *>()->value(), 25, patience);
        page.startScan(); // busy: nothing happens
        QCOMPARE(engine.scans.load(), 1);
        engine.hold = false;
        QVERIFY(finished.wait(patience));
        QVERIFY(!dialog(page));
        QCOMPARE(categories(page).size(), 2);
        QVERIFY(!isEmptyStateShown(page));
        QVERIFY(button(page, u"scanBtn"_s)->isEnabled());
        QVERIFY(button(page, u"cleanBtn"_s)->isEnabled());
        QCOMPARE(label(page, u"statisticValue"_s), u"5.0 KB"_s);
        QCOMPARE(label(page, u"selectionLabel"_s), u"Selected: 5 items, 5.0 KB"_s);
    }

    void tickingWritesIntoTheEnginesResult()
    {
        ScriptedEngine engine;
        engine.found = {scriptedCategory(u"a"_s, 3), scriptedCategory(u"b"_s, 2)};
        BasePage page;
        showAndScan(page, engine);
        categories(page).at(0)->findChild<QCheckBox *>(u"categoryCheck"_s)->click();
        QCOMPARE(engine.result().checkedCount(), 2);
        QCOMPARE(label(page, u"selectionLabel"_s), u"Selected: 2 items, 2.0 KB"_s);
        categories(page).at(1)->findChild<QCheckBox *>(u"categoryCheck"_s)->click();
        QVERIFY(!button(page, u"cleanBtn"_s)->isEnabled());
        QCOMPARE(label(page, u"statisticValue"_s), u"0 B"_s);
        categories(page).at(1)->findChild<QCheckBox *>(u"categoryCheck"_s)->click();
        QVERIFY(button(page, u"cleanBtn"_s)->isEnabled());
    }

    void aPageWithoutSizesShowsCounts()
    {
        ScriptedEngine engine;
        engine.found = {scriptedCategory(u"a"_s, 3)};
        CountingPage page;
        showAndScan(page, engine);
        QCOMPARE(label(page, u"statisticValue"_s), u"3 items"_s);
        QCOMPARE(label(page, u"selectionLabel"_s), u"Selected: 3 items"_s);
        QVERIFY(
            !categories(page).constFirst()->findChild<QLabel *>(u"categorySize"_s)->isVisible());
    }

    void aScanThatFindsNothingShowsTheEmptyState()
    {
        ScriptedEngine engine;
        BasePage page;
        showAndScan(page, engine);
        QVERIFY(isEmptyStateShown(page));
        QVERIFY(!button(page, u"cleanBtn"_s)->isEnabled());
        QVERIFY(button(page, u"scanBtn"_s)->isEnabled());
    }

    void cancelClosesTheDialogOfAScanAtOnce()
    {
        ScriptedEngine engine;
        engine.found = {scriptedCategory(u"a"_s, 3)};
        engine.hold = true;
        BasePage page;
        page.setEngine(&engine);
        show(page);
        SignalSpy finished(&page, &BasePage::scanFinished);
        click(page, u"scanBtn"_s);
        QPointer<ProgressDialog> open = dialog(page);
        QTest::mouseClick(open->findChild<QPushButton *>(u"cancelBtn"_s), Qt::LeftButton);
        QVERIFY(!open || !open->isVisible());
        QCOMPARE(engine.state(), State::Cancelled);
        QVERIFY(button(page, u"scanBtn"_s)->isEnabled());
        QVERIFY(!button(page, u"cleanBtn"_s)->isEnabled());
        engine.stopAndWait();
        QTest::qWait(50);
        QVERIFY(!open);
        QCOMPARE(finished.size(), 0);
        QVERIFY(categories(page).isEmpty());
        QVERIFY(isEmptyStateShown(page));
    }

    void resultsThatWereNeverShownAreNotCleaned()
    {
        ScriptedEngine engine;
        BasePage page;
        page.setEngine(&engine);
        show(page);
        engine.cancel();
        engine.result().categories = {scriptedCategory(u"unseen"_s, 3)};
        const MessageBoxes boxes(QMessageBox::Ok);
        page.startClean();
        QCOMPARE(boxes.seen(), QStringList{u"Notice|No items selected"_s});
        QCOMPARE(engine.cleans.load(), 0);
    }

    void withEverythingUntickedCleaningStartsNothing()
    {
        ScriptedEngine engine;
        engine.found = {scriptedCategory(u"a"_s, 3)};
        BasePage page;
        showAndScan(page, engine);
        categories(page).constFirst()->setChecked(false);
        const MessageBoxes boxes(QMessageBox::Ok);
        page.startClean();
        QCOMPARE(boxes.seen(), QStringList{u"Notice|No items selected"_s});
        QCOMPARE(engine.cleans.load(), 0);
        QVERIFY(!dialog(page));
    }

    void theQuestionCanBeDeclined()
    {
        setConfirm(true);
        ScriptedEngine engine;
        engine.found = {scriptedCategory(u"a"_s, 3)};
        BasePage page;
        showAndScan(page, engine);
        const MessageBoxes boxes(QMessageBox::No);
        click(page, u"cleanBtn"_s);
        QCOMPARE(boxes.seen(),
                 QStringList{u"Confirm Clean|Are you sure you want to clean 3 selected items?\n"
                             "This action cannot be undone!"_s});
        QCOMPARE(engine.cleans.load(), 0);
        QCOMPARE(categories(page).size(), 1);
    }

    // The worker is still at its last item. When that is done, the list is emptied.
    void nothingIsAskedAboutAListThatIsAboutToVanish()
    {
        setConfirm(false);
        ScriptedEngine engine;
        engine.found = {scriptedCategory(u"a"_s, 3)};
        BasePage page;
        showAndScan(page, engine);
        engine.hold = true;
        click(page, u"cleanBtn"_s);
        engine.canCancel = false;
        page.cancelOperation();
        setConfirm(true);
        const MessageBoxes boxes(QMessageBox::No);
        click(page, u"cleanBtn"_s);
        engine.hold = false;
        QTRY_VERIFY_WITH_TIMEOUT(categories(page).isEmpty(), patience);
        QCOMPARE(boxes.seen(), QStringList());
        QCOMPARE(engine.cleans.load(), 1);
    }

    void theQuestionIsAskedByDefault()
    {
        Application::instance()->settings()->remove(u"clean/confirmClean"_s);
        ScriptedEngine engine;
        engine.found = {scriptedCategory(u"a"_s, 3)};
        BasePage page;
        showAndScan(page, engine);
        SignalSpy cleaned(&page, &BasePage::cleanFinished);
        const MessageBoxes boxes(QMessageBox::Yes);
        click(page, u"cleanBtn"_s);
        QTRY_COMPARE_WITH_TIMEOUT(cleaned.size(), 1, patience);
        QCOMPARE(boxes.seen().size(), 1);
        QCOMPARE(engine.cleans.load(), 1);
    }

    void withoutTheQuestionCleaningStartsAtOnce()
    {
        ScriptedEngine engine;
        engine.found = {scriptedCategory(u"a"_s, 3)};
        BasePage page;
        showAndScan(page, engine);
        SignalSpy cleaned(&page, &BasePage::cleanFinished);
        const MessageBoxes boxes(QMessageBox::No);
        click(page, u"cleanBtn"_s);
        QTRY_COMPARE_WITH_TIMEOUT(cleaned.size(), 1, patience);
        QVERIFY(boxes.seen().isEmpty());
    }

    void aCleanEndsWithTheResultScreenAndAnEmptyList()
    {
        ScriptedEngine engine;
        engine.found = {scriptedCategory(u"a"_s, 3)};
        BasePage page;
        showAndScan(page, engine);
        SignalSpy cleaned(&page, &BasePage::cleanFinished);
        engine.hold = true;
        click(page, u"cleanBtn"_s);
        QVERIFY(dialog(page));
        QVERIFY(!button(page, u"scanBtn"_s)->isEnabled());
        QVERIFY(!button(page, u"cleanBtn"_s)->isEnabled());
        engine.hold = false;
        QTRY_COMPARE_WITH_TIMEOUT(cleaned.size(), 1, patience);
        ProgressDialog *open = dialog(page);
        QVERIFY(open && open->isFinished());
        QVERIFY(hasText(*open, u"Cleaned 3 items, freed 3.0 KB"_s));
        QVERIFY(button(page, u"scanBtn"_s)->isEnabled());
        QVERIFY(!button(page, u"cleanBtn"_s)->isEnabled());
        QVERIFY(categories(page).isEmpty());
        QVERIFY(isEmptyStateShown(page));
        QCOMPARE(label(page, u"statisticValue"_s), u"--"_s);
        QCOMPARE(label(page, u"selectionLabel"_s), u"Selected: --"_s);
        QTest::mouseClick(open->findChild<QPushButton *>(u"closeBtn"_s), Qt::LeftButton);
        QVERIFY(!dialog(page));
    }

    // A clean copies the ticked items when it starts. Later ticks would have no effect.
    void whileACleanRunsTheListIsLocked()
    {
        ScriptedEngine engine;
        engine.found = {scriptedCategory(u"a"_s, 3), scriptedCategory(u"b"_s, 2)};
        BasePage page;
        showAndScan(page, engine);
        categories(page).at(0)->toggleExpanded();
        QTest::qWait(0);
        const auto boxes = page.findChildren<QCheckBox *>();
        QCOMPARE(boxes.size(), 5);
        const auto clickAll = [&] {
            for (const QCheckBox *box : boxes)
                QTest::mouseClick(page.windowHandle(), Qt::LeftButton, {},
                                  box->mapTo(&page, QPoint(8, box->height() / 2)));
        };
        engine.hold = true;
        const QString before = label(page, u"selectionLabel"_s);
        click(page, u"cleanBtn"_s);
        clickAll();
        QCOMPARE(engine.result().checkedCount(), 5);
        QCOMPARE(label(page, u"selectionLabel"_s), before);
        // A cancelled clean needs a while to end.
        engine.canCancel = false;
        page.cancelOperation();
        clickAll();
        QCOMPARE(engine.result().checkedCount(), 5);
        engine.hold = false;
        QTRY_VERIFY_WITH_TIMEOUT(categories(page).isEmpty(), patience);
        // The next list can be edited.
        const SignalSpy finished(&page, &BasePage::scanFinished);
        click(page, u"scanBtn"_s);
        QVERIFY(finished.wait(patience));
        QTest::qWait(0);
        const auto *box = categories(page).at(0)->findChild<QCheckBox *>();
        QTest::mouseClick(page.windowHandle(), Qt::LeftButton, {},
                          box->mapTo(&page, QPoint(8, box->height() / 2)));
        QCOMPARE(engine.result().checkedCount(), 2);
    }

    void afterAnErrorTheListCanBeEditedAgain()
    {
        ScriptedEngine engine;
        engine.found = {scriptedCategory(u"a"_s, 3)};
        BasePage page;
        showAndScan(page, engine);
        engine.hold = true;
        click(page, u"cleanBtn"_s);
        engine.fail(u"broken"_s);
        QVERIFY(categories(page).at(0)->isEnabled());
        engine.hold = false;
        QTRY_VERIFY_WITH_TIMEOUT(categories(page).isEmpty(), patience);
    }

    void aRunWithoutAThreadShowsTheFailureAndCanBeRepeated()
    {
        ScriptedEngine engine;
        engine.found = {scriptedCategory(u"a"_s, 3)};
        BasePage page;
        page.setEngine(&engine);
        page.resize(700, 500);
        page.show();
        {
            const ThreadFault fault;
            click(page, u"scanBtn"_s);
        }
        const auto showsFailure = [&page] {
            const auto labels = dialog(page)->findChildren<QLabel *>();
            return dialog(page)->isFinished()
                && std::any_of(labels.begin(), labels.end(), [](const QLabel *label) {
                       return label->text().contains("cannot start another thread"_L1);
                   });
        };
        QVERIFY(showsFailure());
        QVERIFY(button(page, u"scanBtn"_s)->isEnabled());
        click(page, u"scanBtn"_s);
        QTRY_COMPARE_WITH_TIMEOUT(categories(page).size(), 1, patience);
        {
            const ThreadFault fault;
            click(page, u"cleanBtn"_s);
        }
        QVERIFY(showsFailure());
        const SignalSpy cleaned(&page, &BasePage::cleanFinished);
        click(page, u"cleanBtn"_s);
        QVERIFY(cleaned.wait(patience));
        QCOMPARE(engine.cleans.load(), 1);
    }

    void afterAFailedCleanTheSameListCanBeCleaned()
    {
        ScriptedEngine engine;
        engine.found = {scriptedCategory(u"a"_s, 3)};
        BasePage page;
        showAndScan(page, engine);
        engine.failsCleans = true;
        click(page, u"cleanBtn"_s);
        QTRY_VERIFY_WITH_TIMEOUT(dialog(page)->isFinished(), patience);
        QVERIFY(button(page, u"cleanBtn"_s)->isEnabled());
        engine.failsCleans = false;
        const SignalSpy cleaned(&page, &BasePage::cleanFinished);
        click(page, u"cleanBtn"_s);
        QVERIFY(cleaned.wait(patience));
        QCOMPARE(engine.cleans.load(), 2);
        QVERIFY(categories(page).isEmpty());
    }

    void aScanRightAfterACleanStillShowsItsOutcome()
    {
        ScriptedEngine engine;
        engine.found = {scriptedCategory(u"a"_s, 3)};
        BasePage page;
        showAndScan(page, engine);
        const SignalSpy cleaned(&page, &BasePage::cleanFinished);
        click(page, u"cleanBtn"_s);
        const QPointer<ProgressDialog> shown = dialog(page);
        // The clean ends, and its end waits in the event loop.
        const QDeadlineTimer deadline(patience);
        while (engine.state() != CleanEngine::State::Finished && !deadline.hasExpired())
            QThread::msleep(1);
        engine.stopAndWait();
        engine.hold = true;
        engine.startScan(); // as the dashboard does
        QVERIFY(shown && shown->isFinished());
        QVERIFY(hasText(*shown, u"Cleaned 3 items, freed 3.0 KB"_s));
        QVERIFY(button(page, u"scanBtn"_s)->isEnabled());
        QCOMPARE(cleaned.size(), 1);
        engine.hold = false;
        QTRY_COMPARE_WITH_TIMEOUT(categories(page).size(), 1, patience);
        QCOMPARE(cleaned.size(), 1);
    }

    void theDialogIsShownOnlyWithItsPage()
    {
        ScriptedEngine engine;
        engine.found = {scriptedCategory(u"a"_s, 3)};
        QStackedWidget pages;
        auto *page = new BasePage;
        pages.addWidget(page);
        pages.addWidget(new QWidget);
        pages.show();
        page->setEngine(&engine);
        const SignalSpy scanned(page, &BasePage::scanFinished);
        page->startScan();
        QVERIFY(scanned.wait(patience));
        engine.hold = true;
        page->startClean();
        const QPointer<ProgressDialog> open = dialog(*page);
        QVERIFY(open && open->isVisible());
        pages.setCurrentIndex(1);
        QVERIFY(!open->isVisible());
        pages.setCurrentIndex(0);
        QVERIFY(open->isVisible());
        // The result is shown when the user returns to the page.
        pages.setCurrentIndex(1);
        const SignalSpy cleaned(page, &BasePage::cleanFinished);
        engine.hold = false;
        QVERIFY(cleaned.wait(patience));
        QVERIFY(!open->isVisible());
        pages.setCurrentIndex(0);
        QVERIFY(open->isVisible());
        QVERIFY(open->isFinished());
        // A closed dialog does not open again.
        QTest::mouseClick(open->findChild<QPushButton *>(u"closeBtn"_s), Qt::LeftButton);
        pages.setCurrentIndex(1);
        pages.setCurrentIndex(0);
        QVERIFY(!open || !open->isVisible());
    }

    void cancelDuringACleanResetsTheList()
    {
        ScriptedEngine engine;
        engine.found = {scriptedCategory(u"a"_s, 3)};
        BasePage page;
        showAndScan(page, engine);
        SignalSpy cleaned(&page, &BasePage::cleanFinished);
        engine.hold = true;
        click(page, u"cleanBtn"_s);
        QTest::mouseClick(dialog(page)->findChild<QPushButton *>(u"cancelBtn"_s), Qt::LeftButton);
        QVERIFY(!dialog(page));
        QTRY_COMPARE_WITH_TIMEOUT(cleaned.size(), 1, patience);
        QCOMPARE(engine.state(), State::Cancelled);
        QVERIFY(!dialog(page));
        QVERIFY(categories(page).isEmpty());
        QCOMPARE(label(page, u"selectionLabel"_s), u"Selected: --"_s);
        QVERIFY(button(page, u"scanBtn"_s)->isEnabled());
        QVERIFY(!button(page, u"cleanBtn"_s)->isEnabled());
    }

    void aCancelledCleanDoesNotFinishTheNextScan()
    {
        ScriptedEngine engine;
        engine.found = {scriptedCategory(u"a"_s, 3)};
        BasePage page;
        showAndScan(page, engine);
        engine.hold = true;
        click(page, u"cleanBtn"_s);
        page.cancelOperation();
        // The signal of its end is still queued when the next scan starts.
        click(page, u"scanBtn"_s);
        ProgressDialog *open = dialog(page);
        QVERIFY(open);
        QTest::qWait(100);
        QCOMPARE(dialog(page), open);
        QVERIFY(!open->isFinished());
        QVERIFY(!button(page, u"scanBtn"_s)->isEnabled());
        engine.hold = false;
        QTRY_COMPARE_WITH_TIMEOUT(categories(page).size(), 1, patience);
    }

    void theProgressOfACancelledScanIsNotShownInTheNext()
    {
        ScriptedEngine engine;
        engine.progress = 3;
        engine.hold = true;
        BasePage page;
        page.setEngine(&engine);
        show(page);
        click(page, u"scanBtn"_s);
        while (engine.scans == 0)
            QThread::msleep(1);
        page.cancelOperation();
        engine.stopAndWait(); // its signals are queued now
        engine.progress = 1;
        click(page, u"scanBtn"_s);
        const SignalSpy shown(dialog(page)->findChild<QProgressBar *>(),
                              &QProgressBar::valueChanged);
        QTRY_COMPARE_WITH_TIMEOUT(shown.size(), 1, patience);
        QCOMPARE(shown.constFirst(), QVariantList{25});
        engine.hold = false;
    }

    // Listeners expect exactly one cleanFinished for each clean.
    void aCancelledCleanEndsOnceWhenAScanFollows_data()
    {
        QTest::addColumn<bool>("byPage");
        QTest::newRow("the page's own scan") << true;
        QTest::newRow("a scan of the engine") << false;
    }
    void aCancelledCleanEndsOnceWhenAScanFollows()
    {
        QFETCH(bool, byPage);
        ScriptedEngine engine;
        engine.found = {scriptedCategory(u"a"_s, 3)};
        BasePage page;
        showAndScan(page, engine);
        const SignalSpy cleaned(&page, &BasePage::cleanFinished);
        const SignalSpy finished(&page, &BasePage::scanFinished);
        engine.hold = true;
        click(page, u"cleanBtn"_s);
        page.cancelOperation();
        engine.stopAndWait();
        engine.hold = false;
        if (byPage)
            click(page, u"scanBtn"_s);
        else
            engine.startScan();
        QVERIFY(finished.wait(patience));
        QTest::qWait(20);
        QCOMPARE(cleaned.size(), 1);
        QCOMPARE(finished.size(), 1);
        QCOMPARE(categories(page).size(), 1);
        QVERIFY(button(page, u"cleanBtn"_s)->isEnabled());
    }

    void theWindowDoesNotWaitForACancelledCleanToEnd()
    {
        ScriptedEngine engine;
        engine.found = {scriptedCategory(u"a"_s, 3)};
        BasePage page;
        showAndScan(page, engine);
        const SignalSpy cleaned(&page, &BasePage::cleanFinished);
        engine.hold = true;
        engine.canCancel = false;
        click(page, u"cleanBtn"_s);
        page.cancelOperation();
        click(page, u"cleanBtn"_s); // a wait for the held clean would never end
        QVERIFY(!dialog(page));
        QCOMPARE(categories(page).size(), 1);
        engine.hold = false;
        QVERIFY(cleaned.wait(patience));
        QVERIFY(categories(page).isEmpty());
        QCOMPARE(engine.cleans.load(), 1);
        // The next list can be cleaned.
        const SignalSpy finished(&page, &BasePage::scanFinished);
        click(page, u"scanBtn"_s);
        QVERIFY(finished.wait(patience));
        click(page, u"cleanBtn"_s);
        QVERIFY(cleaned.wait(patience));
        QCOMPARE(engine.cleans.load(), 2);
    }

    void noCleanStartsWhileACancelledOneEnds()
    {
        ScriptedEngine engine;
        engine.found = {scriptedCategory(u"a"_s, 3)};
        BasePage page;
        showAndScan(page, engine);
        engine.hold = true;
        click(page, u"cleanBtn"_s);
        page.cancelOperation();
        click(page, u"cleanBtn"_s);
        // The end of the cancelled run empties the list.
        QTRY_VERIFY_WITH_TIMEOUT(categories(page).isEmpty(), patience);
        QCOMPARE(engine.cleans.load(), 1);
        QVERIFY(!dialog(page));
        QVERIFY(button(page, u"scanBtn"_s)->isEnabled());
        QVERIFY(!button(page, u"cleanBtn"_s)->isEnabled());
    }

    void theKeyboardGoesFromTheListToTheButtons()
    {
        ScriptedEngine engine;
        engine.found = {scriptedCategory(u"a"_s, 3), scriptedCategory(u"b"_s, 2)};
        BasePage page;
        showAndScan(page, engine);
        QTRY_VERIFY(categories(page).constLast()->isVisible());
        QList<QWidget *> expected;
        for (const CategoryWidget *category : categories(page))
            expected += category->focusChain();
        expected += {button(page, u"scanBtn"_s), button(page, u"cleanBtn"_s)};
        for (qsizetype i = 1; i < expected.size(); ++i)
            QCOMPARE(nextByTab(expected.at(i - 1)), expected.at(i));
    }

    void aScanStartedElsewhereClearsTheList()
    {
        ScriptedEngine engine;
        engine.found = {scriptedCategory(u"a"_s, 30)};
        BasePage page;
        showAndScan(page, engine);
        categories(page).constFirst()->toggleExpanded();
        engine.hold = true;
        engine.startScan();
        QVERIFY(categories(page).isEmpty());
        QVERIFY(isEmptyStateShown(page));
        engine.hold = false;
        QTRY_COMPARE_WITH_TIMEOUT(categories(page).size(), 1, patience);
    }

    void anEngineErrorIsShown()
    {
        ScriptedEngine engine;
        engine.hold = true;
        BasePage page;
        page.setEngine(&engine);
        show(page);
        click(page, u"scanBtn"_s);
        engine.fail(u"the attic is locked"_s);
        QVERIFY(dialog(page)->isFinished());
        QVERIFY(hasText(*dialog(page), u"the attic is locked"_s));
        QVERIFY(button(page, u"scanBtn"_s)->isEnabled());
        QVERIFY(!button(page, u"cleanBtn"_s)->isEnabled());
    }

    void aSecondEngineReplacesTheFirst()
    {
        ScriptedEngine first;
        first.found = {scriptedCategory(u"a"_s, 3)};
        ScriptedEngine second;
        BasePage page;
        showAndScan(page, first);
        SignalSpy finished(&page, &BasePage::scanFinished);
        SignalSpy firstFinished(&first, &CleanEngine::scanFinished);
        page.setEngine(&second);
        QVERIFY(categories(page).isEmpty());
        QVERIFY(!button(page, u"cleanBtn"_s)->isEnabled());
        first.startScan();
        QVERIFY(firstFinished.wait(patience));
        QTest::qWait(20);
        QCOMPARE(finished.size(), 0);
        QVERIFY(categories(page).isEmpty());
    }

    void aQueuedSignalOfTheFirstEngineIsDropped()
    {
        ScriptedEngine first;
        first.found = {scriptedCategory(u"a"_s, 3)};
        ScriptedEngine second;
        BasePage page;
        showAndScan(page, first);
        SignalSpy cleaned(&page, &BasePage::cleanFinished);
        first.startClean();
        while (first.state() != State::Finished)
            QThread::msleep(1);
        first.stopAndWait(); // cleanFinished is queued for the page now
        page.setEngine(&second);
        QTest::qWait(30);
        QCOMPARE(cleaned.size(), 0);
    }

    void anotherEngineCanCleanWhileTheFirstIsEnding()
    {
        ScriptedEngine first;
        first.found = {scriptedCategory(u"a"_s, 3)};
        ScriptedEngine second;
        second.found = {scriptedCategory(u"b"_s, 2)};
        BasePage page;
        showAndScan(page, first);
        first.hold = true;
        first.canCancel = false;
        click(page, u"cleanBtn"_s);
        page.cancelOperation();
        const SignalSpy cleaned(&page, &BasePage::cleanFinished);
        showAndScan(page, second);
        QCOMPARE(cleaned.size(), 0);
        click(page, u"cleanBtn"_s);
        QVERIFY(cleaned.wait(patience));
        QCOMPARE(second.cleans.load(), 1);
    }

    void aNewRunReplacesTheResultScreenOfTheLast()
    {
        ScriptedEngine engine;
        engine.found = {scriptedCategory(u"a"_s, 3)};
        BasePage page;
        showAndScan(page, engine);
        SignalSpy cleaned(&page, &BasePage::cleanFinished);
        click(page, u"cleanBtn"_s);
        QTRY_COMPARE_WITH_TIMEOUT(cleaned.size(), 1, patience);
        QPointer<ProgressDialog> old = dialog(page);
        engine.hold = true;
        click(page, u"scanBtn"_s);
        QTRY_VERIFY(!old);
        QVERIFY(dialog(page));
        engine.hold = false;
        QTRY_COMPARE_WITH_TIMEOUT(categories(page).size(), 1, patience);
    }

private:
    static void setConfirm(bool on)
    {
        Application::instance()->settings()->setValue("clean/confirmClean"_L1, on);
    }

    static bool hasText(const QWidget &widget, const QString &text)
    {
        for (const auto *candidate : widget.findChildren<QLabel *>()) {
            if (candidate->text() == text)
                return true;
        }
        return false;
    }

    static void show(BasePage &page)
    {
        page.resize(700, 560);
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
    }

    /// Waits until the page has looked at the work of a scan several times.
    static void waitForPolls(const ScriptedEngine &engine)
    {
        const int before = engine.questions;
        QTRY_VERIFY_WITH_TIMEOUT(engine.questions >= before + 3, patience);
    }

    static void showAndScan(BasePage &page, ScriptedEngine &engine)
    {
        page.setEngine(&engine);
        show(page);
        SignalSpy finished(&page, &BasePage::scanFinished);
        click(page, u"scanBtn"_s);
        QVERIFY(finished.wait(patience));
    }
};

SWEEPWISE_TEST_MAIN(TestBasePage, QApplication)
#include "tst_basepage.moc"
