#include "categorywidget.h"
#include "cleanitemwidget.h"
#include "itemdetaildialog.h"

#include "appinfo.h"
#include "detailitemwidget.h"
#include "logcapture.h"
#include "scriptedengine.h"
#include "signalspy.h"
#include "svgicon.h"
#include "testhome.h"
#include "testtree.h"
#include "uisupport.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QCheckBox *headerBox(const CategoryWidget &widget)
{
    return widget.findChild<QCheckBox *>(u"categoryCheck"_s);
}

QPushButton *button(const QWidget &widget, const QString &name)
{
    return widget.findChild<QPushButton *>(name);
}

QList<CleanItemWidget *> rows(const CategoryWidget &widget)
{
    return widget.findChildren<CleanItemWidget *>();
}

void tick(CategoryWidget &widget, int row)
{
    QTest::mouseClick(rows(widget).at(row)->findChild<QCheckBox *>(), Qt::LeftButton, {}, {8, 8});
}

} // namespace

class TestResultWidgets : public QObject
{
    Q_OBJECT
public:
    explicit TestResultWidgets(const TestHome &) { }

private Q_SLOTS:
    void twentyFiveItemsComeInPagesOfTen()
    {
        CleanCategory category = scriptedCategory(u"temp_files"_s, 25);
        CategoryWidget widget(&category);
        show(widget);
        SignalSpy expanded(&widget, &CategoryWidget::expandedChanged);
        QCOMPARE(rows(widget).size(), 0);
        QTest::mouseClick(button(widget, u"expandBtn"_s), Qt::LeftButton);
        QCOMPARE(expanded.size(), 1);
        QVERIFY(category.expanded);
        QCOMPARE(rows(widget).size(), 10);
        QPushButton *more = button(widget, u"loadMoreBtn"_s);
        QCOMPARE(more->text(), u"Load more (15 remaining)"_s);
        QVERIFY(more->isVisible());
        QTest::mouseClick(more, Qt::LeftButton);
        QCOMPARE(rows(widget).size(), 20);
        QCOMPARE(more->text(), u"Load more (5 remaining)"_s);
        QTest::mouseClick(more, Qt::LeftButton);
        QCOMPARE(rows(widget).size(), 25);
        QVERIFY(!more->isVisible());
    }

    void collapsingKeepsTheRows()
    {
        CleanCategory category = scriptedCategory(u"temp_files"_s, 12);
        CategoryWidget widget(&category);
        show(widget);
        QPushButton *expand = button(widget, u"expandBtn"_s);
        QCOMPARE(expand->text(), u"▼"_s);
        expand->click();
        QCOMPARE(expand->text(), u"▲"_s);
        const QList<CleanItemWidget *> before = rows(widget);
        QVERIFY(before.constFirst()->isVisible());
        expand->click();
        QVERIFY(!category.expanded);
        QVERIFY(!before.constFirst()->isVisible());
        expand->click();
        QCOMPARE(rows(widget), before);
        QVERIFY(before.constFirst()->isVisible());
    }

    void aClickOnTheHeaderExpands()
    {
        CleanCategory category = scriptedCategory(u"temp_files"_s, 2);
        CategoryWidget widget(&category);
        show(widget);
        QTest::mouseClick(widget.findChild<QWidget *>(u"categoryHeader"_s), Qt::LeftButton, {},
                          {300, 20});
        QVERIFY(widget.isExpanded());
    }

    void tickingItemsUpdatesTheHeader()
    {
        CleanCategory category = scriptedCategory(u"temp_files"_s, 3);
        CategoryWidget widget(&category);
        show(widget);
        widget.toggleExpanded();
        SignalSpy changed(&widget, &CategoryWidget::selectionChanged);
        QCOMPARE(headerBox(widget)->checkState(), Qt::Checked);
        tick(widget, 0);
        QVERIFY(!category.items.at(0).checked);
        QVERIFY(category.checked);
        QCOMPARE(headerBox(widget)->checkState(), Qt::PartiallyChecked);
        tick(widget, 1);
        QCOMPARE(headerBox(widget)->checkState(), Qt::PartiallyChecked);
        tick(widget, 2);
        QCOMPARE(headerBox(widget)->checkState(), Qt::Unchecked);
        QVERIFY(!category.checked);
        tick(widget, 1);
        QVERIFY(category.checked);
        QCOMPARE(headerBox(widget)->checkState(), Qt::PartiallyChecked);
        tick(widget, 0);
        tick(widget, 2);
        QCOMPARE(headerBox(widget)->checkState(), Qt::Checked);
        QCOMPARE(changed.size(), 6);
    }

    void tickingOneItemOfAnUnselectedCategorySelectsItPartly()
    {
        CleanCategory category = scriptedCategory(u"temp_files"_s, 3);
        category.setChecked(false);
        CategoryWidget widget(&category);
        show(widget);
        widget.toggleExpanded();
        QCOMPARE(headerBox(widget)->checkState(), Qt::Unchecked);
        tick(widget, 1);
        QVERIFY(category.checked);
        QCOMPARE(category.checkedCount(), 1);
        QCOMPARE(headerBox(widget)->checkState(), Qt::PartiallyChecked);
    }

    void aCategoryThatStartsUnselectedIsShownWithoutTicks()
    {
        // As the engine makes it: the category is unticked, its items are ticked.
        CleanCategory category = scriptedCategory(u"windows_old"_s, 25);
        category.checked = false;
        CategoryWidget widget(&category);
        show(widget);
        widget.toggleExpanded();
        QCOMPARE(headerBox(widget)->checkState(), Qt::Unchecked);
        QVERIFY(!rows(widget).at(0)->isChecked());
        tick(widget, 0);
        QCOMPARE(category.checkedCount(), 1);
        QCOMPARE(headerBox(widget)->checkState(), Qt::PartiallyChecked);
        tick(widget, 0);
        QCOMPARE(category.checkedCount(), 0);
        QVERIFY(!category.checked);
    }

    void aTickedCategoryOfUntickedItemsIsShownUnticked()
    {
        CleanCategory category = scriptedCategory(u"x"_s, 2);
        category.items[0].checked = false;
        category.items[1].checked = false;
        CategoryWidget widget(&category);
        show(widget);
        QVERIFY(category.checked);
        QCOMPARE(headerBox(widget)->checkState(), Qt::Unchecked);
        QTest::mouseClick(headerBox(widget), Qt::LeftButton, {}, {8, 8});
        QCOMPARE(headerBox(widget)->checkState(), Qt::Checked);
        QCOMPARE(category.checkedCount(), 2);
    }

    void showingOrHidingSizesKeepsThePartialTick()
    {
        CleanCategory category = scriptedCategory(u"x"_s, 3);
        category.items[1].checked = false;
        CategoryWidget widget(&category);
        QCOMPARE(headerBox(widget)->checkState(), Qt::PartiallyChecked);
        widget.setShowSizes(false);
        QCOMPARE(headerBox(widget)->checkState(), Qt::PartiallyChecked);
    }

    void theCategorysRiskIsShown_data()
    {
        QTest::addColumn<int>("level");
        QTest::addColumn<QString>("word");
        QTest::newRow("low") << 0 << QString();
        QTest::newRow("medium") << 1 << u"Medium"_s;
        QTest::newRow("high") << 2 << u"High"_s;
    }

    void theCategorysRiskIsShown()
    {
        QFETCH(int, level);
        QFETCH(QString, word);
        CleanCategory category = scriptedCategory(u"x"_s, 1);
        category.riskLevel = level;
        const CategoryWidget widget(&category);
        const auto *risk = widget.findChild<QLabel *>(u"categoryRisk"_s);
        QCOMPARE(risk ? risk->text() : QString(), word);
    }

    void theKeyboardGoesThroughACategoryFromTopToBottom()
    {
        CleanCategory category = scriptedCategory(u"x"_s, 15);
        CategoryWidget widget(&category);
        show(widget);
        widget.toggleExpanded();
        const QList<QWidget *> chain = widget.focusChain();
        QCOMPARE(chain.size(), 3 + 10 + 1);
        for (qsizetype i = 1; i < chain.size(); ++i)
            QCOMPARE(nextByTab(chain.at(i - 1)), chain.at(i));
    }

    void theHeaderBoxSetsLoadedAndUnloadedItems()
    {
        CleanCategory category = scriptedCategory(u"temp_files"_s, 25);
        CategoryWidget widget(&category);
        show(widget);
        widget.toggleExpanded();
        SignalSpy changed(&widget, &CategoryWidget::selectionChanged);
        QTest::mouseClick(headerBox(widget), Qt::LeftButton, {}, {8, 8});
        QCOMPARE(category.checkedCount(), 0);
        QVERIFY(!category.checked);
        QVERIFY(!rows(widget).at(3)->isChecked());
        QCOMPARE(changed.size(), 1);
        QTest::mouseClick(headerBox(widget), Qt::LeftButton, {}, {8, 8});
        QCOMPARE(category.checkedCount(), 25);
        QVERIFY(category.checked);
        QVERIFY(rows(widget).at(3)->isChecked());
    }

    void aClickOnAPartlyTickedHeaderTicksAll()
    {
        CleanCategory category = scriptedCategory(u"temp_files"_s, 3);
        CategoryWidget widget(&category);
        show(widget);
        widget.toggleExpanded();
        tick(widget, 0);
        QTest::mouseClick(headerBox(widget), Qt::LeftButton, {}, {8, 8});
        QCOMPARE(headerBox(widget)->checkState(), Qt::Checked);
        QCOMPARE(category.checkedCount(), 3);
    }

    void theHeaderShowsCountAndTickedSize()
    {
        CleanCategory category = scriptedCategory(u"temp_files"_s, 3);
        CategoryWidget widget(&category);
        show(widget);
        widget.toggleExpanded();
        const auto *size = widget.findChild<QLabel *>(u"categorySize"_s);
        QCOMPARE(button(widget, u"itemCount"_s)->text(), u"3 items"_s);
        QCOMPARE(size->text(), u"3.0 KB"_s);
        tick(widget, 0);
        QCOMPARE(button(widget, u"itemCount"_s)->text(), u"3 items"_s);
        QCOMPARE(size->text(), u"2.0 KB"_s);
    }

    void sizesAreHiddenOnRequest()
    {
        CleanCategory category = scriptedCategory(u"temp_files"_s, 12);
        CategoryWidget widget(&category);
        show(widget);
        widget.toggleExpanded();
        widget.setShowSizes(false);
        button(widget, u"loadMoreBtn"_s)->click();
        QVERIFY(!widget.findChild<QLabel *>(u"categorySize"_s)->isVisible());
        for (const CleanItemWidget *row : rows(widget))
            QVERIFY(!row->findChild<QLabel *>(u"itemSize"_s)->isVisible());
        widget.setShowSizes(true);
        QVERIFY(widget.findChild<QLabel *>(u"categorySize"_s)->isVisible());
    }

    // Pictures are kept, and no two that differ are mixed up.
    void anIconHasItsSizeResolutionAndColour()
    {
        const QString path = u":/icons/trash.svg"_s;
        const QImage usual = svgPixmap(path, {24, 24}, 1).toImage();
        QCOMPARE(svgPixmap(path, {24, 24}, 1).toImage(), usual);
        QCOMPARE(usual.size(), QSize(24, 24));
        QCOMPARE(svgPixmap(path, {24, 20}, 1).size(), QSize(24, 20));
        QCOMPARE(svgPixmap(path, {20, 24}, 1).size(), QSize(20, 24));
        const QPixmap fine = svgPixmap(path, {24, 24}, 2);
        QCOMPARE(fine.size(), QSize(48, 48));
        QCOMPARE(fine.devicePixelRatio(), 2.0);
        const QImage red = svgPixmap(path, {24, 24}, 1, Qt::red).toImage();
        const QImage blue = svgPixmap(path, {24, 24}, 1, Qt::blue).toImage();
        QVERIFY(red != usual && blue != usual && red != blue);
        QVERIFY(svgPixmap(u":/icons/chevron-left.svg"_s, {24, 24}, 1).toImage() != usual);
        QVERIFY(svgPixmap(u":/icons/none.svg"_s, {24, 24}, 1).isNull());
    }

    void iconsFollowTheId_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("icon");
        QTest::newRow("own icon") << u"temp_files"_s << u"temp_files"_s;
        QTest::newRow("without icon") << u"memory_dumps"_s << u"default"_s;
        QTest::newRow("unknown") << u"no such"_s << u"default"_s;
        QTest::newRow("path") << u"../app"_s << u"default"_s;
        QTest::newRow("empty") << QString() << u"default"_s;
        QTest::newRow("chrome") << u"google_chrome_cookies"_s << u"cookies"_s;
        QTest::newRow("edge") << u"microsoft_edge_cache"_s << u"cache"_s;
        QTest::newRow("firefox") << u"mozilla_firefox_session"_s << u"session"_s;
        QTest::newRow("opera") << u"opera_history"_s << u"history"_s;
        QTest::newRow("brave") << u"brave_downloads"_s << u"downloads"_s;
        QTest::newRow("registry") << u"mui_cache"_s << u"mui_cache"_s;
    }

    void iconsFollowTheId()
    {
        QFETCH(QString, id);
        QFETCH(QString, icon);
        CleanCategory category = scriptedCategory(id, 1);
        const CategoryWidget widget(&category);
        const QImage shown = widget.findChild<QLabel *>(u"categoryIcon"_s)->pixmap().toImage();
        const QPixmap expected = svgPixmap(u":/icons/categories/%1.svg"_s.arg(icon), {22, 22},
                                           widget.devicePixelRatioF());
        QVERIFY(!expected.isNull());
        QCOMPARE(shown, expected.toImage());
    }

    void theDescriptionOfAnItemIsShownInItsRow()
    {
        CleanCategory category = scriptedCategory(u"x"_s, 2);
        category.items[0].riskLevel = HighRisk;
        category.items[0].description = u"Holds <b>more</b>\nthan it seems"_s;
        const QString text = u"Holds <b>more</b>\uFFFDthan it seems"_s;
        const QString shown = u"Holds &lt;b&gt;more&lt;/b&gt;\uFFFDthan it seems"_s;

        const CleanItemWidget row(&category, 0);
        QCOMPARE(row.toolTip(), shown);
        QCOMPARE(row.findChild<QLabel *>(u"itemName"_s)->toolTip(), "item 0\n"_L1 + text);
        QCOMPARE(row.findChild<QLabel *>(u"itemPath"_s)->toolTip(),
                 "/folder/of/x/item 0\n"_L1 + text);
        QCOMPARE(row.findChild<QCheckBox *>()->accessibleDescription(),
                 "Risk: High, 1.0 KB, /folder/of/x/item 0, "_L1 + text);
        QCOMPARE(row.findChild<QLabel *>(u"itemRisk"_s)->text(), u"High"_s);
        // A tool tip is shown as rich text if its first line looks like markup.
        QVERIFY(!Qt::mightBeRichText(row.findChild<QLabel *>(u"itemName"_s)->toolTip()));
        category.items[0].name = u"<i>item</i>"_s;
        QCOMPARE(CleanItemWidget(&category, 0).findChild<QLabel *>(u"itemName"_s)->toolTip(),
                 "&lt;i&gt;item&lt;/i&gt;<br>"_L1 + shown);
        const CleanItemWidget plain(&category, 1);
        QVERIFY(plain.toolTip().isEmpty());
        QCOMPARE(plain.findChild<QLabel *>(u"itemName"_s)->toolTip(), u"item 1"_s);
        QCOMPARE(plain.findChild<QCheckBox *>()->accessibleDescription(),
                 u"Risk: Low, 1.0 KB, /folder/of/x/item 1"_s);

        const DetailItemWidget detail(category.items.at(0), false);
        const auto *location = button(detail, u"openLocationBtn"_s);
        QCOMPARE(detail.toolTip(), shown);
        QCOMPARE(detail.findChild<QLabel *>(u"itemName"_s)->toolTip(),
                 "/folder/of/x/item 0\n"_L1 + text);
        QCOMPARE(detail.accessibleDescription(), text);
        QCOMPARE(location->accessibleDescription(), text);
        QCOMPARE(location->whatsThis(), shown);
        const DetailItemWidget plainDetail(category.items.at(1), false);
        QVERIFY(plainDetail.toolTip().isEmpty());
        QCOMPARE(plainDetail.findChild<QLabel *>(u"itemName"_s)->toolTip(),
                 u"/folder/of/x/item 1"_s);
        QVERIFY(button(plainDetail, u"openLocationBtn"_s)->accessibleDescription().isEmpty());
    }

    void longTextsAreShortenedInTheMiddle()
    {
        CleanCategory category = scriptedCategory(u"x"_s, 1);
        category.items[0].name = u"begin"_s + QString(4000, u'n') + u"end.tmp"_s;
        category.items[0].path = u"/begin/"_s + QString(4000, u'p') + u"/end.tmp"_s;
        CleanItemWidget row(&category, 0);
        row.resize(600, 56);
        row.show();
        QVERIFY(QTest::qWaitForWindowExposed(&row));
        for (const QLatin1StringView name : {"itemName"_L1, "itemPath"_L1}) {
            const auto *label = row.findChild<QLabel *>(name);
            QVERIFY(label->text().contains(u"begin"_s));
            QVERIFY(label->text().endsWith(u"end.tmp"_s));
            QVERIFY(label->fontMetrics().horizontalAdvance(label->text()) <= 600 - 186);
            QVERIFY(label->fontMetrics().horizontalAdvance(label->text()) <= label->width());
        }
        const QString narrow = row.findChild<QLabel *>(u"itemPath"_s)->text();
        row.resize(900, 56);
        QTRY_VERIFY(row.findChild<QLabel *>(u"itemPath"_s)->text().size() > narrow.size());
    }

    void namesAreShownAsText()
    {
        CleanCategory category = scriptedCategory(u"x"_s, 1);
        category.name = u"<b>bold</b>"_s;
        category.items[0].name = u"<img src=x>\n&amp;"_s;
        CategoryWidget widget(&category);
        show(widget);
        widget.toggleExpanded();
        const auto *name = widget.findChild<QLabel *>(u"itemName"_s);
        QCOMPARE(name->textFormat(), Qt::PlainText);
        QCOMPARE(name->text(), u"<img src=x>\uFFFD&amp;"_s);
        QCOMPARE(name->toolTip(), u"&lt;img src=x&gt;\uFFFD&amp;amp;"_s);
    }

    void hoveringPaintsABackground()
    {
        CleanCategory category = scriptedCategory(u"x"_s, 1);
        CleanItemWidget row(&category, 0);
        row.resize(600, 56);
        const QPoint spot(2, 2);
        const auto colourAt = [&] {
            QImage image(row.size(), QImage::Format_ARGB32_Premultiplied);
            image.fill(Qt::red);
            row.render(&image, {}, {}, {});
            return image.pixelColor(spot);
        };
        QCOMPARE(colourAt(), QColor(Qt::red));
        QEnterEvent enter({5, 5}, {5, 5}, {5, 5});
        QApplication::sendEvent(&row, &enter);
        QCOMPARE(colourAt(), QColor(0xF9, 0xFA, 0xFB));
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(&row, &leave);
        QCOMPARE(colourAt(), QColor(Qt::red));
    }

    void theDetailDialogLoadsInBatches()
    {
        const CleanCategory category = scriptedCategory(u"x"_s, 180);
        ItemDetailDialog dialog(&category);
        QCOMPARE(dialog.loadedCount(), 50);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QTest::qWait(50);
        QCOMPARE(dialog.loadedCount(), 50); // more than a screen already
        auto *bar = dialog.findChild<QScrollArea *>()->verticalScrollBar();
        bar->setValue(bar->maximum() - 150);
        QCOMPARE(dialog.loadedCount(), 50);
        bar->setValue(bar->maximum() - 50);
        QCOMPARE(dialog.loadedCount(), 100);
        QTest::qWait(50);
        for (int i = 0; i < 5; ++i) {
            bar->setValue(bar->maximum());
            QTest::qWait(20);
        }
        QCOMPARE(dialog.loadedCount(), 180);
        QCOMPARE(dialog.findChildren<DetailItemWidget *>().size(), 180);
    }

    void aTallDetailDialogFillsItsFirstScreen()
    {
        const CleanCategory category = scriptedCategory(u"x"_s, 400);
        ItemDetailDialog dialog(&category);
        dialog.resize(760, 6000);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        const auto *area = dialog.findChild<QScrollArea *>();
        QTRY_VERIFY(area->widget()->height() > area->viewport()->height() + 50);
        QVERIFY(dialog.loadedCount() < 400);
    }

    void theDetailDialogShowsSizeAndCount()
    {
        CleanCategory category = scriptedCategory(u"x"_s, 3);
        category.items[0].checked = false;
        const ItemDetailDialog dialog(&category);
        QCOMPARE(dialog.findChild<QLabel *>(u"detailTitle"_s)->text(), u"Category x"_s);
        QCOMPARE(dialog.findChild<QLabel *>(u"detailSummary"_s)->text(), u"3.0 KB  |  3 files"_s);
    }

    void theCountOpensTheDetails()
    {
        CleanCategory category = scriptedCategory(u"x"_s, 3);
        CategoryWidget widget(&category);
        show(widget);
        QTest::mouseClick(button(widget, u"itemCount"_s), Qt::LeftButton);
        QPointer<ItemDetailDialog> dialog =
            qobject_cast<ItemDetailDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        QTest::mouseClick(dialog->findChild<QPushButton *>(u"backBtn"_s), Qt::LeftButton);
        QTRY_VERIFY(!dialog);
    }

    void theDetailsAreDeletedWithTheirCategory()
    {
        CleanCategory category = scriptedCategory(u"x"_s, 3);
        auto widget = std::make_unique<CategoryWidget>(&category);
        show(*widget);
        widget->showDetails();
        QPointer<QWidget> dialog = QApplication::activeModalWidget();
        QVERIFY(dialog);
        widget.reset();
        QVERIFY(!dialog);
    }

    void aLocationThatCannotBeShownIsExplained_data()
    {
        QTest::addColumn<bool>("isThere");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("line");
        QTest::newRow("gone") << false << u"This file no longer exists:\n%1"_s
                              << u"[WARN] The file whose location was asked for is gone: %1"_s;
#ifndef Q_OS_WIN // Windows always has a file manager
        QTest::newRow("no file manager")
            << true << u"The file manager could not be started to show this file:\n%1"_s
            << u"[WARN] The file manager could not be started for %1"_s;
#endif
    }

    void aLocationThatCannotBeShownIsExplained()
    {
        QFETCH(bool, isThere);
        QFETCH(QString, text);
        QFETCH(QString, line);
        const TestTree tree;
        const QString path = isThere ? tree.file(u"a <b>file"_s) : tree.path(u"a <b>file"_s);
        CleanCategory category = scriptedCategory(u"x"_s, 1);
        category.items.first().path = path;
        ItemDetailDialog dialog(&category);
        dialog.show();
        const EmptySearchPath noPrograms;
        const LogCapture log;
        const MessageBoxes boxes(QMessageBox::Ok);
        dialog.findChild<QPushButton *>(u"openLocationBtn"_s)->click();
        QCOMPARE(boxes.seen(),
                 QStringList{u"Notice|"_s + text.arg(QDir::toNativeSeparators(path))});
        QCOMPARE(boxes.icons(), QList<QMessageBox::Icon>{QMessageBox::Warning});
        QCOMPARE(log.count(line.arg(path)), 1);
    }

    void anItemWithoutAPathHasNoLocation()
    {
        CleanCategory category = scriptedCategory(u"x"_s, 1);
        category.items.first().path.clear();
        ItemDetailDialog dialog(&category);
        dialog.show();
        const MessageBoxes boxes(QMessageBox::Ok);
        const LogCapture log;
        dialog.onOpenLocation({});
        QVERIFY(boxes.seen().isEmpty());
        QVERIFY(!log.contains(u"[WARN]"_s));
    }

private:
    static void show(CategoryWidget &widget)
    {
        widget.resize(640, 60);
        widget.show();
        QVERIFY(QTest::qWaitForWindowExposed(&widget));
    }
};

SWEEPWISE_TEST_MAIN(TestResultWidgets, QApplication)
#include "tst_resultwidgets.moc"
