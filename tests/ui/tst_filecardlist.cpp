#include "filecardlist.h"

#include "filecard.h"
#include "largefilemodel.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

constexpr int rowHeight = 78;
const QPoint boxInRow{24, 35}; ///< a point on the check box of a row

LargeFileInfo fileOf(int number)
{
    const QString name = u"file %1.bin"_s.arg(number);
    return {u"/some/folder/"_s + name, name, u"/some/folder"_s,
            2'000'000'000 - number,    {},   u"other"_s};
}

QList<LargeFileInfo> files(int count)
{
    QList<LargeFileInfo> list;
    list.reserve(count);
    for (int i = 0; i < count; ++i)
        list.append(fileOf(i));
    return list;
}

/// The list in a view that is shown only when there are results, as on the page. Its check boxes
/// write to the model. The mouse functions click points of the window.
class ShownList final
{
    Q_DISABLE_COPY_MOVE(ShownList)
public:
    explicit ShownList(int count, int height = 480)
    {
        auto *first = new QWidget;
        auto *second = new QWidget;
        auto *layout = new QVBoxLayout(second);
        before = new QCheckBox(u"before"_s);
        list = new FileCardList(&model);
        after = new QCheckBox(u"after"_s);
        for (QWidget *widget : {static_cast<QWidget *>(before), static_cast<QWidget *>(list),
                                static_cast<QWidget *>(after)})
            layout->addWidget(widget);
        QObject::connect(list, &FileCardList::cardCreated, list, [this](FileCard *card) {
            QObject::connect(card->checkBox(), &QCheckBox::toggled, list,
                             [this, card](bool on) { model.setTicked(list->rowOf(card), on); });
        });
        views.addWidget(first);
        views.addWidget(second);
        views.resize(640, height);
        views.show();
        if (!QTest::qWaitForWindowExposed(&views))
            qFatal("the window does not appear");
        views.activateWindow();
        model.setFiles(files(count));
        views.setCurrentIndex(1);
        settle();
    }

    static void settle() { QTest::qWait(0); }
    [[nodiscard]] QScrollBar *bar() const { return list->verticalScrollBar(); }
    /// Maps a point of the list's visible part to the window.
    [[nodiscard]] QPoint inWindow(QPoint point) const
    {
        return list->viewport()->mapTo(&views, point);
    }
    void click(QPoint point)
    {
        QTest::mouseClick(views.windowHandle(), Qt::LeftButton, {}, inWindow(point));
    }
    void wheel(int notches)
    {
        const QPointF position = inWindow(list->viewport()->rect().center());
        for (int i = 0; i < std::abs(notches); ++i) {
            QWheelEvent event(position, views.mapToGlobal(position), {},
                              {0, notches > 0 ? -120 : 120}, Qt::NoButton, Qt::NoModifier,
                              Qt::NoScrollPhase, false);
            // Only spontaneous events go on to the parents.
            QSpontaneKeyEvent::setSpontaneous(&event);
            qApp->notify(views.windowHandle(), &event);
        }
    }
    void press(int key) { QTest::keyClick(views.windowHandle(), static_cast<Qt::Key>(key)); }
    [[nodiscard]] int wholeRowCount() const { return (list->viewport()->height() + 8) / rowHeight; }
    [[nodiscard]] static QString focusedFile()
    {
        const QWidget *widget = QApplication::focusWidget();
        return widget ? widget->property("filePath").toString() : QString();
    }

    LargeFileModel model;
    QStackedWidget views;
    QCheckBox *before;
    FileCardList *list;
    QCheckBox *after;
};

/// The name on the card that is drawn at @p position, counted from the top of the visible part.
/// Empty when two cards are there.
QString findNameDrawnAt(const ShownList &shown, int position)
{
    QString name;
    for (const auto *card : shown.list->viewport()->findChildren<FileCard *>()) {
        if (!card->isVisible()
            || !card->geometry().contains(QPoint(300, position * rowHeight + 35)))
            continue;
        if (!name.isNull())
            return {};
        name = card->findChild<QLabel *>(u"fileName"_s)->text();
    }
    return name;
}

/// Describes the first fault of the shown list; empty when there is none.
QString findFault(const ShownList &shown)
{
    const QRect area = shown.list->viewport()->rect();
    QList<QRect> rects;
    for (const auto *card : shown.list->viewport()->findChildren<FileCard *>()) {
        const QRect rect = card->geometry() & area;
        if (!card->isVisible() || rect.isEmpty())
            continue;
        for (const QRect &other : std::as_const(rects)) {
            if (other.intersects(rect))
                return u"two cards lie on one another"_s;
        }
        rects.append(rect);
    }
    const int top = shown.bar()->value();
    const int rows =
        std::min((area.height() + rowHeight - 1) / rowHeight, shown.model.rowCount() - top);
    if (rects.size() != rows)
        return u"%1 cards for %2 rows"_s.arg(rects.size()).arg(rows);
    for (int position = 0; position < rows; ++position) {
        const LargeFileInfo &wanted = shown.model.at(top + position);
        if (findNameDrawnAt(shown, position) != wanted.name)
            return u"row %1 shows '%2'"_s.arg(QString::number(top + position),
                                              findNameDrawnAt(shown, position));
        const FileCard *card = shown.list->cards().at(position);
        if (card->property("filePath") != wanted.path
            || card->checkBox()->property("filePath") != wanted.path
            || card->property("fileSize") != wanted.size
            || card->checkBox()->property("fileSize") != wanted.size)
            return u"row %1 has another row's properties"_s.arg(top + position);
        if (card->checkBox()->isChecked() != shown.model.isTicked(top + position))
            return u"row %1 shows the wrong tick"_s.arg(top + position);
    }
    return {};
}

} // namespace

class TestFileCardList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aClickTicksTheFileThatIsDrawnThere_data()
    {
        QTest::addColumn<int>("count");
        QTest::newRow("all in view") << 3;
        QTest::newRow("a few more than in view") << 12;
        QTest::newRow("many") << 1000;
    }

    void aClickTicksTheFileThatIsDrawnThere()
    {
        QFETCH(int, count);
        ShownList shown(count);
        for (const int value : {0, shown.bar()->maximum() / 2, shown.bar()->maximum()}) {
            shown.bar()->setValue(value);
            ShownList::settle();
            QCOMPARE(findFault(shown), QString());
            for (int position = 0; position < std::min(shown.wholeRowCount(), count); ++position) {
                const QString drawn = findNameDrawnAt(shown, position);
                const bool before = shown.model.isTicked(value + position);
                const int ticked = shown.model.tickedCount();
                shown.click(boxInRow + QPoint(0, position * rowHeight));
                QCOMPARE(drawn, shown.model.at(value + position).name);
                QCOMPARE(shown.model.isTicked(value + position), !before);
                QCOMPARE(shown.model.tickedCount(), ticked + (before ? -1 : 1));
                QCOMPARE(shown.bar()->value(), value);
            }
            QCOMPARE(findFault(shown), QString());
        }
    }

    void scrollingAfterATickReachesItsTarget()
    {
        ShownList shown(1000);
        shown.click(boxInRow);
        QCOMPARE(shown.model.tickedRows(), QList<int>{0});
        const int maximum = shown.bar()->maximum();
        for (const int value : {maximum, 0, 16, 500, maximum - 1, 3, maximum}) {
            shown.bar()->setValue(value);
            ShownList::settle();
            QCOMPARE(shown.bar()->value(), value);
            QCOMPARE(findFault(shown), QString());
        }
        shown.bar()->setValue(0);
        int expected = 0;
        for (int i = 0; i < 40; ++i) {
            shown.wheel(1);
            ShownList::settle();
            expected += QApplication::wheelScrollLines();
            QCOMPARE(shown.bar()->value(), expected);
            QCOMPARE(findFault(shown), QString());
        }
        QCOMPARE(shown.model.tickedRows(), QList<int>{0});
    }

    void aMillionRowsNeedOnlyAFewCards()
    {
        ShownList shown(1'000'000);
        QCOMPARE(findFault(shown), QString());
        QRandomGenerator random(7);
        for (int i = 0; i < 50; ++i) {
            shown.bar()->setValue(random.bounded(shown.bar()->maximum() + 1));
            QCOMPARE(findFault(shown), QString());
        }
        shown.bar()->setValue(shown.bar()->maximum());
        ShownList::settle();
        QCOMPARE(findFault(shown), QString());
        QCOMPARE(shown.list->cards().constLast()->info().name, u"file 999999.bin"_s);
        QVERIFY(
            shown.list->viewport()->rect().contains(shown.list->cards().constLast()->geometry()));
        shown.list->focusRow(999'998, Qt::OtherFocusReason);
        QCOMPARE(ShownList::focusedFile(), fileOf(999'998).path);
        QVERIFY(shown.list->findChildren<FileCard *>().size() <= shown.wholeRowCount() + 3);
    }

    void theFocusStaysWithItsRow()
    {
        ShownList shown(500);
        shown.click(boxInRow + QPoint(0, 2 * rowHeight));
        QCOMPARE(ShownList::focusedFile(), fileOf(2).path);
        shown.wheel(50);
        ShownList::settle();
        QVERIFY(shown.bar()->value() > 100);
        QCOMPARE(ShownList::focusedFile(), fileOf(2).path);
        QVERIFY(QApplication::focusWidget()->visibleRegion().isEmpty());
        QCOMPARE(findFault(shown), QString());
        // A key scrolls back to the row with the focus.
        shown.press(Qt::Key_Down);
        QCOMPARE(ShownList::focusedFile(), fileOf(3).path);
        QVERIFY(!QApplication::focusWidget()->visibleRegion().isEmpty());
        QCOMPARE(findFault(shown), QString());
        // A key does not tick a row that is out of view: the list scrolls to the row first.
        shown.wheel(50);
        shown.press(Qt::Key_Space);
        QCOMPARE(shown.model.tickedRows(), (QList<int>{2, 3}));
        QCOMPARE(shown.bar()->value(), 3);
        shown.wheel(-50);
        QCOMPARE(shown.bar()->value(), 0);
        QCOMPARE(ShownList::focusedFile(), fileOf(3).path);
        QCOMPARE(findFault(shown), QString());
    }

    // The list can be scrolled while another window is active.
    void theFocusStaysWithItsRowWhileTheWindowIsInactive()
    {
        ShownList shown(500);
        shown.click(boxInRow + QPoint(0, 2 * rowHeight));
        QWidget other;
        other.show();
        other.activateWindow();
        QTRY_VERIFY(other.isActiveWindow());
        shown.wheel(50);
        ShownList::settle();
        QVERIFY(shown.bar()->value() > 100);
        shown.views.activateWindow();
        QTRY_VERIFY(shown.views.isActiveWindow());
        QCOMPARE(ShownList::focusedFile(), fileOf(2).path);
        QCOMPARE(findFault(shown), QString());
        shown.press(Qt::Key_Space);
        QCOMPARE(shown.model.tickedRows(), QList<int>{});
    }

    void keysMoveFromRowToRow()
    {
        ShownList shown(100);
        shown.before->setFocus();
        shown.press(Qt::Key_Tab);
        QCOMPARE(ShownList::focusedFile(), fileOf(0).path);
        const int page = shown.wholeRowCount();
        const QList<std::pair<int, int>> steps{
            {Qt::Key_Up, 0},        {Qt::Key_Down, 1},   {Qt::Key_PageDown, 1 + page},
            {Qt::Key_PageUp, 1},    {Qt::Key_End, 99},   {Qt::Key_Down, 99},
            {Qt::Key_PageDown, 99}, {Qt::Key_Up, 98},    {Qt::Key_PageUp, 98 - page},
            {Qt::Key_Home, 0},      {Qt::Key_PageUp, 0}, {Qt::Key_Right, 1},
            {Qt::Key_Left, 0},
        };
        for (const auto &[key, row] : steps) {
            shown.press(key);
            QCOMPARE(ShownList::focusedFile(), fileOf(row).path);
            QVERIFY(!QApplication::focusWidget()->visibleRegion().isEmpty());
            QCOMPARE(findFault(shown), QString());
        }
        QCOMPARE(shown.model.tickedCount(), 0);
        shown.press(Qt::Key_Space);
        QCOMPARE(shown.model.tickedRows(), QList<int>{0});
    }

    // The Tab key stops once in the list, for any number of rows.
    void theTabKeyPassesTheListInOneStep()
    {
        ShownList shown(100);
        shown.before->setFocus();
        shown.press(Qt::Key_Tab);
        shown.press(Qt::Key_Down);
        shown.press(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), shown.after);
        QTest::keyClick(shown.views.windowHandle(), Qt::Key_Tab, Qt::ShiftModifier);
        QCOMPARE(ShownList::focusedFile(), fileOf(1).path);
        QTest::keyClick(shown.views.windowHandle(), Qt::Key_Tab, Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget(), shown.before);
        // The row of the last focus is out of view: the first visible row gets the focus.
        shown.bar()->setValue(50);
        shown.press(Qt::Key_Tab);
        QCOMPARE(ShownList::focusedFile(), fileOf(50).path);
        QCOMPARE(shown.bar()->value(), 50);
    }

    void aClickScrollsNothing()
    {
        ShownList shown(100);
        // The lowest row is cut off, but its box is visible.
        const int cut = shown.wholeRowCount();
        const QPoint box = boxInRow + QPoint(0, cut * rowHeight);
        shown.views.resize(
            640, shown.views.height() + 50 + cut * rowHeight - shown.list->viewport()->height());
        ShownList::settle();
        QVERIFY(shown.list->viewport()->rect().contains(box));
        shown.click(box);
        QCOMPARE(shown.model.tickedRows(), QList<int>{cut});
        QCOMPARE(shown.bar()->value(), 0);
    }

    void removedRowsLeaveTheOthersAsTheyAre()
    {
        ShownList shown(200);
        shown.model.setTicked(11, true);
        shown.bar()->setValue(10);
        shown.click(boxInRow + QPoint(0, 2 * rowHeight));
        QCOMPARE(shown.model.tickedRows(), (QList<int>{11, 12}));
        shown.model.removeRows({0, 3, 9, 11, 199});
        ShownList::settle();
        QCOMPARE(shown.model.rowCount(), 195);
        QCOMPARE(shown.model.tickedRows(), QList<int>{8});
        QCOMPARE(shown.model.at(8).path, fileOf(12).path);
        QCOMPARE(shown.model.tickedSize(), fileOf(12).size);
        QCOMPARE(shown.bar()->value(), 7); // file 10 is still on top
        QCOMPARE(ShownList::focusedFile(), fileOf(12).path);
        QCOMPARE(findFault(shown), QString());
        // When the row with the focus is removed, the next row gets the focus.
        shown.model.removeRows({8});
        QCOMPARE(ShownList::focusedFile(), fileOf(13).path);
        QCOMPARE(findFault(shown), QString());
        QList<int> all(194);
        std::iota(all.begin(), all.end(), 0);
        shown.model.removeRows(all);
        QCOMPARE(findFault(shown), QString());
        QVERIFY(shown.list->cards().isEmpty());
        QCOMPARE(shown.bar()->maximum(), 0);
    }

    void newFilesStartAtTheTopAndUnticked()
    {
        ShownList shown(300);
        shown.click(boxInRow);
        shown.bar()->setValue(200);
        shown.model.setFiles(files(20));
        ShownList::settle();
        QCOMPARE(shown.bar()->value(), 0);
        QCOMPARE(shown.model.tickedCount(), 0);
        QCOMPARE(shown.model.tickedSize(), 0);
        QCOMPARE(findFault(shown), QString());
        shown.model.setFiles({});
        QCOMPARE(findFault(shown), QString());
    }

    void theRowsFillAnyHeight()
    {
        ShownList shown(60);
        shown.click(boxInRow);
        QRandomGenerator random(3);
        for (int i = 0; i < 60; ++i) {
            shown.views.resize(400 + random.bounded(500), 120 + random.bounded(1200));
            ShownList::settle();
            QCOMPARE(findFault(shown), QString());
            shown.wheel(random.bounded(7) - 3);
            QCOMPARE(findFault(shown), QString());
        }
        // At the end of the scroll bar the last row is completely visible.
        shown.bar()->setValue(shown.bar()->maximum());
        ShownList::settle();
        QVERIFY(
            shown.list->viewport()->rect().contains(shown.list->cards().constLast()->geometry()));
        QCOMPARE(shown.list->cards().constLast()->info().name, u"file 59.bin"_s);
    }
};

QTEST_MAIN(TestFileCardList)
#include "tst_filecardlist.moc"
