#include "largefilepage.h"

#include "accessible.h"
#include "appinfo.h"
#include "application.h"
#include "filecard.h"
#include "filecardlist.h"
#include "logcapture.h"
#include "progressdialog.h"
#include "scanprogressdialog.h"
#include "signalspy.h"
#include "testhome.h"
#include "testtree.h"
#include "threadfault.h"
#include "uisupport.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QInputDialog>
#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QScopeGuard>
#include <QScrollBar>
#include <QSemaphore>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 20'000;
constexpr qint64 gibibyte = 1'073'741'824;

DriveInfo drive(const QString &root, int usedPercent = 50)
{
    return {root, u"Data"_s, false, 100 * gibibyte, (100 - usedPercent) * gibibyte};
}

template<class Widget = QLabel>
Widget *find(const QWidget &parent, const QString &name)
{
    auto *found = parent.findChild<Widget *>(name);
    if (!found)
        qFatal("there is no %s", qPrintable(name));
    return found;
}

QString text(const QWidget &parent, const QString &name)
{
    return find(parent, name)->text();
}

bool hasText(const QWidget &widget, const QString &text)
{
    const auto labels = widget.findChildren<QLabel *>();
    return std::any_of(labels.begin(), labels.end(),
                       [&text](const QLabel *label) { return label->text() == text; });
}

QList<FileCard *> cards(const LargeFilePage &page)
{
    return find<FileCardList>(page, u"fileCardList"_s)->cards();
}

ScanProgressDialog *dialog(const LargeFilePage &page)
{
    for (auto *candidate : page.findChildren<ScanProgressDialog *>()) {
        if (candidate->isVisible())
            return candidate;
    }
    return nullptr;
}

bool areResultsShown(const LargeFilePage &page)
{
    return find<QWidget>(page, u"resultsView"_s)->isVisible();
}

void show(QWidget &page)
{
    page.resize(710, 600);
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
}

void click(const QWidget &page, const QString &name)
{
    QTest::mouseClick(find<QPushButton>(page, name), Qt::LeftButton);
}

void makeSparse(const QString &path, qint64 size)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || !file.resize(size))
        qFatal("cannot write %s", qPrintable(path));
}

/// Ticks the only drive, sets the minimum size in bytes and scans to the end.
void scan(LargeFilePage &page, qint64 minimum = 1)
{
    page.findChild<DriveCard *>()->checkBox()->setChecked(true);
    auto *combo = find<QComboBox>(page, u"sizeCombo"_s);
    combo->setItemData(combo->currentIndex(), minimum);
    const SignalSpy finished(page.scanner(), &LargeFileScanner::scanFinished);
    click(page, u"startScanBtn"_s);
    QVERIFY(finished.wait(patience));
}

/// Answers the next input dialog: accepts it with this value, or rejects it.
void answerNumber(int value, bool accept, QStringList &seen)
{
    QTimer::singleShot(100, qApp, [value, accept, &seen] {
        auto *box = qobject_cast<QInputDialog *>(QApplication::activeModalWidget());
        if (!box)
            qFatal("no input dialog is open");
        seen.append(u"%1|%2|%3|%4|%5|%6"_s.arg(
            box->windowTitle(), box->labelText(), QString::number(box->intValue()),
            QString::number(box->intMinimum()), QString::number(box->intMaximum()),
            QString::number(box->intStep())));
        box->setIntValue(value);
        if (accept)
            box->accept();
        else
            box->reject();
    });
}

/// Measures the longest time between two passes of the event loop, in milliseconds.
class Stalls final
{
    Q_DISABLE_COPY_MOVE(Stalls)
public:
    Stalls()
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer,
                         [this] { longest = std::max(longest, m_sinceLast.restart()); });
        m_sinceLast.start();
        m_timer.start(0);
    }
    /// Starts again, so that the time of the test's own work is not counted.
    void restart()
    {
        longest = 0;
        m_sinceLast.restart();
    }
    qint64 longest = 0;

private:
    QTimer m_timer;
    QElapsedTimer m_sinceLast;
};

} // namespace

class TestLargeFilePage : public QObject
{
    Q_OBJECT
public:
    explicit TestLargeFilePage(const TestHome &) { }

private Q_SLOTS:
    void initTestCase() { Application::instance()->initialize(); }

    // --- without a thread

    void aScanWithoutAThreadShowsAWarning()
    {
        const TestTree tree;
        LargeFilePage page({drive(tree.path())});
        show(page);
        page.findChild<DriveCard *>()->checkBox()->setChecked(true);
        MessageBoxes boxes(QMessageBox::Ok);
        {
            const ThreadFault fault;
            click(page, u"startScanBtn"_s);
        }
        QCOMPARE(boxes.seen().size(), 1);
        QVERIFY(boxes.seen().constFirst().startsWith("Operation Failed|"_L1));
        QVERIFY(boxes.seen().constFirst().contains("thread"_L1));
        QVERIFY(!dialog(page));
        QVERIFY(!areResultsShown(page));
    }

    void aDeletionWithoutAThreadShowsOneWarning()
    {
        const TestTree tree;
        makeSparse(tree.path(u"a"_s), 1536);
        LargeFilePage page({drive(tree.path())});
        show(page);
        scan(page);
        cards(page).constFirst()->checkBox()->setChecked(true);
        MessageBoxes boxes(QMessageBox::Yes);
        {
            const ThreadFault fault;
            click(page, u"deleteBtn"_s);
        }
        QTRY_COMPARE_WITH_TIMEOUT(boxes.seen().size(), 2, patience);
        QVERIFY(boxes.seen().constLast().startsWith("Operation Failed|"_L1));
        QCOMPARE(cards(page).size(), 1);
        QVERIFY(find<QPushButton>(page, u"deleteBtn"_s)->isEnabled());
        QVERIFY(QFile::exists(tree.path(u"a"_s)));
    }

    void recordsAreFreedWithoutAThread()
    {
        LargeFileModel model;
        model.setFiles({LargeFileInfo(), LargeFileInfo()});
        {
            const ThreadFault fault;
            model.setFiles({});
        }
        QCOMPARE(model.rowCount(), 0);
    }

    // --- the selection view

    void theSelectionViewHasItsTexts()
    {
        LargeFilePage page({drive(u"C:/"_s)});
        show(page);
        QVERIFY(!areResultsShown(page));
        for (const QString &label :
             {u"Find Large Files"_s, u"Scan and clean files that take up a lot of disk space"_s,
              u"Select Scan Location"_s, u"Minimum File Size:"_s})
            QVERIFY2(hasText(page, label), qPrintable(label));
        QCOMPARE(find<QPushButton>(page, u"startScanBtn"_s)->text(), u"🔍 Start Scan"_s);
        QCOMPARE(find<QPushButton>(page, u"startScanBtn"_s)->size(), QSize(140, 48));
        const auto *combo = find<QComboBox>(page, u"sizeCombo"_s);
        QCOMPARE(combo->size(), QSize(140, 36));
        QStringList items;
        for (int i = 0; i < combo->count(); ++i)
            items.append(u"%1=%2"_s.arg(combo->itemText(i), combo->itemData(i).toString()));
        QCOMPARE(items,
                 (QStringList{u"50 MB=52428800"_s, u"100 MB=104857600"_s, u"200 MB=209715200"_s,
                              u"500 MB=524288000"_s, u"1 GB=1073741824"_s, u"Custom...=-1"_s}));
        QCOMPARE(combo->currentText(), u"100 MB"_s);
    }

    void driveCardsStandInRowsOfFour()
    {
        QList<DriveInfo> drives;
        for (int i = 0; i < 6; ++i)
            drives.append(drive(QChar(u'C' + i) + u":/"_s));
        LargeFilePage page(drives);
        show(page);
        const auto found = page.findChildren<DriveCard *>();
        QCOMPARE(found.size(), 6);
        for (int i = 0; i < 6; ++i) {
            QCOMPARE(found.at(i)->objectName(), u"driveCard"_s);
            QCOMPARE(found.at(i)->size(), QSize(140, 110));
            QCOMPARE(found.at(i)->x() - found.at(0)->x(), (i % 4) * 152);
            QCOMPARE(found.at(i)->y() - found.at(0)->y(), (i / 4) * 122);
        }
    }

    void aDriveCardShowsItsDrive()
    {
        DriveCard card({u"D:/"_s, u"Photographs"_s, true, 4 * gibibyte, 3 * gibibyte});
        QVERIFY(hasText(card, u"🔌"_s));
        QVERIFY(hasText(card, u"D:"_s));
        QCOMPARE(text(card, u"driveName"_s), u"Photogra... 📱"_s);
        QCOMPARE(find(card, u"driveName"_s)->toolTip(), u"Photographs (Removable)"_s);
        QCOMPARE(text(card, u"driveUsage"_s), u"1.00 GB/4.00 GB"_s);
        QCOMPARE(card.property("checkBox").value<QWidget *>(), card.checkBox());

        DriveCard plain({u"C:/"_s, QString(), false, 0, 0});
        QVERIFY(hasText(plain, u"💾"_s));
        QCOMPARE(text(plain, u"driveName"_s), u"Local Disk"_s);
        QCOMPARE(find(plain, u"driveName"_s)->toolTip(), u"Local Disk"_s);
        QVERIFY(!plain.findChild<QProgressBar *>());
        DriveCard ten({u"C:/"_s, u"1234567890"_s, false, 1, 0});
        QCOMPARE(text(ten, u"driveName"_s), u"1234567890"_s);
    }

    void theUsageBarWarnsInColour_data()
    {
        QTest::addColumn<int>("used");
        QTest::addColumn<QString>("colour");
        QTest::newRow("70 percent is green") << 70 << u"#10b981"_s;
        QTest::newRow("71 percent is amber") << 71 << u"#f59e0b"_s;
        QTest::newRow("75 percent is amber") << 75 << u"#f59e0b"_s;
        QTest::newRow("90 percent is amber") << 90 << u"#f59e0b"_s;
        QTest::newRow("91 percent is red") << 91 << u"#ef4444"_s;
        QTest::newRow("100 percent is red") << 100 << u"#ef4444"_s;
    }

    void theUsageBarWarnsInColour()
    {
        QFETCH(int, used);
        QFETCH(QString, colour);
        LargeFilePage page({drive(u"C:/"_s, used)});
        show(page);
        auto *bar = page.findChild<DriveCard *>()->findChild<QProgressBar *>();
        QCOMPARE(bar->value(), used);
        QCOMPARE(bar->height(), 4);
        QCOMPARE(bar->grab().toImage().pixelColor(bar->width() / 4, 2).name(), colour);
    }

    void aClickAnywhereOnADriveCardTogglesIt()
    {
        LargeFilePage page({drive(u"C:/"_s)});
        show(page);
        auto *card = page.findChild<DriveCard *>();
        QVERIFY(!card->checkBox()->isChecked());
        QTest::mouseClick(card, Qt::LeftButton, {}, {100, 90});
        QVERIFY(card->checkBox()->isChecked());
        QTest::mouseClick(find(*card, u"driveName"_s), Qt::LeftButton);
        QVERIFY(!card->checkBox()->isChecked());
        QTest::mouseClick(card->checkBox(), Qt::LeftButton, {}, {8, 8});
        QVERIFY(card->checkBox()->isChecked());
        QTest::mouseClick(card, Qt::RightButton);
        QVERIFY(card->checkBox()->isChecked());
        QTest::keyClick(card->checkBox(), Qt::Key_Space);
        QVERIFY(!card->checkBox()->isChecked());
    }

    void withoutADriveAWarningAppearsAndNoScanStarts()
    {
        LargeFilePage page({drive(u"C:/"_s), drive(u"D:/"_s)});
        show(page);
        const SignalSpy started(page.scanner(), &LargeFileScanner::scanStarted);
        const MessageBoxes boxes(QMessageBox::Ok);
        click(page, u"startScanBtn"_s);
        QCOMPARE(boxes.seen(), QStringList{u"Tip|Please select at least one drive to scan."_s});
        QCOMPARE(started.size(), 0);
        QVERIFY(!dialog(page));
    }

    void aCustomSizeReplacesItsItem()
    {
        LargeFilePage page({drive(u"C:/"_s)});
        show(page);
        auto *combo = find<QComboBox>(page, u"sizeCombo"_s);
        QStringList seen;
        answerNumber(42, true, seen);
        combo->setCurrentIndex(5);
        QCOMPARE(seen,
                 QStringList{u"Custom File Size|Enter minimum file size (MB):|100|1|10240|10"_s});
        QCOMPARE(combo->currentIndex(), 5);
        QCOMPARE(combo->currentText(), u"42 MB"_s);
        QCOMPARE(combo->currentData().toLongLong(), 42 * 1'048'576);
        QCOMPARE(page.customSize(), 42 * 1'048'576);
        // Choosing the entry again does not ask again.
        combo->setCurrentIndex(0);
        combo->setCurrentIndex(5);
        QCOMPARE(seen.size(), 1);
    }

    void aCancelledCustomSizeReturnsTo100MB()
    {
        LargeFilePage page({drive(u"C:/"_s)});
        show(page);
        auto *combo = find<QComboBox>(page, u"sizeCombo"_s);
        combo->setCurrentIndex(3);
        QStringList seen;
        answerNumber(42, false, seen);
        combo->setCurrentIndex(5);
        QCOMPARE(seen.size(), 1);
        QCOMPARE(combo->currentIndex(), 1);
        QCOMPARE(combo->currentText(), u"100 MB"_s);
        QCOMPARE(combo->itemText(5), u"Custom..."_s);
        QVERIFY(!QApplication::activeModalWidget());
    }

    // --- the scan

    void aScanShowsTheDialogThenTheCards()
    {
        const TestTree tree;
        makeSparse(tree.path(u"small.txt"_s), 10);
        makeSparse(tree.path(u"middle.MP3"_s), 3'145'728);
        makeSparse(tree.path(u"large.mp4"_s), 5'242'880);
        LargeFilePage page({drive(tree.path())});
        show(page);
        scan(page, 1'048'576);
        QVERIFY(!dialog(page));
        QVERIFY(areResultsShown(page));
        QCOMPARE(text(page, u"summaryLabel"_s), u"Found 2 large files, total 8.0 MB"_s);
        QCOMPARE(text(page, u"selectedLabel"_s), u"Selected: 0 files (0 B)"_s);
        QCOMPARE(cards(page).size(), 2);
        const FileCard &first = *cards(page).at(0);
        QCOMPARE(first.objectName(), u"fileCard"_s);
        QCOMPARE(first.height(), 70);
        QCOMPARE(first.property("filePath").toString(), tree.path(u"large.mp4"_s));
        QCOMPARE(first.property("fileSize").toLongLong(), 5'242'880);
        QCOMPARE(first.checkBox()->property("filePath").toString(), tree.path(u"large.mp4"_s));
        QCOMPARE(first.checkBox()->property("fileSize").toLongLong(), 5'242'880);
        QVERIFY(!first.checkBox()->isChecked());
        QCOMPARE(text(first, u"fileName"_s), u"large.mp4"_s);
        QCOMPARE(text(first, u"fileFolder"_s), tree.path());
        QCOMPARE(text(first, u"fileIcon"_s), u"🎬"_s);
        QCOMPARE(text(first, u"sizeBadge"_s), u"5.0 MB"_s);
        QCOMPARE(text(*cards(page).at(1), u"fileIcon"_s), u"🎵"_s);
        click(page, u"backBtn"_s);
        QVERIFY(!areResultsShown(page));
    }

    void progressReachesTheDialog()
    {
        LargeFilePage page({drive(u"C:/"_s)});
        show(page);
        page.onScanStarted();
        QVERIFY(dialog(page));
        page.onScanProgress(0, u"C:/Windows"_s, 3, 3'145'728);
        QCOMPARE(text(*dialog(page), u"scanPath"_s), u"Scanning: C:/Windows"_s);
        QCOMPARE(text(*dialog(page), u"scanCount"_s), u"Found 3 large files (3.0 MB)"_s);
        ScanProgressDialog *old = dialog(page);
        page.onScanStarted();
        QVERIFY(dialog(page));
        QVERIFY(dialog(page) != old);
        page.onCancelScan();
        QVERIFY(!dialog(page));
        page.onScanProgress(0, u"C:/late"_s, 3, 3);
    }

    void aScanThatFindsNothingSaysSo()
    {
        const TestTree tree;
        LargeFilePage page({drive(tree.path())});
        show(page);
        const MessageBoxes boxes(QMessageBox::Ok);
        scan(page);
        QCOMPARE(boxes.seen(),
                 QStringList{u"Scan Completed|No large files found that match the criteria."_s});
        QVERIFY(!areResultsShown(page));
        QVERIFY(!dialog(page));
    }

    void cancellingLeavesTheSelectionViewWithoutAMessage()
    {
        const TestTree tree;
        for (int i = 0; i < 500; ++i)
            tree.file(u"f%1"_s.arg(i));
        LargeFilePage page({drive(tree.path())});
        show(page);
        page.findChild<DriveCard *>()->checkBox()->setChecked(true);
        const SignalSpy finished(page.scanner(), &LargeFileScanner::scanFinished);
        const MessageBoxes boxes(QMessageBox::Ok);
        click(page, u"startScanBtn"_s);
        QVERIFY(dialog(page));
        QTest::mouseClick(find<QPushButton>(*dialog(page), u"cancelBtn"_s), Qt::LeftButton);
        QVERIFY(!dialog(page));
        QVERIFY(!page.scanner()->isRunning());
        QTest::qWait(100);
        QCOMPARE(finished.size(), 0);
        QVERIFY(boxes.seen().isEmpty());
        QVERIFY(!areResultsShown(page));
        QVERIFY(cards(page).isEmpty());
    }

    void escapeInTheDialogCancels()
    {
        LargeFilePage page({drive(u"C:/"_s)});
        show(page);
        page.onScanStarted();
        QTest::keyClick(dialog(page), Qt::Key_Escape);
        QVERIFY(!dialog(page));
    }

    void theNextScanReplacesTheCards()
    {
        const TestTree tree;
        tree.file(u"a"_s);
        tree.file(u"b"_s);
        LargeFilePage page({drive(tree.path())});
        show(page);
        scan(page);
        QCOMPARE(cards(page).size(), 2);
        cards(page).at(0)->checkBox()->click();
        QVERIFY(QFile::remove(tree.path(u"a"_s)));
        click(page, u"backBtn"_s);
        scan(page);
        QCOMPARE(cards(page).size(), 1);
        QCOMPARE(text(page, u"selectedLabel"_s), u"Selected: 0 files (0 B)"_s);
    }

    // --- the cards

    void theNextScanLeavesNoFocusOnACardWithoutARow()
    {
        const TestTree tree;
        for (int i = 0; i < 5; ++i)
            tree.file(u"f%1"_s.arg(i), QByteArray(100 - i, 'x'));
        LargeFilePage page({drive(tree.path())});
        show(page);
        scan(page);
        page.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&page));
        find<FileCardList>(page, u"fileCardList"_s)->focusRow(4, Qt::OtherFocusReason);
        QCOMPARE(QApplication::focusWidget(), cards(page).at(4)->checkBox());
        click(page, u"backBtn"_s);
        for (int i = 1; i < 5; ++i)
            QVERIFY(page.scanner()->deleteFile(tree.path(u"f%1"_s.arg(i))));
        page.onScanFinished(1, 100); // so early that the dialog has not taken the focus
        QCOMPARE(cards(page).size(), 1);
        QCOMPARE(QApplication::focusWidget(), cards(page).at(0)->checkBox());
    }

    void theBadgeTurnsRedAboveOneGibibyte_data()
    {
        QTest::addColumn<qint64>("size");
        QTest::addColumn<QString>("colour");
        QTest::newRow("exactly") << gibibyte << u"#f3f4f6"_s;
        QTest::newRow("one byte more") << gibibyte + 1 << u"#fee2e2"_s;
    }

    void theBadgeTurnsRedAboveOneGibibyte()
    {
        QFETCH(qint64, size);
        QFETCH(QString, colour);
        FileCard card;
        card.bind({u"C:/f"_s, u"f"_s, u"C:/"_s, size, {}, u"other"_s}, false);
        card.resize(600, 70);
        card.show();
        QVERIFY(QTest::qWaitForWindowExposed(&card));
        QLabel *badge = find(card, u"sizeBadge"_s);
        QCOMPARE(badge->text(), u"1.00 GB"_s);
        QCOMPARE(badge->grab().toImage().pixelColor(badge->width() / 2, 2).name(), colour);
    }

    void longTextsStayInTheirPlace()
    {
        const QString folder = u"C:/"_s + u"folder/"_s.repeated(4000);
        FileCard card;
        card.bind({folder + u"n"_s,
                   u"name with a\nline break "_s.repeated(1000),
                   folder,
                   5,
                   {},
                   u"document"_s},
                  false);
        card.resize(600, 70);
        card.show();
        QVERIFY(QTest::qWaitForWindowExposed(&card));
        QCOMPARE(card.width(), 600);
        QCOMPARE(text(card, u"fileFolder"_s), folder.left(25) + u"..."_s + folder.right(22));
        QCOMPARE(find(card, u"fileFolder"_s)->toolTip(), folder);
        QVERIFY(text(card, u"fileName"_s).contains(u'…'));
        QVERIFY(!text(card, u"fileName"_s).contains(u'\n'));
        QVERIFY(find(card, u"sizeBadge"_s)->geometry().right() < 600);
    }

    void ticksCountAndAddUp()
    {
        const TestTree tree;
        tree.file(u"a"_s, QByteArray(2048, 'x'));
        tree.file(u"b"_s, QByteArray(1024, 'x'));
        LargeFilePage page({drive(tree.path())});
        show(page);
        scan(page);
        auto *button = find<QPushButton>(page, u"deleteBtn"_s);
        QVERIFY(!button->isEnabled());
        cards(page).at(0)->checkBox()->click();
        QCOMPARE(text(page, u"selectedLabel"_s), u"Selected: 1 files (2.0 KB)"_s);
        QVERIFY(button->isEnabled());
        cards(page).at(1)->checkBox()->click();
        QCOMPARE(text(page, u"selectedLabel"_s), u"Selected: 2 files (3.0 KB)"_s);
        cards(page).at(0)->checkBox()->click();
        QCOMPARE(text(page, u"selectedLabel"_s), u"Selected: 1 files (1.0 KB)"_s);
        cards(page).at(1)->checkBox()->click();
        QVERIFY(!button->isEnabled());
    }

    // --- deleting

    void deletingWithNothingCheckedDoesNothing()
    {
        const TestTree tree;
        tree.file(u"a"_s);
        LargeFilePage page({drive(tree.path())});
        show(page);
        scan(page);
        const MessageBoxes boxes(QMessageBox::Yes);
        click(page, u"deleteBtn"_s);
        page.onDeleteSelected();
        QTest::qWait(50);
        QVERIFY(boxes.seen().isEmpty());
        QVERIFY(tree.has(u"a"_s));
    }

    void aDeletionThatIsNotConfirmedDeletesNothing()
    {
        const TestTree tree;
        tree.file(u"a"_s, QByteArray(2048, 'x'));
        LargeFilePage page({drive(tree.path())});
        show(page);
        scan(page);
        cards(page).at(0)->checkBox()->click();
        const MessageBoxes boxes(QMessageBox::No);
        click(page, u"deleteBtn"_s);
        QCOMPARE(boxes.seen(),
                 QStringList{u"Confirm Delete|Are you sure you want to delete the selected 1 "
                             "files?\n\nTotal: 2.0 KB\n\nThis action cannot be undone!"_s});
        QVERIFY(tree.has(u"a"_s));
        QCOMPARE(cards(page).size(), 1);
    }

    void aPartlyFailedDeletionReportsBothCounts()
    {
        const TestTree tree;
        tree.file(u"a"_s, QByteArray(3, 'x'));
        tree.file(u"b"_s, QByteArray(2, 'x'));
        tree.file(u"c"_s, QByteArray(1, 'x'));
        LargeFilePage page({drive(tree.path())});
        show(page);
        scan(page);
        cards(page).at(0)->checkBox()->click();
        cards(page).at(1)->checkBox()->click();
        QVERIFY(QFile::remove(tree.path(u"b"_s)));
        const MessageBoxes boxes(QMessageBox::Yes);
        click(page, u"deleteBtn"_s);
        QTRY_COMPARE_WITH_TIMEOUT(boxes.seen().size(), 2, patience);
        QCOMPARE(boxes.seen(),
                 (QStringList{u"Confirm Delete|Are you sure you want to delete the selected 2 "
                              "files?\n\nTotal: 5 B\n\nThis action cannot be undone!"_s,
                              u"Delete Completed|Deleted 1 files successfully. 1 files failed to "
                              "delete."_s}));
        QVERIFY(!tree.has(u"a"_s));
        QVERIFY(tree.has(u"c"_s));
        QCOMPARE(cards(page).size(), 2);
        // A file that could not be deleted stays ticked.
        QCOMPARE(text(page, u"selectedLabel"_s), u"Selected: 1 files (2 B)"_s);
        QCOMPARE(text(page, u"summaryLabel"_s), u"Found 2 large files, total 3 B"_s);
    }

    void aFullSuccessReportsNoFailures()
    {
        const TestTree tree;
        tree.file(u"a"_s);
        tree.file(u"b"_s);
        LargeFilePage page({drive(tree.path())});
        show(page);
        scan(page);
        cards(page).at(0)->checkBox()->click();
        const MessageBoxes boxes(QMessageBox::Yes);
        click(page, u"deleteBtn"_s);
        QTRY_COMPARE_WITH_TIMEOUT(boxes.seen().size(), 2, patience);
        QCOMPARE(boxes.seen().at(1), u"Delete Completed|Deleted 1 files successfully."_s);
        QCOMPARE(text(page, u"selectedLabel"_s), u"Selected: 0 files (0 B)"_s);
    }

    void theContextMenuDeletesOneFile()
    {
        const TestTree tree;
        const QString a = tree.file(u"a"_s, QByteArray(2048, 'x'));
        tree.file(u"b"_s, QByteArray(1024, 'x'));
        LargeFilePage page({drive(tree.path())});
        show(page);
        scan(page);
        cards(page).at(0)->checkBox()->click();
        const MessageBoxes boxes(QMessageBox::Yes);
        QAction *action = menuAction(cards(page).at(0), 2);
        QCOMPARE(action->text(), u"🗑️ Delete this file"_s);
        QCOMPARE(action->property("filePath").toString(), a);
        QCOMPARE(action->property("card").value<QWidget *>(), cards(page).at(0));
        action->trigger();
        QCOMPARE(boxes.seen(),
                 QStringList{u"Confirm Delete|Are you sure you want to delete this file?\n\n%1\n"
                             "Size: 2.0 KB\n\nThis action cannot be undone!"_s.arg(a)});
        QTRY_COMPARE_WITH_TIMEOUT(cards(page).size(), 1, patience);
        QVERIFY(!tree.has(u"a"_s));
        QCOMPARE(text(page, u"selectedLabel"_s), u"Selected: 0 files (0 B)"_s);
        QCOMPARE(text(page, u"summaryLabel"_s), u"Found 1 large files, total 1.0 KB"_s);

        menuAction(cards(page).at(0), 2)->trigger();
        QTRY_COMPARE_WITH_TIMEOUT(boxes.seen().size(), 3, patience);
        QCOMPARE(boxes.seen().constLast(), u"Info|All files have been deleted"_s);
        QVERIFY(cards(page).isEmpty());
        QCOMPARE(text(page, u"summaryLabel"_s), u"Found 0 large files, total 0 B"_s);
    }

    void aFileThatCannotBeDeletedKeepsItsCard()
    {
        const TestTree tree;
        tree.file(u"a"_s);
        LargeFilePage page({drive(tree.path())});
        show(page);
        scan(page);
        QVERIFY(QFile::remove(tree.path(u"a"_s)));
        const MessageBoxes boxes(QMessageBox::Yes);
        menuAction(cards(page).at(0), 2)->trigger();
        QTRY_COMPARE_WITH_TIMEOUT(boxes.seen().size(), 2, patience);
        QCOMPARE(
            boxes.seen().constLast(),
            u"Delete Failed|Unable to delete this file. It may be in use by another program."_s);
        QCOMPARE(cards(page).size(), 1);
    }

    void theContextMenuBeginsWithTheFilesLocation()
    {
        const TestTree tree;
        const QString a = tree.file(u"a"_s);
        LargeFilePage page({drive(tree.path())});
        show(page);
        scan(page);
        const QAction *action = menuAction(cards(page).at(0), 0);
        QCOMPARE(action->text(), u"📂 Open file location"_s);
        QCOMPARE(action->property("filePath").toString(), a);
        QVERIFY(menuAction(cards(page).at(0), 1)->isSeparator());
    }

    void aLocationThatCannotBeShownIsExplained_data()
    {
        QTest::addColumn<bool>("isThere");
        QTest::addColumn<QString>("text");
        QTest::newRow("gone") << false << u"Notice|This file no longer exists:\n%1"_s;
#ifndef Q_OS_WIN // Windows always has a file manager
        QTest::newRow("no file manager")
            << true << u"Notice|The file manager could not be started to show this file:\n%1"_s;
#endif
    }

    void aLocationThatCannotBeShownIsExplained()
    {
        QFETCH(bool, isThere);
        QFETCH(QString, text);
        const TestTree tree;
        const QString path = tree.file(u"a"_s);
        LargeFilePage page({drive(tree.path())});
        show(page);
        scan(page);
        QAction *action = menuAction(cards(page).at(0), 0);
        if (!isThere)
            QVERIFY(QFile::remove(path));
        const EmptySearchPath noPrograms;
        const LogCapture log;
        const MessageBoxes boxes(QMessageBox::Ok);
        action->trigger();
        QCOMPARE(boxes.seen(), QStringList{text.arg(QDir::toNativeSeparators(path))});
        QCOMPARE(boxes.icons(), QList<QMessageBox::Icon>{QMessageBox::Warning});
        QCOMPARE(log.lines().filter(u"[WARN]"_s).filter(path).size(), 1);
    }

    // The card of the menu may get another file while the menu is open.
    void theContextMenuActsOnTheFileItWasOpenedFor()
    {
        const TestTree tree;
        for (int i = 0; i < 40; ++i)
            tree.file(u"f%1"_s.arg(i), QByteArray(100 - i, 'x'));
        LargeFilePage page({drive(tree.path())});
        show(page);
        scan(page);
        QAction *action = menuAction(cards(page).at(1), 2);
        find<FileCardList>(page, u"fileCardList"_s)->verticalScrollBar()->setValue(20);
        const MessageBoxes boxes(QMessageBox::Yes);
        action->trigger();
        QVERIFY(boxes.seen().constFirst().contains(tree.path(u"f1"_s)));
        QTRY_COMPARE_WITH_TIMEOUT(page.model()->rowCount(), 39, patience);
        QVERIFY(!tree.has(u"f1"_s));
    }

    // The list may change between the question and its answer.
    void onlyWhatWasAskedAboutIsDeleted()
    {
        const TestTree tree;
        tree.file(u"a"_s, QByteArray(3, 'x'));
        tree.file(u"b"_s, QByteArray(2, 'x'));
        LargeFilePage page({drive(tree.path())});
        show(page);
        scan(page);
        cards(page).at(0)->checkBox()->click();
        const auto before = tree.snapshot();
        QTimer::singleShot(50, &page, [&page] {
            page.model()->setTicked(1, true);
            QTimer::singleShot(0, &page, [] {
                qobject_cast<QMessageBox *>(QApplication::activeModalWidget())
                    ->button(QMessageBox::Yes)
                    ->click();
            });
        });
        page.onDeleteSelected();
        QVERIFY(!page.scanner()->isDeleting());
        QCOMPARE(tree.snapshot(), before);

        QAction *action = menuAction(cards(page).at(0), 2);
        QTimer::singleShot(50, &page, [&page] {
            page.model()->removeRows({0});
            QTimer::singleShot(0, &page, [] {
                qobject_cast<QMessageBox *>(QApplication::activeModalWidget())
                    ->button(QMessageBox::Yes)
                    ->click();
            });
        });
        action->trigger();
        QVERIFY(!page.scanner()->isDeleting());
        QCOMPARE(tree.snapshot(), before);
    }

    void whileFilesAreDeletedTheResultsAreLocked()
    {
        const TestTree tree;
        for (int i = 0; i < 400; ++i)
            tree.file(u"f%1"_s.arg(i), QByteArray(1000 - i, 'x'));
        LargeFilePage page({drive(tree.path())});
        show(page);
        scan(page);
        for (int row = 0; row < page.model()->rowCount(); row += 2)
            page.model()->setTicked(row, true);
        const MessageBoxes boxes(QMessageBox::Yes);
        auto *view = find<QWidget>(page, u"resultsView"_s);
        const SignalSpy finished(page.scanner(), &LargeFileScanner::deleteFinished);
        // Holds the worker at its first signal until all actions were tried.
        QSemaphore tried;
        const auto hold = connect(
            page.scanner(), &LargeFileScanner::deleteProgress, page.scanner(),
            [&tried] { tried.acquire(); }, Qt::DirectConnection);
        const auto release = qScopeGuard([&] {
            disconnect(hold);
            tried.release(1000);
        });
        page.onDeleteSelected();
        QVERIFY(page.scanner()->isDeleting());
        QVERIFY(!view->isEnabled());
        page.onDeleteSelected(); // asks, but starts no deletion
        QTest::mouseClick(page.windowHandle(), Qt::LeftButton, {},
                          cards(page).at(1)->checkBox()->mapTo(&page, QPoint(8, 8)));
        QVERIFY(!page.model()->isTicked(1));
        QCOMPARE(page.model()->tickedCount(), 200);
        page.scanner()->startScan();
        QVERIFY(!page.scanner()->isRunning());
        disconnect(hold);
        tried.release(1000);
        QVERIFY(finished.wait(patience));
        QVERIFY(view->isEnabled());
        QCOMPARE(finished.size(), 1);
        QCOMPARE(page.model()->rowCount(), 200);
        QCOMPARE(page.scanner()->results().size(), 200);
        for (int i = 0; i < 400; ++i)
            QCOMPARE(tree.has(u"f%1"_s.arg(i)), i % 2 == 1);
    }

    void theListHasItsNameAndRole()
    {
        installAccessibleInterfaces();
        const TestTree tree;
        LargeFilePage page({drive(tree.path())});
        const auto *list =
            QAccessible::queryAccessibleInterface(find<FileCardList>(page, u"fileCardList"_s));
        QCOMPARE(list->role(), QAccessible::List);
        QCOMPARE(list->text(QAccessible::Name), u"Scan Results"_s);
    }

    void neitherDialogIsShownOverAnotherPage()
    {
        const TestTree tree;
        for (int i = 0; i < 300; ++i)
            tree.file(u"f%1"_s.arg(i), QByteArray(1000 - i, 'x'));
        QStackedWidget pages;
        auto *page = new LargeFilePage({drive(tree.path())});
        pages.addWidget(page);
        pages.addWidget(new QWidget);
        pages.show();
        QVERIFY(QTest::qWaitForWindowExposed(&pages));

        const auto pageSwitch = connect(
            page->scanner(), &LargeFileScanner::scanStarted, page,
            [&] {
                QVERIFY(dialog(*page));
                pages.setCurrentIndex(1);
                QVERIFY(!dialog(*page));
                pages.setCurrentIndex(0);
                QVERIFY(dialog(*page));
            },
            Qt::QueuedConnection); // after the page's slot, which is queued too
        scan(*page);
        disconnect(pageSwitch);

        page->model()->setTicked(0, true);
        const MessageBoxes boxes(QMessageBox::Yes);
        QSemaphore held;
        const auto hold = connect(
            page->scanner(), &LargeFileScanner::deleteProgress, page->scanner(),
            [&held] { held.acquire(); }, Qt::DirectConnection);
        const auto release = qScopeGuard([&] {
            disconnect(hold);
            held.release(1000);
        });
        page->onDeleteSelected();
        pages.setCurrentIndex(1); // before the deletion has run long enough to show its dialog
        const ProgressDialog *progress = nullptr;
        QTRY_VERIFY_WITH_TIMEOUT((progress = page->findChild<ProgressDialog *>()), patience);
        QVERIFY(!progress->isVisible());
        pages.setCurrentIndex(0);
        QVERIFY(progress->isVisible());
        pages.setCurrentIndex(1);
        QVERIFY(!progress->isVisible());
    }

    void theProgressOfACancelledScanIsNotShownInTheNext()
    {
        const TestTree tree;
        for (int i = 0; i < 150; ++i)
            tree.file(u"f%1"_s.arg(i), "x");
        LargeFilePage page({drive(tree.path())});
        show(page);
        LargeFileScanner *scanner = page.scanner();
        scanner->setDrives({tree.path()});
        scanner->setMinSize(1);
        scanner->startScan();
        while (scanner->filesScanned() < 150)
            QThread::msleep(1);
        page.onCancelScan(); // the worker's signals are queued now
        // The next scan is held at its first file, before it reports any progress.
        QSemaphore held;
        const auto hold = connect(
            scanner, &LargeFileScanner::fileFound, scanner, [&held] { held.acquire(); },
            Qt::DirectConnection);
        const auto release = qScopeGuard([&] {
            disconnect(hold);
            held.release(1000);
        });
        const SignalSpy finished(scanner, &LargeFileScanner::scanFinished);
        scanner->startScan();
        QTest::qWait(50);
        QCOMPARE(text(*dialog(page), u"scanCount"_s), u"Found 0 large files (0 B)"_s);
        QCOMPARE(text(*dialog(page), u"scanPath"_s), u"Preparing..."_s);
        held.release(1000);
        QVERIFY(finished.wait(patience));
        QVERIFY(areResultsShown(page));
    }

    void aLongDeletionShowsItsProgressAndCanBeCancelled()
    {
        const TestTree tree;
        constexpr int count = 3000;
        for (int i = 0; i < count; ++i)
            tree.file(u"d%1/f%2"_s.arg(i % 300).arg(i), QByteArray(1, 'x'));
        LargeFilePage page({drive(tree.path())});
        show(page);
        scan(page);
        for (int row = 0; row < count; ++row)
            page.model()->setTicked(row, true);
        const MessageBoxes boxes(QMessageBox::Yes);
        const SignalSpy finished(page.scanner(), &LargeFileScanner::deleteFinished);
        // Holds the worker at its first signal until the dialog was shown.
        QSemaphore seen;
        const auto hold = connect(
            page.scanner(), &LargeFileScanner::deleteProgress, page.scanner(),
            [&seen] { seen.acquire(); }, Qt::DirectConnection);
        const auto release = qScopeGuard([&] {
            disconnect(hold);
            seen.release(1000);
        });
        page.onDeleteSelected();
        auto *progress = static_cast<ProgressDialog *>(nullptr);
        QTRY_VERIFY_WITH_TIMEOUT((progress = page.findChild<ProgressDialog *>()), patience);
        QVERIFY(progress->isVisible());
        QTest::mouseClick(find<QPushButton>(*progress, u"cancelBtn"_s), Qt::LeftButton);
        disconnect(hold);
        seen.release(1000);
        QVERIFY(finished.size() == 1 || finished.wait(patience));
        QTRY_COMPARE_WITH_TIMEOUT(boxes.seen().size(), 2, patience);
        QCOMPARE(boxes.seen().constLast(), u"Delete Completed|Deleted 1 files successfully."_s);
        QVERIFY(!page.findChild<ProgressDialog *>());
        // Files that were not tried still exist and are still ticked.
        QCOMPARE(page.model()->rowCount(), count - 1);
        QCOMPARE(page.model()->tickedCount(), count - 1);
        QCOMPARE(text(page, u"summaryLabel"_s), u"Found 2999 large files, total 2.9 KB"_s);
        int remaining = 0;
        for (int i = 0; i < count; ++i)
            remaining += tree.has(u"d%1/f%2"_s.arg(i % 300).arg(i)) ? 1 : 0;
        QCOMPARE(remaining, count - 1);
    }

    void afterADeletionTheFocusIsOnTheList()
    {
        const TestTree tree;
        for (int i = 0; i < 5; ++i)
            tree.file(u"f%1"_s.arg(i), QByteArray(100 - i, 'x'));
        LargeFilePage page({drive(tree.path())});
        show(page);
        page.activateWindow();
        scan(page);
        page.model()->setTicked(2, true);
        page.updateSelectedInfo();
        const MessageBoxes boxes(QMessageBox::Yes);
        find<QPushButton>(page, u"deleteBtn"_s)->setFocus();
        QTest::keyClick(page.windowHandle(), Qt::Key_Space);
        QTRY_COMPARE_WITH_TIMEOUT(boxes.seen().size(), 2, patience);
        QTRY_COMPARE(page.focusWidget(), cards(page).at(0)->checkBox());
        // After a deletion by the menu of a card the next card has the focus.
        find<FileCardList>(page, u"fileCardList"_s)->focusRow(1, Qt::OtherFocusReason);
        menuAction(cards(page).at(1), 2)->trigger();
        QTRY_COMPARE_WITH_TIMEOUT(page.model()->rowCount(), 3, patience);
        QCOMPARE(page.model()->at(1).name, u"f3"_s);
        QTRY_COMPARE(page.focusWidget(), cards(page).at(1)->checkBox());
    }

    // --- many results

    void tenThousandResultsDoNotStallTheWindow()
    {
        const TestTree tree;
        constexpr int count = 10'000;
        for (int i = 0; i < count; ++i)
            tree.file(u"d%1/file-%2.mp4"_s.arg(i % 50).arg(i), QByteArray(1 + i % 300, 'x'));
        LargeFilePage page({drive(tree.path())});
        show(page);
        Stalls stalls;
        scan(page);
        // The program's limit is 50 ms. A busy machine and a sanitizer need more.
        constexpr qint64 tooLong = 250;
        qInfo("filled: longest stall %lld ms", stalls.longest);
        QVERIFY2(stalls.longest < tooLong, qPrintable(QString::number(stalls.longest)));
        QCOMPARE(page.model()->rowCount(), count);
        for (int row = 1; row < count; ++row)
            QVERIFY(page.model()->at(row - 1).size >= page.model()->at(row).size);

        for (int row = 0; row < count; ++row)
            page.model()->setTicked(row, true);
        const MessageBoxes boxes(QMessageBox::Yes);
        const LogCapture log;
        stalls.restart();
        QElapsedTimer timer;
        timer.start();
        page.onDeleteSelected();
        QTRY_COMPARE_WITH_TIMEOUT(boxes.seen().size(), 2, 60'000);
        qInfo("deleting took %lld ms, longest stall %lld ms", timer.elapsed(), stalls.longest);
        QVERIFY2(stalls.longest < tooLong, qPrintable(QString::number(stalls.longest)));
        QCOMPARE(page.model()->rowCount(), 0);
        QVERIFY(cards(page).isEmpty());
    }

private:
    /// Opens the menu of a card and returns one of its three actions.
    static QAction *menuAction(FileCard *card, int index)
    {
        Q_EMIT card->customContextMenuRequested({5, 5});
        auto *menu = card->findChild<QMenu *>();
        if (!menu || menu->actions().size() != 3)
            qFatal("there is no menu of three actions");
        QAction *action = menu->actions().at(index);
        // A closed menu deletes itself and its actions. setParent() hides it without closing it.
        menu->setParent(card->window(), menu->windowFlags());
        return action;
    }
};

SWEEPWISE_TEST_MAIN(TestLargeFilePage, QApplication)
#include "tst_largefilepage.moc"
