#include "navbutton.h"

#include "appinfo.h"
#include "signalspy.h"
#include "svgicon.h"
#include "testhome.h"

#include <QApplication>
#include <QLabel>
#include <QTest>

using namespace Qt::StringLiterals;

class TestNavButton : public QObject
{
    Q_OBJECT
public:
    explicit TestNavButton(const TestHome &) { }

private Q_SLOTS:
    void aClickIsAPressAndAReleaseInside()
    {
        NavButton button(u"Junk"_s, u":/icons/trash.svg"_s);
        show(button);
        SignalSpy clicked(&button, &NavButton::clicked);
        QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(clicked.size(), 1);
    }

    void aReleaseOutsideEmitsNothing()
    {
        NavButton button(u"Junk"_s, u":/icons/trash.svg"_s);
        show(button);
        SignalSpy clicked(&button, &NavButton::clicked);
        QTest::mousePress(&button, Qt::LeftButton, {}, {10, 10});
        QTest::mouseRelease(&button, Qt::LeftButton, {}, {10, 200});
        QCOMPARE(clicked.size(), 0);
        // The press has ended: a later release inside does not count.
        QTest::mouseRelease(&button, Qt::LeftButton, {}, {10, 10});
        QCOMPARE(clicked.size(), 0);
    }

    void otherMouseButtonsDoNothing()
    {
        NavButton button(u"Junk"_s, u":/icons/trash.svg"_s);
        show(button);
        SignalSpy clicked(&button, &NavButton::clicked);
        QTest::mouseClick(&button, Qt::RightButton);
        QTest::mouseClick(&button, Qt::MiddleButton);
        QCOMPARE(clicked.size(), 0);
    }

    void theKeyboardClicksToo()
    {
        NavButton button(u"Junk"_s, u":/icons/trash.svg"_s);
        show(button);
        SignalSpy clicked(&button, &NavButton::clicked);
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter})
            QTest::keyClick(&button, key);
        QTest::keyClick(&button, Qt::Key_A);
        QCOMPARE(clicked.size(), 3);
        QCOMPARE(button.accessibleName(), u"Junk"_s);
    }

    void aChangeOfTheCheckIsSignalledOnce()
    {
        NavButton button(u"Junk"_s, u":/icons/trash.svg"_s);
        SignalSpy changed(&button, &NavButton::checkedChanged);
        button.setChecked(true);
        button.setChecked(true);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.constFirst().constFirst().toBool(), true);
        button.setChecked(false);
        QCOMPARE(changed.size(), 2);
    }

    void theIconTakesTheColourOfTheState()
    {
        NavButton button(u"Junk"_s, u":/icons/trash.svg"_s);
        show(button);
        QCOMPARE(strongestColour(button), QColor(255, 255, 255));
        button.setChecked(true);
        QCOMPARE(strongestColour(button), QColor(0x10, 0xB9, 0x81));
    }

    void theTextStyleFollowsTheState()
    {
        NavButton button(u"Junk"_s, u":/icons/trash.svg"_s);
        const auto *text = button.findChildren<QLabel *>().at(1);
        QCOMPARE(text->text(), u"Junk"_s);
        QCOMPARE(
            text->styleSheet(),
            u"font-size: 14px; font-weight: 500; color: rgba(255,255,255,230); background: transparent; border: none;"_s);
        button.setChecked(true);
        QCOMPARE(
            text->styleSheet(),
            u"font-size: 14px; font-weight: 600; color: #10B981; background: transparent; border: none;"_s);
    }

    void theHighlightFollowsCheckAndHover()
    {
        NavButton button(u"Junk"_s, QString());
        button.resize(200, 48);
        button.setAttribute(Qt::WA_TranslucentBackground);
        show(button);
        const QPoint spot(190, 24);
        const auto colourAt = [&] {
            QImage image(button.size(), QImage::Format_ARGB32_Premultiplied);
            image.fill(Qt::black);
            button.render(&image, {}, {}, QWidget::DrawChildren);
            return image.pixelColor(spot);
        };
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(&button, &leave); // the mouse may be over the button by chance
        QCOMPARE(colourAt(), QColor(Qt::black));
        QEnterEvent enter({5, 5}, {5, 5}, {5, 5});
        QApplication::sendEvent(&button, &enter);
        QCOMPARE(colourAt(), QColor(38, 38, 38));
        button.setChecked(true);
        QCOMPARE(colourAt(), QColor(Qt::white));
        QApplication::sendEvent(&button, &leave);
        button.setChecked(false);
        QCOMPARE(colourAt(), QColor(Qt::black));
    }

    void aMissingIconLeavesTheLabelEmpty()
    {
        NavButton button(u"Junk"_s, u":/icons/no-such.svg"_s);
        show(button);
        QVERIFY(button.findChild<QLabel *>()->pixmap().isNull());
    }

    void centeringMovesTheContent()
    {
        NavButton button(u"Junk"_s, u":/icons/trash.svg"_s);
        button.resize(300, 48);
        show(button);
        const auto *icon = button.findChild<QLabel *>();
        QVERIFY(icon->x() < 20);
        button.setCentered(true);
        QTRY_VERIFY(icon->x() > 80);
    }

    void everyIconOfTheProgramIsDrawn_data()
    {
        QTest::addColumn<QString>("path");
        for (const char *name :
             {"dashboard", "trash", "browser", "registry", "startup", "largefile", "settings",
              "app", "folder-open", "chevron-left", "check", "check-partial"})
            QTest::newRow(name) << u":/icons/%1.svg"_s.arg(QLatin1StringView(name));
    }

    void everyIconOfTheProgramIsDrawn()
    {
        QFETCH(QString, path);
        const QImage image = svgPixmap(path, {24, 24}, 2.0).toImage();
        QCOMPARE(image.size(), QSize(48, 48));
        int drawn = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                drawn += image.pixelColor(x, y).alpha() > 128 ? 1 : 0;
        }
        QVERIFY2(drawn > 40, qPrintable(QString::number(drawn)));
    }

private:
    static void show(NavButton &button)
    {
        button.show();
        QVERIFY(QTest::qWaitForWindowExposed(&button));
    }

    static QColor strongestColour(const NavButton &button)
    {
        const QImage image = button.findChild<QLabel *>()->pixmap().toImage();
        QColor strongest(0, 0, 0, 0);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor colour = image.pixelColor(x, y);
                if (colour.alpha() > strongest.alpha())
                    strongest = colour;
            }
        }
        return strongest;
    }
};

SWEEPWISE_TEST_MAIN(TestNavButton, QApplication)
#include "tst_navbutton.moc"
