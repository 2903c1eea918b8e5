#include "progressdialog.h"

#include "appinfo.h"
#include "signalspy.h"
#include "testhome.h"

#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QStringList texts(const ProgressDialog &dialog)
{
    QStringList list;
    for (const auto *label : dialog.findChildren<QLabel *>())
        list.append(label->text());
    return list;
}

int value(const ProgressDialog &dialog)
{
    return dialog.findChild<QProgressBar *>(u"progressBar"_s)->value();
}

} // namespace

class TestProgressDialog : public QObject
{
    Q_OBJECT
public:
    explicit TestProgressDialog(const TestHome &) { }

private Q_SLOTS:
    void theModesHaveTheirTexts()
    {
        const ProgressDialog scanning(ProgressDialog::Scanning);
        QVERIFY(texts(scanning).contains(u"Scanning..."_s));
        QVERIFY(texts(scanning).contains(u"正在分析系统..."_s));
        const ProgressDialog cleaning(ProgressDialog::Cleaning);
        QVERIFY(texts(cleaning).contains(u"Cleaning..."_s));
        QVERIFY(texts(cleaning).contains(u"正在删除文件..."_s));
    }

    void progressIsAWholePercentage_data()
    {
        QTest::addColumn<int>("current");
        QTest::addColumn<int>("total");
        QTest::addColumn<int>("expected");
        QTest::newRow("third") << 1 << 3 << 33;
        QTest::newRow("all") << 25 << 25 << 100;
        QTest::newRow("nothing yet") << 0 << 7 << 0;
        QTest::newRow("no total") << 5 << 0 << 0;
        QTest::newRow("negative total") << 5 << -1 << 0;
        QTest::newRow("no overflow") << 2'000'000'000 << 2'100'000'000 << 95;
    }

    void progressIsAWholePercentage()
    {
        QFETCH(int, current);
        QFETCH(int, total);
        QFETCH(int, expected);
        ProgressDialog dialog(ProgressDialog::Scanning);
        dialog.setProgress(current, total);
        QCOMPARE(value(dialog), expected);
        QVERIFY(texts(dialog).contains(u"%1%"_s.arg(expected)));
    }

    void theDetailIsOneLineThatFits()
    {
        ProgressDialog dialog(ProgressDialog::Scanning);
        dialog.setDetail(u"a\nb"_s);
        QVERIFY(texts(dialog).contains(u"a\uFFFDb"_s));
        dialog.setDetail(u"start"_s + QString(500, u'x') + u"end"_s);
        const QString shown = texts(dialog).filter(u"start"_s).constFirst();
        QVERIFY(shown.endsWith(u"end"_s));
        QVERIFY(dialog.fontMetrics().horizontalAdvance(shown) < dialog.width());
    }

    void theCleanedSizeIsFormatted()
    {
        ProgressDialog dialog(ProgressDialog::Cleaning);
        dialog.setCleanedSize(1536);
        QVERIFY(texts(dialog).contains(u"已清理: 1.5 KB"_s));
    }

    void cancelIsSignalledAndDoesNotClose()
    {
        ProgressDialog dialog(ProgressDialog::Scanning);
        dialog.show();
        SignalSpy cancel(&dialog, &ProgressDialog::cancelRequested);
        QTest::mouseClick(dialog.findChild<QPushButton *>(u"cancelBtn"_s), Qt::LeftButton);
        QCOMPARE(cancel.size(), 1);
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QCOMPARE(cancel.size(), 2);
        dialog.close();
        QCOMPARE(cancel.size(), 3);
        QVERIFY(dialog.isVisible());
    }

    void theResultScreenStaysUntilItIsClosed()
    {
        ProgressDialog dialog(ProgressDialog::Cleaning);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        dialog.setProgress(1, 2);
        dialog.showResult(true, u"Cleaned 3 items, freed 1.0 KB"_s);
        QVERIFY(texts(dialog).contains(u"完成!"_s));
        QVERIFY(texts(dialog).contains(u"Cleaned 3 items, freed 1.0 KB"_s));
        QCOMPARE(value(dialog), 100);
        QVERIFY(!dialog.findChild<QPushButton *>(u"cancelBtn"_s)->isVisible());
        dialog.setProgress(1, 2); // too late
        QCOMPARE(value(dialog), 100);
        auto *close = dialog.findChild<QPushButton *>(u"closeBtn"_s);
        QVERIFY(close->isVisible());
        QTest::mouseClick(close, Qt::LeftButton);
        QVERIFY(!dialog.isVisible());
    }

    void aFailureIsShownInRed()
    {
        ProgressDialog dialog(ProgressDialog::Scanning);
        const auto *icon = dialog.findChild<QLabel *>();
        QCOMPARE(icon->size(), QSize(64, 64));
        QVERIFY(icon->styleSheet().contains(u"#10B981"_s));
        QVERIFY(icon->styleSheet().contains(u"border-radius: 32px"_s));
        dialog.showResult(false, u"out of luck"_s);
        QVERIFY(texts(dialog).contains(u"操作失败"_s));
        QVERIFY(icon->styleSheet().contains(u"#EF4444"_s));
    }

    void theMouseMovesIt()
    {
        ProgressDialog dialog(ProgressDialog::Scanning);
        dialog.show();
        dialog.move(100, 100);
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QTest::mousePress(&dialog, Qt::LeftButton, {}, {20, 20});
        QMouseEvent move(QEvent::MouseMove, QPointF(50, 60), dialog.mapToGlobal(QPointF(50, 60)),
                         Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(&dialog, &move);
        QTRY_COMPARE(dialog.pos(), QPoint(130, 140));
        QTest::mouseRelease(&dialog, Qt::LeftButton, {}, {20, 20});
        QMouseEvent later(QEvent::MouseMove, QPointF(90, 90), dialog.mapToGlobal(QPointF(90, 90)),
                          Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(&dialog, &later);
        QCOMPARE(dialog.pos(), QPoint(130, 140));
    }

    void itOpensOverTheMiddleOfItsWindow()
    {
        QWidget window;
        window.setWindowFlag(Qt::FramelessWindowHint);
        window.setGeometry(100, 80, 600, 420);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        ProgressDialog dialog(ProgressDialog::Scanning, &window);
        dialog.show();
        QCOMPARE(dialog.geometry().center(), window.geometry().center());
    }
};

SWEEPWISE_TEST_MAIN(TestProgressDialog, QApplication)
#include "tst_progressdialog.moc"
