#include "access.h"
#include "textfit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr auto text = "A text of some length"_L1;

/// A window with one child of this kind, as wide as its text needs plus @p spare pixels.
template<class Widget>
QStringList faultsOf(Widget *child, int spare)
{
    QWidget window;
    window.resize(600, 200);
    child->setParent(&window);
    child->resize(child->sizeHint() + QSize(spare, 0));
    child->setFixedSize(child->size());
    window.show();
    return unreadableTexts(&window);
}

/// A window with three buttons from left to right.
class Row : public QWidget
{
public:
    Row()
    {
        auto *layout = new QHBoxLayout(this);
        for (const QString &name : {u"one"_s, u"two"_s, u"three"_s}) {
            auto *button = new QPushButton(name, this);
            button->setObjectName(name);
            layout->addWidget(button);
            buttons.append(button);
        }
    }

    QList<QPushButton *> buttons;
};

} // namespace

/// Tests the checks of the tour: each finds its kind of fault, and no fault where there is none.
class TestTourChecks : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aTextThatDoesNotFitIsFound()
    {
        QCOMPARE(faultsOf(new QLabel(text), 0), QStringList());
        QCOMPARE(faultsOf(new QLabel(text), -10).size(), 1);
        QCOMPARE(faultsOf(new QPushButton(text), 0), QStringList());
        QCOMPARE(faultsOf(new QPushButton(text), -60).size(), 1);
        QCOMPARE(faultsOf(new QCheckBox(text), 0), QStringList());
        QCOMPARE(faultsOf(new QCheckBox(text), -10).size(), 1);
        auto *low = new QPushButton(text);
        low->setMaximumHeight(8);
        QCOMPARE(faultsOf(low, 0).size(), 1);
        QCOMPARE(faultsOf(new QGroupBox(text), 200), QStringList());
        QCOMPARE(faultsOf(new QGroupBox(text), -20).size(), 1);
    }

    void aPlaceholderMustFitInsideThePadding()
    {
        QWidget window;
        auto *edit = new QLineEdit(&window);
        edit->setPlaceholderText(text);
        edit->setStyleSheet(u"padding: 0 8px; border: 1px solid black;"_s);
        edit->setFixedWidth(edit->fontMetrics().horizontalAdvance(text) + 24);
        window.resize(400, 100);
        window.show();
        QCOMPARE(unreadableTexts(&window), QStringList());
        edit->setFixedWidth(edit->width() - 10);
        QCOMPARE(unreadableTexts(&window).size(), 1);
    }

    void aComboBoxMustFitItsLongestEntry()
    {
        auto *combo = new QComboBox;
        combo->addItems({u"short"_s, text});
        QCOMPARE(faultsOf(combo, 0), QStringList());
        auto *narrow = new QComboBox;
        narrow->addItems({u"short"_s, text});
        QCOMPARE(faultsOf(narrow, -30).size(), 1);
    }

    void aWrappedTextMustFitInHeightAndLongestWord()
    {
        auto *label = new QLabel(u"one two three four"_s);
        label->setWordWrap(true);
        label->resize(60, 200);
        QWidget window;
        label->setParent(&window);
        window.resize(300, 300);
        window.show();
        QCOMPARE(unreadableTexts(&window), QStringList());
        label->resize(60, 10);
        QCOMPARE(unreadableTexts(&window).size(), 1);
        label->setText(u"Unbreakableaslongasitis"_s);
        label->resize(60, 200);
        QCOMPARE(unreadableTexts(&window).size(), 1);
    }

    void overlappingAndProtrudingTextsAreFound()
    {
        QWidget window;
        window.resize(400, 100);
        auto *one = new QLabel(u"one"_s, &window);
        auto *two = new QLabel(u"two"_s, &window);
        one->setGeometry(0, 0, 100, 30);
        two->setGeometry(100, 0, 100, 30);
        window.show();
        QCOMPARE(unreadableTexts(&window), QStringList());
        two->move(90, 10);
        QCOMPARE(unreadableTexts(&window).size(), 1);
        two->move(350, 0);
        QCOMPARE(unreadableTexts(&window).size(), 1);
    }

    void aListWiderThanItsViewIsFound()
    {
        QScrollArea area;
        area.resize(200, 100);
        area.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        auto *list = new QWidget;
        area.setWidget(list);
        list->resize(100, 500); // it scrolls
        area.show();
        QCOMPARE(unreadableTexts(&area), QStringList());
        list->resize(300, 500);
        QCOMPARE(unreadableTexts(&area).size(), 1);
    }

    void aControlWithoutNameIsFound()
    {
        Row row;
        row.show();
        QCOMPARE(accessFaults(&row), QStringList());
        row.buttons.at(1)->setText({});
        QCOMPARE(accessFaults(&row),
                 QStringList{u"QPushButton two: takes the focus and has no name"_s});
        row.buttons.at(1)->setAccessibleName(u"two"_s);
        QCOMPARE(accessFaults(&row), QStringList());
    }

    void aControlWithoutRoleIsFound()
    {
        QWidget window;
        QWidget painted(&window);
        painted.setObjectName("painted"_L1);
        painted.setAccessibleName(u"painted"_s);
        painted.setFocusPolicy(Qt::StrongFocus);
        window.show();
        QCOMPARE(accessFaults(&window),
                 QStringList{u"QWidget painted: takes the focus and has no role"_s});
    }

    void aTabOrderThatJumpsBackIsFound()
    {
        Row row;
        row.show();
        QWidget::setTabOrder(row.buttons.at(2), row.buttons.at(1));
        QCOMPARE(accessFaults(&row).size(), 1);
        QVERIFY(accessFaults(&row).constFirst().startsWith("QPushButton two: the tab key"_L1));
    }
};

QTEST_MAIN(TestTourChecks)
#include "tst_tourchecks.moc"
