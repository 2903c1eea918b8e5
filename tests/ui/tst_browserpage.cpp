#include "browserpage.h"

#include "appinfo.h"
#include "application.h"
#include "browsercleaner.h"
#include "browsergroupwidget.h"
#include "browsersubitem.h"
#include "flowlayout.h"
#include "itemdetaildialog.h"
#include "registryfixture.h"
#include "scriptedengine.h"
#include "signalspy.h"
#include "svgicon.h"
#include "testhome.h"
#include "uisupport.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLayout>
#include <QPointer>
#include <QPushButton>
#include <QSettings>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 30'000;

/// The groups in the order of the layout.
QList<BrowserGroupWidget *> groups(const QWidget &page)
{
    QList<BrowserGroupWidget *> list = page.findChildren<BrowserGroupWidget *>();
    std::sort(list.begin(), list.end(), [](const QWidget *a, const QWidget *b) {
        const QLayout *layout = a->parentWidget()->layout();
        return layout->indexOf(a) < layout->indexOf(b);
    });
    return list;
}

QList<BrowserSubItem *> subItems(const QWidget &group)
{
    return group.findChildren<BrowserSubItem *>();
}

template<class Widget>
QString text(const QWidget &parent, const QString &name)
{
    return parent.findChild<Widget *>(name)->text();
}

QStringList names(const BrowserGroupWidget &group)
{
    QStringList list{text<QLabel>(group, u"browserName"_s)};
    for (const BrowserSubItem *subItem : subItems(group))
        list.append(text<QLabel>(*subItem, u"subItemName"_s));
    return list;
}

QCheckBox *header(const BrowserGroupWidget &group)
{
    return group.findChild<QCheckBox *>(u"browserCheck"_s);
}

QCheckBox *box(const BrowserSubItem &subItem)
{
    return subItem.findChild<QCheckBox *>(u"subItemCheck"_s);
}

QCheckBox *browserBox(const BrowserPage &page, const QString &name)
{
    const auto boxes =
        page.findChild<QWidget *>(u"browserSelectionBar"_s)->findChildren<QCheckBox *>();
    for (QCheckBox *candidate : boxes) {
        if (candidate->text() == name)
            return candidate;
    }
    return nullptr;
}

QImage image(const QString &path, QSize size)
{
    return svgPixmap(path, size, 1.0).toImage();
}

CleanCategory category(const QString &id, const QString &name, int count)
{
    CleanCategory made = scriptedCategory(id, count);
    made.name = name;
    return made;
}

void click(QCheckBox *checkBox)
{
    QTest::mouseClick(checkBox, Qt::LeftButton, {}, {8, checkBox->height() / 2});
}

} // namespace

class TestBrowserPage : public QObject
{
    Q_OBJECT
public:
    explicit TestBrowserPage(const TestHome &home)
        : m_home(home)
    {
    }

private Q_SLOTS:
    void initTestCase()
    {
        // Two browsers that are installed according to the uninstall list.
        m_fixture = std::make_unique<RegistryFixture>(m_home);
        const QString list =
            u"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\"_s;
        m_fixture->addText(list + "Sweepwise Test 1"_L1, u"DisplayName"_s, u"Brave (64 bit)"_s);
        m_fixture->addText(list + "Sweepwise Test 2"_L1, u"DisplayName"_s, u"opera stable"_s);
        m_fixture->write();
        Application::instance()->initialize();
        m_cleaner = Application::instance()->browserCleaner();
        QCOMPARE(m_cleaner->rules().size(), 23);
    }
    void cleanupTestCase() { m_fixture.reset(); }

    void thePageShowsItsTitles()
    {
        const BrowserPage page;
        QStringList shown;
        for (const QLabel *label : page.findChildren<QLabel *>())
            shown.append(label->text());
        for (const QString &expected :
             {u"Browser Cleaner"_s, u"Clean browser cache, cookies and history"_s,
              u"Cleanable Data"_s, u"Select Browser:"_s})
            QVERIFY2(shown.contains(expected), qPrintable(expected));
        QCOMPARE(page.engine(), m_cleaner);
        QCOMPARE(page.findChild<QLabel *>(u"browserSelectionLabel"_s)->styleSheet(),
                 u"color: #6B7280; font-size: 13px;"_s);
    }

    // --- the selection bar

    void onlyInstalledBrowsersHaveACheckBox()
    {
        const BrowserPage page;
        const auto boxes =
            page.findChild<QWidget *>(u"browserSelectionBar"_s)->findChildren<QCheckBox *>();
        QStringList list;
        for (const QCheckBox *checkBox : boxes) {
            list.append(
                u"%1 %2"_s.arg(checkBox->text(), checkBox->property("browserType").toString()));
            QVERIFY(checkBox->isChecked());
            QVERIFY(checkBox->styleSheet().endsWith(
                u" font-size: 13px; spacing: 8px; }QCheckBox::indicator { width: 16px; height: 16px; }"_s));
        }
        QCOMPARE(list, (QStringList{u"Opera 3"_s, u"Brave 4"_s}));
    }

    void onlyTickedBrowsersAreScanned()
    {
        BrowserPage page;
        page.show();
        SignalSpy progress(m_cleaner, &CleanEngine::scanProgress);
        scan(page);
        QCOMPARE(progress.size(), 2);
        click(browserBox(page, u"Opera"_s));
        QVERIFY(!m_cleaner->isBrowserEnabled(Browser::Opera));
        QVERIFY(m_cleaner->isBrowserEnabled(Browser::Brave));
        scan(page);
        QCOMPARE(progress.size(), 3);
        QCOMPARE(progress.at(2).at(2).toString(), u"Brave"_s);
        click(browserBox(page, u"Opera"_s));
        QVERIFY(m_cleaner->isBrowserEnabled(Browser::Opera));
        scan(page);
        QCOMPARE(progress.size(), 5);
    }

    // A user who unticks a browser does not expect that it is cleaned.
    void anUntickedBrowserIsLeftOutOfTheClean()
    {
        ScriptedEngine engine;
        engine.found = {category(u"opera_cache"_s, u"Opera - Cache"_s, 3),
                        category(u"opera_cookies"_s, u"Opera - Cookies"_s, 2),
                        category(u"opera_logs"_s, u"Opera - Logs"_s, 4),
                        category(u"brave_cache"_s, u"Brave - Cache"_s, 5)};
        engine.found[1].checked = false;
        engine.found[2].items[1].checked = false;
        BrowserPage page;
        show(page, engine);
        const auto selected = [&page] { return text<QLabel>(page, u"selectionLabel"_s); };
        const auto boxes = [&page] {
            QList<Qt::CheckState> states{header(*groups(page).at(0))->checkState()};
            for (const BrowserSubItem *subItem : subItems(*groups(page).at(0)))
                states.append(subItem->checkState());
            return states;
        };
        const QList<Qt::CheckState> before{Qt::PartiallyChecked, Qt::Checked, Qt::Unchecked,
                                           Qt::PartiallyChecked};
        QCOMPARE(boxes(), before);
        QCOMPARE(selected(), u"Selected: 11 items, 11.0 KB"_s);

        click(browserBox(page, u"Opera"_s));
        QCOMPARE(selected(), u"Selected: 5 items, 5.0 KB"_s);
        QCOMPARE(text<QLabel>(page, u"statisticValue"_s), u"5.0 KB"_s);
        QCOMPARE(boxes(), QList<Qt::CheckState>(4, Qt::Unchecked));
        groups(page).at(0)->toggleExpanded();
        click(header(*groups(page).at(0)));
        click(box(*subItems(*groups(page).at(0)).at(0)));
        QCOMPARE(selected(), u"Selected: 5 items, 5.0 KB"_s);
        QCOMPARE(CheckedRecords(engine.result()).records(false).categories.size(), 1);
        QCOMPARE(CheckedRecords(engine.result()).records(false).categories.at(0).id,
                 u"brave_cache"_s);

        // Ticking the browser again restores all ticks.
        click(browserBox(page, u"Opera"_s));
        QCOMPARE(boxes(), before);
        QCOMPARE(selected(), u"Selected: 11 items, 11.0 KB"_s);
        QVERIFY(!engine.result().categories.at(2).items.at(1).checked);
        click(header(*groups(page).at(0)));
        QCOMPARE(selected(), u"Selected: 14 items, 14.0 KB"_s);

        // Without any browser there is nothing to clean.
        click(browserBox(page, u"Opera"_s));
        click(browserBox(page, u"Brave"_s));
        QVERIFY(!page.findChild<QPushButton *>(u"cleanBtn"_s)->isEnabled());
        click(browserBox(page, u"Opera"_s));
        click(browserBox(page, u"Brave"_s));
        QCOMPARE(selected(), u"Selected: 14 items, 14.0 KB"_s);
    }

    void aBrowserUntickedDuringAScanIsUntickedInTheList()
    {
        ScriptedEngine engine;
        engine.found = {category(u"opera_cache"_s, u"Opera - Cache"_s, 3),
                        category(u"brave_cache"_s, u"Brave - Cache"_s, 5)};
        engine.hold = true;
        BrowserPage page;
        page.setEngine(&engine);
        page.show();
        const SignalSpy finished(&page, &BasePage::scanFinished);
        page.startScan();
        click(browserBox(page, u"Opera"_s));
        engine.hold = false;
        QVERIFY(finished.wait(patience));
        QCOMPARE(text<QLabel>(page, u"selectionLabel"_s), u"Selected: 5 items, 5.0 KB"_s);
        click(browserBox(page, u"Opera"_s));
        QCOMPARE(text<QLabel>(page, u"selectionLabel"_s), u"Selected: 8 items, 8.0 KB"_s);
    }

    void whileACleanRunsNoBrowserCanBeUnticked()
    {
        ScriptedEngine engine;
        engine.found = {category(u"opera_cache"_s, u"Opera - Cache"_s, 3)};
        BrowserPage page;
        show(page, engine);
        Application::instance()->settings()->setValue(u"clean/confirmClean"_s, false);
        engine.hold = true;
        const SignalSpy cleaned(&page, &BasePage::cleanFinished);
        page.startClean();
        click(browserBox(page, u"Opera"_s));
        QVERIFY(browserBox(page, u"Opera"_s)->isChecked());
        engine.hold = false;
        QVERIFY(cleaned.wait(patience));
        click(browserBox(page, u"Opera"_s));
        QVERIFY(!browserBox(page, u"Opera"_s)->isChecked());
        click(browserBox(page, u"Opera"_s));
        Application::instance()->settings()->remove(u"clean/confirmClean"_s);
    }

    void aNarrowBarContinuesInTheNextRow()
    {
        QWidget bar;
        auto *flow = new FlowLayout(&bar);
        flow->setSpacing(10, 4);
        QList<QWidget *> parts;
        for (const int height : {20, 10, 20}) {
            parts.append(new QWidget(&bar));
            parts.last()->setFixedSize(100, height);
            flow->addWidget(parts.last());
        }
        QCOMPARE(flow->sizeHint(), QSize(320, 20));
        QCOMPARE(flow->minimumSize(), QSize(100, 20));
        QCOMPARE(flow->heightForWidth(320), 20);
        QCOMPARE(flow->heightForWidth(319), 44);
        QCOMPARE(flow->heightForWidth(50), 58);
        bar.resize(220, 44);
        bar.show();
        QCOMPARE(parts.at(1)->pos(), QPoint(110, 5)); // on the middle line of the first row
        QCOMPARE(parts.at(2)->pos(), QPoint(0, 24));
        QCOMPARE(flow->count(), 3);
        delete flow->takeAt(1);
        QCOMPARE(flow->count(), 2);
        QVERIFY(!flow->itemAt(2) && !flow->takeAt(-1));
    }

    // --- groups

    void firefoxAloneIsOneGroupWithItsIcon()
    {
        ScriptedEngine engine;
        engine.found = {category(u"mozilla_firefox_cache"_s, u"Mozilla Firefox - Cache"_s, 2),
                        category(u"mozilla_firefox_cookies"_s, u"Mozilla Firefox - Cookies"_s, 3)};
        BrowserPage page;
        show(page, engine);
        QCOMPARE(groups(page).size(), 1);
        const BrowserGroupWidget &group = *groups(page).constFirst();
        QCOMPARE(names(group), (QStringList{u"Mozilla Firefox"_s, u"Cache"_s, u"Cookies"_s}));
        QCOMPARE(group.subItemCount(), 2);
        QCOMPARE(icon(group), image(u":/icons/browser-firefox.svg"_s, {28, 28}));
        QCOMPARE(text<QLabel>(group, u"browserItemCount"_s), u"5 items"_s);
    }

    void anUnknownBrowserIsShownAsOtherWithTheGenericIcon()
    {
        ScriptedEngine engine;
        engine.found = {category(u"netscape_cache"_s, u"Cache of something"_s, 1),
                        category(u"brave_cache"_s, u"Brave - Cache - more"_s, 1)};
        BrowserPage page;
        show(page, engine);
        QCOMPARE(groups(page).size(), 2);
        QCOMPARE(names(*groups(page).at(0)), (QStringList{u"Brave"_s, u"Cache - more"_s}));
        QCOMPARE(names(*groups(page).at(1)), (QStringList{u"Other"_s, u"Cache of something"_s}));
        QCOMPARE(icon(*groups(page).at(1)), image(u":/icons/browser.svg"_s, {28, 28}));
    }

    void groupsStandInTheOrderOfTheBrowsersAndKeepThatOfTheResult()
    {
        ScriptedEngine engine;
        engine.found = {category(u"opera_cookies"_s, u"Opera - Cookies"_s, 1),
                        category(u"google_chrome_history"_s, u"Google Chrome - History"_s, 1),
                        category(u"opera_cache"_s, u"Opera - Cache"_s, 1),
                        category(u"microsoft_edge_cache"_s, u"Microsoft Edge - Cache"_s, 1),
                        category(u"google_chrome_cache"_s, u"Google Chrome - Cache"_s, 1)};
        BrowserPage page;
        show(page, engine);
        QList<QStringList> list;
        for (const BrowserGroupWidget *group : groups(page))
            list.append(names(*group));
        QCOMPARE(list,
                 (QList<QStringList>{{u"Google Chrome"_s, u"History"_s, u"Cache"_s},
                                     {u"Microsoft Edge"_s, u"Cache"_s},
                                     {u"Opera"_s, u"Cookies"_s, u"Cache"_s}}));
    }

    void everyBrowserThatIsCleanedHasAnIconOfItsOwn()
    {
        QStringList paths{u":/icons/browser.svg"_s};
        for (const Browser &browser : m_cleaner->browsers()) {
            paths.append(BrowserGroupWidget::iconPath(browser.name));
            QVERIFY2(!image(paths.constLast(), {28, 28}).isNull(), qPrintable(paths.constLast()));
        }
        QCOMPARE(paths.removeDuplicates(), 0);
    }

    void eachBrowserHasItsIcon_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("path");
        QTest::newRow("chrome") << u"Google Chrome"_s << u":/icons/browser-chrome.svg"_s;
        QTest::newRow("edge") << u"MICROSOFT EDGE"_s << u":/icons/browser-edge.svg"_s;
        QTest::newRow("firefox") << u"firefox"_s << u":/icons/browser-firefox.svg"_s;
        QTest::newRow("opera") << u"Opera GX"_s << u":/icons/browser-opera.svg"_s;
        QTest::newRow("brave") << u"Brave"_s << u":/icons/browser-brave.svg"_s;
        QTest::newRow("safari") << u"Safari"_s << u":/icons/browser-safari.svg"_s;
        QTest::newRow("the first that matches")
            << u"Brave Chrome"_s << u":/icons/browser-chrome.svg"_s;
        QTest::newRow("another") << u"Other"_s << u":/icons/browser.svg"_s;
        QTest::newRow("none") << QString() << u":/icons/browser.svg"_s;
    }

    void eachBrowserHasItsIcon()
    {
        QFETCH(QString, name);
        QFETCH(QString, path);
        QCOMPARE(BrowserGroupWidget::iconPath(name), path);
        QVERIFY(!image(path, {28, 28}).isNull());
    }

    void theCountIsHiddenWhileItIsZero()
    {
        CleanCategory empty = category(u"opera_cache"_s, u"Opera - Cache"_s, 0);
        CleanCategory full = category(u"opera_logs"_s, u"Opera - Logs"_s, 4);
        BrowserGroupWidget group(u"Opera"_s);
        auto *count = group.findChild<QLabel *>(u"browserItemCount"_s);
        QVERIFY(count->isHidden());
        group.addCategory(&empty);
        QVERIFY(count->isHidden());
        group.addCategory(&full);
        QVERIFY(!count->isHidden());
        QCOMPARE(count->text(), u"4 items"_s);
        QCOMPARE(text<QLabel>(*subItems(group).at(1), u"subItemCount"_s), u"4 items"_s);
        QCOMPARE(text<QLabel>(*subItems(group).at(1), u"subItemSize"_s), u"4.0 KB"_s);
    }

    // --- ticks

    void theHeaderFollowsItsSubItems()
    {
        Records records(3);
        BrowserGroupWidget &group = records.group;
        QCOMPARE(header(group)->checkState(), Qt::Checked);
        SignalSpy changed(&group, &ResultWidget::selectionChanged);
        for (const BrowserSubItem *subItem : subItems(group))
            click(box(*subItem));
        QCOMPARE(header(group)->checkState(), Qt::Unchecked);
        QCOMPARE(changed.size(), 3);
        click(box(*subItems(group).at(1)));
        QCOMPARE(header(group)->checkState(), Qt::PartiallyChecked);
        QCOMPARE(changed.size(), 4);
        click(box(*subItems(group).at(0)));
        click(box(*subItems(group).at(2)));
        QCOMPARE(header(group)->checkState(), Qt::Checked);
    }

    void aSubItemTicksItsCategoryAndEveryItem()
    {
        Records records(2);
        click(box(*subItems(records.group).at(0)));
        QVERIFY(!records.categories[0].checked);
        QCOMPARE(records.categories[0].checkedCount(), 0);
        QVERIFY(records.categories[1].checked);
        click(box(*subItems(records.group).at(0)));
        QVERIFY(records.categories[0].checked);
        QCOMPARE(records.categories[0].checkedCount(), 3);
    }

    void theHeaderTicksEverySubItem()
    {
        Records records(3);
        BrowserGroupWidget &group = records.group;
        click(box(*subItems(group).at(1)));
        SignalSpy changed(&group, &ResultWidget::selectionChanged);
        // From partly ticked a click ticks all.
        click(header(group));
        QCOMPARE(header(group)->checkState(), Qt::Checked);
        QCOMPARE(changed.size(), 1);
        click(header(group));
        QCOMPARE(header(group)->checkState(), Qt::Unchecked);
        for (const CleanCategory &record : records.categories) {
            QVERIFY(!record.checked);
            QCOMPARE(record.checkedCount(), 0);
        }
        header(group)->setFocus();
        QTest::keyClick(header(group), Qt::Key_Space);
        QCOMPARE(changed.size(), 3);
        for (const BrowserSubItem *subItem : subItems(group))
            QVERIFY(box(*subItem)->isChecked());
        for (const CleanCategory &record : records.categories)
            QCOMPARE(record.checkedCount(), 3);
    }

    void anUnselectedCategoryStartsUnticked()
    {
        CleanCategory record = category(u"opera_cookies"_s, u"Opera - Cookies"_s, 2);
        record.checked = false;
        record.riskLevel = HighRisk;
        BrowserGroupWidget group(u"Opera"_s);
        group.addCategory(&record);
        QCOMPARE(header(group)->checkState(), Qt::Unchecked);
        QCOMPARE(subItems(group).constFirst()->checkState(), Qt::Unchecked);
        QCOMPARE(record.checkedCount(), 0);
        QCOMPARE(text<QLabel>(group, u"subItemRisk"_s), u"High"_s);
    }

    void aClickOnAPartlyTickedCategoryTicksAll()
    {
        Records records(2, 1);
        BrowserGroupWidget &group = records.group;
        const CleanCategory &record = records.categories.constFirst();
        QCheckBox *checkBox = box(*subItems(group).constFirst());
        // Binding the record to the group does not change it.
        QVERIFY(record.checked);
        QCOMPARE(record.checkedCount(), 2);
        QCOMPARE(checkBox->checkState(), Qt::PartiallyChecked);
        QVERIFY(QAccessible::queryAccessibleInterface(checkBox)->state().checkStateMixed);
        QCOMPARE(box(*subItems(group).at(1))->checkState(), Qt::Checked);
        QCOMPARE(header(group)->checkState(), Qt::PartiallyChecked);
        SignalSpy changed(&group, &ResultWidget::selectionChanged);
        click(checkBox);
        QCOMPARE(checkBox->checkState(), Qt::Checked);
        QCOMPARE(record.checkedCount(), 3);
        QCOMPARE(header(group)->checkState(), Qt::Checked);
        click(checkBox);
        QCOMPARE(checkBox->checkState(), Qt::Unchecked);
        QVERIFY(!record.checked);
        QCOMPARE(record.checkedCount(), 0);
        // Another click ticks all items; the partial state does not return.
        click(checkBox);
        QCOMPARE(checkBox->checkState(), Qt::Checked);
        QCOMPARE(record.checkedCount(), 3);
        QCOMPARE(changed.size(), 3);
    }

    void theHeaderTicksAPartlyTickedCategory()
    {
        Records records(1, 1);
        BrowserGroupWidget &group = records.group;
        QCOMPARE(header(group)->checkState(), Qt::PartiallyChecked);
        click(header(group));
        QCOMPARE(header(group)->checkState(), Qt::Checked);
        QCOMPARE(box(*subItems(group).constFirst())->checkState(), Qt::Checked);
        QCOMPARE(records.categories.constFirst().checkedCount(), 3);
    }

    // Items that start unticked because of their risk must not be ticked together with others.
    void guardedItemsAreTickedOnlyByTheirOwnRow()
    {
        Records records(2, 1);
        BrowserGroupWidget &group = records.group;
        CleanCategory &record = records.categories[0];
        record.items[0].riskLevel = HighRisk;
        QCheckBox *checkBox = box(*subItems(group).constFirst());
        QCOMPARE(checkBox->checkState(), Qt::PartiallyChecked);
        // All other items are ticked already: the click unticks them.
        click(checkBox);
        QCOMPARE(checkBox->checkState(), Qt::Unchecked);
        QCOMPARE(record.checkedCount(), 0);
        QVERIFY(!record.checked);
        // Then the header ticks all items but the guarded one.
        click(header(group));
        QCOMPARE(header(group)->checkState(), Qt::PartiallyChecked);
        QCOMPARE(checkBox->checkState(), Qt::PartiallyChecked);
        QCOMPARE(record.checkedCount(), 2);
        QVERIFY(record.checked);
        QVERIFY(!record.items[0].checked);
        QCOMPARE(records.categories[1].checkedCount(), 3);
        click(header(group));
        QCOMPARE(header(group)->checkState(), Qt::Unchecked);
        QCOMPARE(record.checkedCount(), 0);
        QCOMPARE(records.categories[1].checkedCount(), 0);
        // The row itself ticks all its items.
        click(checkBox);
        QCOMPARE(checkBox->checkState(), Qt::Checked);
        QCOMPARE(record.checkedCount(), 3);
    }

    void theHeaderDoesNotTickACategoryOfOnlyGuardedItems()
    {
        Records records(2, 3);
        for (CleanItem &item : records.categories[0].items)
            item.riskLevel = HighRisk;
        click(header(records.group));
        QCOMPARE(header(records.group)->checkState(), Qt::Unchecked);
        click(header(records.group));
        QCOMPARE(records.categories[0].checkedCount(), 0);
        QVERIFY(!records.categories[0].checked);
        QCOMPARE(records.categories[1].checkedCount(), 3);
    }

    void aTickedCategoryOfUntickedItemsIsShownUnticked()
    {
        Records records(1, 3);
        BrowserGroupWidget &group = records.group;
        QVERIFY(records.categories.constFirst().checked);
        QCOMPARE(box(*subItems(group).constFirst())->checkState(), Qt::Unchecked);
        QCOMPARE(header(group)->checkState(), Qt::Unchecked);
        click(box(*subItems(group).constFirst()));
        QCOMPARE(records.categories.constFirst().checkedCount(), 3);
        QCOMPARE(header(group)->checkState(), Qt::Checked);
    }

    void untickedItemsAreLeftOutOfThePagesTotals()
    {
        ScriptedEngine engine;
        engine.found = {category(u"opera_cache"_s, u"Opera - Cache"_s, 2),
                        category(u"opera_logs"_s, u"Opera - Logs"_s, 3)};
        engine.found[1].items[0].checked = false;
        BrowserPage page;
        show(page, engine);
        const auto *selection = page.findChild<QLabel *>(u"selectionLabel"_s);
        QCOMPARE(selection->text(), u"Selected: 4 items, 4.0 KB"_s);
        groups(page).constFirst()->toggleExpanded();
        click(box(*subItems(page).at(1)));
        QCOMPARE(selection->text(), u"Selected: 5 items, 5.0 KB"_s);
    }

    void ticksChangeThePagesTotals()
    {
        ScriptedEngine engine;
        engine.found = {category(u"opera_cache"_s, u"Opera - Cache"_s, 2),
                        category(u"opera_logs"_s, u"Opera - Logs"_s, 3)};
        BrowserPage page;
        show(page, engine);
        const auto *selection = page.findChild<QLabel *>(u"selectionLabel"_s);
        const auto *cleanButton = page.findChild<QPushButton *>(u"cleanBtn"_s);
        QCOMPARE(selection->text(), u"Selected: 5 items, 5.0 KB"_s);
        groups(page).constFirst()->toggleExpanded();
        click(box(*subItems(page).at(1)));
        QCOMPARE(selection->text(), u"Selected: 2 items, 2.0 KB"_s);
        click(header(*groups(page).constFirst()));
        QCOMPARE(selection->text(), u"Selected: 5 items, 5.0 KB"_s);
        click(header(*groups(page).constFirst()));
        QCOMPARE(selection->text(), u"Selected: 0 items, 0 B"_s);
        QVERIFY(!cleanButton->isEnabled());
        QCOMPARE(std::as_const(engine).result().checkedCount(), 0);
    }

    // --- expanding, details

    void theHeadersButtonShowsAndHidesTheSubItems()
    {
        Records records(2);
        BrowserGroupWidget &group = records.group;
        auto *expand = group.findChild<QPushButton *>(u"browserExpandBtn"_s);
        auto *content = group.findChild<QWidget *>(u"browserGroupContent"_s);
        auto *headerRow = group.findChild<QWidget *>(u"browserGroupHeader"_s);
        group.toggleExpanded(); // Records has expanded it
        QVERIFY(!group.isExpanded());
        QVERIFY(!content->isVisible());
        QCOMPARE(expand->iconSize(), QSize(20, 20));
        QCOMPARE(expand->icon().pixmap(20, 20).toImage(),
                 image(u":/icons/chevron-down.svg"_s, {20, 20}));
        QVERIFY(headerRow->styleSheet().contains("border-bottom-left-radius: 12px"_L1));
        QTest::mouseClick(expand, Qt::LeftButton);
        QVERIFY(group.isExpanded());
        QVERIFY(content->isVisible());
        QCOMPARE(expand->icon().pixmap(20, 20).toImage(),
                 image(u":/icons/chevron-up.svg"_s, {20, 20}));
        QVERIFY(headerRow->styleSheet().contains("border-bottom-left-radius: 0px"_L1));
        QTest::mouseClick(headerRow, Qt::LeftButton, {}, {200, 20});
        QVERIFY(!content->isVisible());
    }

    void viewDetailsListsTheItemsInAModalDialog()
    {
        ScriptedEngine engine;
        engine.found = {category(u"opera_cache"_s, u"Opera - Cache"_s, 7)};
        BrowserPage page;
        show(page, engine);
        groups(page).constFirst()->toggleExpanded();
        auto *details = page.findChild<QPushButton *>(u"viewDetailsBtn"_s);
        QCOMPARE(details->text(), u"View Details"_s);
        QTest::mouseClick(details, Qt::LeftButton);
        const QPointer<ItemDetailDialog> dialog = page.findChild<ItemDetailDialog *>();
        QVERIFY(dialog);
        QVERIFY(dialog->isModal());
        QVERIFY(dialog->isVisible());
        QCOMPARE(dialog->parentWidget(), &page);
        QCOMPARE(dialog->loadedCount(), 7);
        // The next scan deletes the record. The dialog that shows it is deleted too.
        engine.startScan();
        QVERIFY(!dialog);
        QVERIFY(groups(page).isEmpty());
    }

    void namesFromOutsideAreShownAsPlainText()
    {
        CleanCategory record = category(u"x"_s, u"Some - <b>bold</b>\nsecond & third"_s, 1);
        record.description = u"<img src=x>"_s;
        BrowserGroupWidget group(u"<i>Name</i>"_s);
        group.addCategory(&record);
        auto *name = group.findChild<QLabel *>(u"subItemName"_s);
        QCOMPARE(name->text(), u"<b>bold</b>\uFFFDsecond & third"_s);
        QCOMPARE(name->textFormat(), Qt::PlainText);
        QCOMPARE(group.findChild<QLabel *>(u"browserName"_s)->textFormat(), Qt::PlainText);
        QVERIFY(!subItems(group).constFirst()->toolTip().contains(u'<'));
    }

    void theFocusGoesDownTheList()
    {
        ScriptedEngine engine;
        engine.found = {category(u"opera_cache"_s, u"Opera - Cache"_s, 1),
                        category(u"brave_cache"_s, u"Brave - Cache"_s, 1)};
        BrowserPage page;
        show(page, engine);
        for (BrowserGroupWidget *group : groups(page))
            group->toggleExpanded();
        QStringList visited;
        QWidget *widget = header(*groups(page).constFirst());
        while (visited.size() < 10) {
            visited.append(widget->objectName());
            if (widget->objectName() == "cleanBtn"_L1)
                break;
            widget = nextByTab(widget);
        }
        const QStringList group{u"browserCheck"_s, u"browserExpandBtn"_s, u"subItemCheck"_s,
                                u"viewDetailsBtn"_s};
        const QStringList buttons{u"scanBtn"_s, u"cleanBtn"_s};
        QCOMPARE(visited, group + group + buttons);
    }

    void everyControlHasAName()
    {
        ScriptedEngine engine;
        engine.found = {category(u"opera_cache"_s, u"Opera - Cache"_s, 1)};
        BrowserPage page;
        show(page, engine);
        for (const QAbstractButton *control : page.findChildren<QAbstractButton *>())
            QVERIFY2(!control->accessibleName().isEmpty() || !control->text().isEmpty(),
                     qPrintable(control->objectName()));
    }

private:
    /// A shown and expanded group with its own records of three items each. In the first record
    /// @p unticked items are not ticked.
    struct Records {
        explicit Records(int count, int unticked = 0)
            : group(u"Opera"_s)
        {
            for (int i = 0; i < count; ++i)
                categories.append(category(u"opera_%1"_s.arg(i), u"Opera - %1"_s.arg(i), 3));
            for (int i = 0; i < unticked; ++i)
                categories[0].items[i].checked = false;
            for (CleanCategory &record : categories)
                group.addCategory(&record);
            group.resize(600, 300);
            group.show();
            group.toggleExpanded();
        }

        QList<CleanCategory> categories;
        BrowserGroupWidget group;
    };

    static QImage icon(const BrowserGroupWidget &group)
    {
        return group.findChild<QLabel *>(u"browserIcon"_s)->pixmap().toImage();
    }

    static void show(BrowserPage &page, ScriptedEngine &engine)
    {
        page.setEngine(&engine);
        page.resize(900, 700);
        page.show();
        scan(page);
        // Widgets added to a layout become visible in the next pass of the event loop.
        for (const BrowserGroupWidget *group : groups(page))
            QTRY_VERIFY_WITH_TIMEOUT(group->isVisible(), patience);
    }

    static void scan(BrowserPage &page)
    {
        SignalSpy finished(&page, &BasePage::scanFinished);
        page.startScan();
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, patience);
    }

    const TestHome &m_home;
    std::unique_ptr<RegistryFixture> m_fixture;
    BrowserCleaner *m_cleaner = nullptr;
};

SWEEPWISE_TEST_MAIN(TestBrowserPage, QApplication)
#include "tst_browserpage.moc"
