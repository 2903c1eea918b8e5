#include "aboutdialog.h"
#include "figures.h"
#include "itemdetaildialog.h"
#include "progressdialog.h"
#include "registrybackupdialog.h"
#include "scanprogressdialog.h"
#include "settingsdialog.h"

#include "appinfo.h"
#include "application.h"
#include "scriptedengine.h"
#include "testhome.h"

#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QPainter>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

/// The sizes, texts, fonts and colours of the dialogs, one table for each.
class TestDialogFigures : public QObject
{
    Q_OBJECT
public:
    explicit TestDialogFigures(const TestHome &) { }

private Q_SLOTS:
    void initTestCase() { Application::instance()->initialize(); }

    void settings()
    {
        StyledParent parent;
        SettingsDialog dialog(&parent);
        COMPARE_FIGURES(
            dialog,
            (Figures{
                {"", "size", "450 x 400"},
                {"", "margins", "24 24 24 24"},
                {"", "spacing", "20"},
                {"", "order",
                 "Settings | General | Cleaning | stretch | (About | stretch | Cancel | Save)"},
                {"=Settings", "font", "20px 600"},
                {"=Settings", "colour", "#111827"},
                {"=General", "spacing", "12"},
                {"=General", "order", "Start with Windows | Minimize to tray on close"},
                {"=General", "style QGroupBox",
                 "font-size: 14px; font-weight: 500; color: #111827; border: 1px solid #E5E7EB;"
                 "border-radius: 8px; margin-top: 8px; padding-top: 16px"},
                {"=General", "style QGroupBox::title",
                 "subcontrol-origin: margin; left: 12px; padding: 0 4px"},
                {"=Cleaning", "spacing", "12"},
                {"=Cleaning", "order",
                 "Confirm before cleaning | Auto backup before registry cleaning"},
                {"=Cleaning", "style QGroupBox",
                 "font-size: 14px; font-weight: 500; color: #111827; border: 1px solid #E5E7EB;"
                 "border-radius: 8px; margin-top: 8px; padding-top: 16px"},
                {"=Cleaning", "style QGroupBox::title",
                 "subcontrol-origin: margin; left: 12px; padding: 0 4px"},
                {"=General", "font", "14px 500"},
                {"=Cleaning", "font", "14px 500"},
                {"#autoStartCheck", "text", "Start with Windows"},
                {"#autoStartCheck", "style", "color: #111827; font-size: 13px"},
                {"#autoStartCheck", "colour", "#111827"},
                {"#autoStartCheck", "state", "unchecked enabled shown"},
                {"#minimizeToTrayCheck", "text", "Minimize to tray on close"},
                {"#minimizeToTrayCheck", "style", "color: #111827; font-size: 13px"},
                {"#minimizeToTrayCheck", "colour", "#111827"},
                {"#minimizeToTrayCheck", "state", "unchecked enabled shown"},
                {"#confirmCleanCheck", "text", "Confirm before cleaning"},
                {"#confirmCleanCheck", "style", "color: #111827; font-size: 13px"},
                {"#confirmCleanCheck", "colour", "#111827"},
                {"#confirmCleanCheck", "state", "checked enabled shown"},
                {"#backupRegistryCheck", "text", "Auto backup before registry cleaning"},
                {"#backupRegistryCheck", "style", "color: #111827; font-size: 13px"},
                {"#backupRegistryCheck", "colour", "#111827"},
                {"#backupRegistryCheck", "state", "checked enabled shown"},
                {"=About", "row spacing", "12"},
                {"=About", "size", "80 x 36"},
                {"=About", "cursor", "hand"},
                {"=About", "font", "13px 400"},
                {"=About", "colour", "#111827"},
                {"=About", "style QPushButton",
                 "background-color: transparent; color: #111827; border: 1px solid #E5E7EB;"
                 "border-radius: 8px; font-size: 13px"},
                {"=About", "style QPushButton:hover", "background-color: #F3F4F6"},
                {"=Cancel", "size", "80 x 36"},
                {"=Cancel", "cursor", "hand"},
                {"=Cancel", "font", "13px 400"},
                {"=Cancel", "colour", "#111827"},
                {"=Cancel", "background", "#f3f4f6"},
                {"=Cancel", "style QPushButton",
                 "background-color: #F3F4F6; color: #111827; border: none; border-radius: 8px;"
                 "font-size: 13px"},
                {"=Cancel", "style QPushButton:hover", "background-color: #E5E7EB"},
                {"=Save", "size", "80 x 36"},
                {"=Save", "cursor", "hand"},
                {"=Save", "font", "13px 400"},
                {"=Save", "colour", "#ffffff"},
                {"=Save", "background", "#10b981"},
                {"=Save", "style QPushButton",
                 "background-color: #10B981; color: white; border: none; border-radius: 8px;"
                 "font-size: 13px"},
                {"=Save", "style QPushButton:hover", "background-color: #059669"},
            }));
    }

    void about()
    {
        StyledParent parent;
        AboutDialog dialog(&parent);
        COMPARE_FIGURES(
            dialog,
            (Figures{
                {"", "size", "400 x 380"},
                {"=🧹", "size", "72 x 72"},
                {"=🧹", "place", "centre"},
                {"=🧹", "text at", "centre"},
                {"=🧹", "style",
                 "background-color: #10B981; border-radius: 16px; font-size: 36px"},
                {"=🧹", "background", "#10b981"},
                {"=🧹", "font", "36px 400"},
                {"=Sweepwise", "text at", "centre"},
                {"=Sweepwise", "font", "24px 700"},
                {"=Sweepwise", "colour", "#111827"},
                {"=Version 1.0.0", "text at", "centre"},
                {"=Version 1.0.0", "font", "13px 400"},
                {"=Version 1.0.0", "colour", "#6b7280"},
                {".QLabel@3", "text",
                 "Your Personal System Butler\n\n"
                 "🧹 Junk Cleaner - Free up valuable disk space\n"
                 "🌐 Browser Cleaner - Protect your privacy\n"
                 "🔧 Registry Cleaner - Boost system performance\n"
                 "⚡ Startup Manager - Speed up boot time"},
                {".QLabel@3", "text at", "left"},
                {".QLabel@3", "lines", "many"},
                {".QLabel@3", "style", "color: #9CA3AF; font-size: 13px; line-height: 1.5"},
                {".QLabel@3", "colour", "#9ca3af"},
                {".QLabel@3", "font", "13px 400"},
                {".QLabel@4", "text at", "centre"},
                {".QLabel@4", "font", "11px 400"},
                {".QLabel@4", "colour", "#9ca3af"},
                {"=OK", "size", "100 x 36"},
                {"=OK", "place", "centre"},
                {"=OK", "font", "14px 400"},
                {"=OK", "colour", "#ffffff"},
                {"=OK", "background", "#10b981"},
                {"=OK", "style QPushButton",
                 "background-color: #10B981; color: white; border: none; border-radius: 8px;"
                 "font-size: 14px"},
                {"=OK", "style QPushButton:hover", "background-color: #059669"},
            }));
        // The wording of the rights notice is free.
        const QString notice = dialog.findChildren<QLabel *>().at(4)->text();
        const Figures order{
            {"", "order",
             "🧹 | Sweepwise | Version 1.0.0 | Your Personal System Butler | 12 | "
             "notice | stretch | OK"}};
        dialog.findChildren<QLabel *>().at(4)->setText(u"notice"_s);
        // The margins above and below depend on the height of the texts.
        QCOMPARE(dialog.layout()->contentsMargins().left(), 32);
        QCOMPARE(dialog.layout()->contentsMargins().right(), 32);
        QVERIFY(!notice.isEmpty());
        COMPARE_FIGURES(dialog, order);
    }

    void registryBackup()
    {
        StyledParent parent;
        RegistryBackupDialog dialog(42, &parent);
        COMPARE_FIGURES(
            dialog,
            (Figures{
                {"", "size", "450 x 280"},
                {"", "margins", "24 24 24 24"},
                {"=Clean Registry", "font", "18px 600"},
                {"=Clean Registry", "style", "font-size: 18px; font-weight: 600"},
                {"=About to clean <b>42</b> invalid registry entries", "font", "14px 400"},
                {"=About to clean <b>42</b> invalid registry entries", "colour", "#6b7280"},
                {"#backupCheck", "text", "Backup registry before cleaning (Recommended)"},
                {"#backupCheck", "state", "checked enabled shown"},
                {"=Save to:", "width", "70"},
                {"=Save to:", "font", "13px 400"},
                {"#backupPathEdit", "state", "enabled shown"},
                {"=Browse...", "size", "70 x 34"},
                {"=Browse...", "state", "enabled shown"},
                {"=⚠️ Backup file can be used to restore accidentally deleted registry entries",
                 "font", "12px 400"},
                {"=Cancel", "size", "90 x 38"},
                {"=Start Cleaning", "size", "100 x 38"},
                {"=Start Cleaning", "background", "#dc2626"},
                {"=Start Cleaning", "style QPushButton", "background-color: #DC2626"},
            }));
        dialog.findChild<QWidget *>(u"backupPathEdit"_s)->setProperty("text", u"path"_s);
        COMPARE_FIGURES(
            dialog,
            (Figures{{"", "widgets",
                      "Clean Registry | About to clean <b>42</b> invalid registry entries | "
                      "Backup registry before cleaning (Recommended) | "
                      "(Save to: | path | Browse...) | "
                      "⚠️ Backup file can be used to restore accidentally deleted registry "
                      "entries | (Cancel | Start Cleaning)"}}));
        dialog.onBackupCheckChanged(false);
        COMPARE_FIGURES(dialog,
                        (Figures{{"#backupPathEdit", "state", "disabled shown"},
                                 {"=Browse...", "state", "disabled shown"},
                                 {"=Start Cleaning", "state", "enabled shown"}}));
    }

    void progress_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QByteArray>("title");
        QTest::addColumn<QByteArray>("subtitle");
        QTest::newRow("scanning") << 0 << QByteArray("=Scanning...")
                                  << QByteArray("=正在分析系统...");
        QTest::newRow("cleaning") << 1 << QByteArray("=Cleaning...")
                                  << QByteArray("=正在删除文件...");
    }

    void progress()
    {
        QFETCH(int, mode);
        QFETCH(QByteArray, title);
        QFETCH(QByteArray, subtitle);
        StyledParent parent;
        ProgressDialog dialog(static_cast<ProgressDialog::Mode>(mode), &parent);
        dialog.setDetail(u"detail"_s);
        COMPARE_FIGURES(
            dialog,
            (Figures{
                {".QLabel@0", "size", "64 x 64"},
                {".QLabel@0", "background", "#10b981"},
                {".QLabel@0", "style", "background-color: #10B981; border-radius: 32px"},
                {title.constData(), "state", "enabled shown"},
                {subtitle.constData(), "state", "enabled shown"},
                {"=detail", "state", "enabled shown"},
                {"=0%", "state", "enabled shown"},
                {"#progressBar", "range", "0 to 100"},
                {"#progressBar", "style QProgressBar", "background-color: #E5E7EB"},
                {"#progressBar", "style QProgressBar::chunk", "background-color: #10B981"},
                {"#cancelBtn", "text", "Cancel"},
                {"#cancelBtn", "state", "enabled shown"},
                {"#cancelBtn", "colour", "#111827"},
                {"#cancelBtn", "background", "#f3f4f6"},
                {"#cancelBtn", "style QPushButton", "background-color: #F3F4F6; color: #111827"},
                {"#cancelBtn", "style QPushButton:hover", "background-color: #E5E7EB"},
                {"#closeBtn", "state", "enabled hidden"},
            }));
    }

    void progressThatIsOver_data()
    {
        QTest::addColumn<bool>("isSuccess");
        QTest::addColumn<QByteArray>("title");
        QTest::addColumn<QByteArray>("colour");
        QTest::newRow("success") << true << QByteArray("=完成!") << QByteArray("#10b981");
        QTest::newRow("failure") << false << QByteArray("=操作失败") << QByteArray("#ef4444");
    }

    void progressThatIsOver()
    {
        QFETCH(bool, isSuccess);
        QFETCH(QByteArray, title);
        QFETCH(QByteArray, colour);
        StyledParent parent;
        ProgressDialog dialog(ProgressDialog::Cleaning, &parent);
        dialog.showResult(isSuccess, u"the message"_s);
        COMPARE_FIGURES(dialog,
                        (Figures{
                            {".QLabel@0", "size", "64 x 64"},
                            {".QLabel@0", "background", colour.constData()},
                            {".QLabel@0", "style", "border-radius: 32px"},
                            {title.constData(), "state", "enabled shown"},
                            {"=the message", "state", "enabled shown"},
                            {"#progressBar", "value", "100"},
                            {"#closeBtn", "state", "enabled shown"},
                            {"#closeBtn", "background", "#10b981"},
                            {"#closeBtn", "style QPushButton", "background-color: #10B981"},
                            {"#closeBtn", "style QPushButton:hover", "background-color: #059669"},
                        }));
    }

    // The panel of the frameless dialogs is white and has a grey line of one pixel around it.
    void panels()
    {
        StyledParent parent;
        ProgressDialog progress(ProgressDialog::Scanning, &parent);
        ScanProgressDialog scan(&parent);
        for (QWidget *dialog : {static_cast<QWidget *>(&progress), static_cast<QWidget *>(&scan)}) {
            QVERIFY(dialog->windowFlags().testFlag(Qt::FramelessWindowHint));
            QVERIFY(dialog->testAttribute(Qt::WA_TranslucentBackground));
            dialog->ensurePolished();
            QImage picture(dialog->size(), QImage::Format_ARGB32_Premultiplied);
            picture.fill(Qt::transparent);
            dialog->render(&picture, {}, {}, {});
            const int middle = picture.height() / 2;
            QCOMPARE(picture.pixelColor(0, middle).name(), u"#e5e7eb"_s);
            QCOMPARE(picture.pixelColor(1, middle).name(), u"#ffffff"_s);
            QCOMPARE(picture.pixelColor(picture.width() - 1, middle).name(), u"#e5e7eb"_s);
            QCOMPARE(picture.pixelColor(picture.width() - 2, middle).name(), u"#ffffff"_s);
            QCOMPARE(picture.pixelColor(0, 0).alpha(), 0);
        }
    }

    // The dark shade stands four pixels inside the dialog. The white panel lies over it and ends
    // eight pixels before the right and lower edges. The radius is that of the corners.
    void panelsWithShadow_data()
    {
        QTest::addColumn<bool>("isAbout");
        QTest::addColumn<int>("radius");
        QTest::newRow("settings") << false << 16;
        QTest::newRow("about") << true << 20;
    }

    void panelsWithShadow()
    {
        QFETCH(bool, isAbout);
        QFETCH(int, radius);
        StyledParent parent;
        std::unique_ptr<QDialog> dialog;
        if (isAbout)
            dialog = std::make_unique<AboutDialog>(&parent);
        else
            dialog = std::make_unique<SettingsDialog>(&parent);
        QImage expected(dialog->size(), QImage::Format_ARGB32_Premultiplied);
        expected.fill(Qt::transparent);
        QImage shown = expected;
        QPainter painter(&expected);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0, 0, 0, 30));
        painter.drawRoundedRect(dialog->rect().adjusted(4, 4, -4, -4), radius, radius);
        painter.setBrush(Qt::white);
        painter.drawRoundedRect(dialog->rect().adjusted(0, 0, -8, -8), radius, radius);
        painter.end();
        for (QWidget *child : dialog->findChildren<QWidget *>(Qt::FindDirectChildrenOnly))
            child->hide();
        dialog->render(&shown, {}, {}, {});
        QCOMPARE(shown, expected);
    }

    void largeFileScan()
    {
        StyledParent parent;
        ScanProgressDialog dialog(&parent);
        COMPARE_FIGURES(
            dialog,
            (Figures{
                {"", "size", "420 x 220"},
                {"", "margins", "20 20 20 20"},
                {"", "order",
                 "🔍 | Scanning for large files... | QProgressBar | Preparing... | "
                 "Found 0 large files (0 B) | Cancel"},
                {"=🔍", "font", "24px 400"},
                {"=Scanning for large files...", "font", "18px 600"},
                {"=Scanning for large files...", "colour", "#111827"},
                {".QProgressBar", "range", "0 to 0"},
                {".QProgressBar", "height", "6"},
                {".QProgressBar", "style QProgressBar",
                 "background-color: #E5E7EB; border-radius: 3px"},
                {".QProgressBar", "style QProgressBar::chunk",
                 "background-color: #10B981; border-radius: 3px"},
                {"#scanPath", "text", "Preparing..."},
                {"#scanPath", "font", "12px 400"},
                {"#scanPath", "colour", "#9ca3af"},
                {"#scanCount", "text", "Found 0 large files (0 B)"},
                {"#scanCount", "font", "15px 500"},
                {"#scanCount", "colour", "#10b981"},
                {"=Cancel", "size", "100 x 36"},
                {"=Cancel", "colour", "#dc2626"},
                {"=Cancel", "background", "#fee2e2"},
                {"=Cancel", "style QPushButton", "background-color: #FEE2E2; color: #DC2626"},
                {"=Cancel", "style QPushButton:hover", "background-color: #FECACA"},
            }));
    }

    // A path is whole up to 50 characters. A longer one keeps 25 at the beginning and 22 at the
    // end.
    void pathsOfTheLargeFileScan_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("shown");
        const QString fifty = u"C:/45678901234567890123456789012345678901234567890"_s;
        QTest::newRow("50 characters") << fifty << "Scanning: "_L1 + fifty;
        QTest::newRow("51 characters")
            << fifty + u'X' << u"Scanning: C:/4567890123456789012345...012345678901234567890X"_s;
    }

    void pathsOfTheLargeFileScan()
    {
        QFETCH(QString, path);
        QFETCH(QString, shown);
        ScanProgressDialog dialog(nullptr);
        dialog.updateProgress(path, 3, 3 * 1'048'576);
        QCOMPARE(dialog.findChild<QLabel *>(u"scanPath"_s)->text(), shown);
        QCOMPARE(dialog.findChild<QLabel *>(u"scanCount"_s)->text(),
                 u"Found 3 large files (3.0 MB)"_s);
    }

    void itemDetails()
    {
        StyledParent parent;
        const CleanCategory category = scriptedCategory(u"x"_s, 2);
        ItemDetailDialog dialog(&category, &parent);
        COMPARE_FIGURES(
            dialog,
            (Figures{
                {"", "style #itemDetailDialog", "background-color: #FFFFFF"},
                {"#detailTitleBar", "style #detailTitleBar", "background-color: #10B981"},
                {"#detailTitleBar", "order", "#backBtn | Category x | 2.0 KB  |  2 files"},
                {"#backBtn", "picture", "chevron-left.svg"},
                {"#detailHeader", "style #detailHeader", "background-color: #F9FAFB"},
                {"#detailHeader", "order", "Name | Size | Action"},
                {"#detailList", "style #detailList", "background-color: #FFFFFF"},
                {"#detailItem@0", "style #detailItem", "background-color: #FFFFFF"},
                {"#detailItem@1", "style #detailItem", "background-color: #FAFBFC"},
                {"#detailItem@0 > #openLocationBtn", "text", "Open file location"},
                {"#detailItem@0 > #openLocationBtn", "picture", "folder-open.svg"},
                {"#detailItem@0", "order", "item 0 | 1.0 KB | Open file location"},
            }));
    }
};

SWEEPWISE_TEST_MAIN(TestDialogFigures, QApplication)
#include "tst_dialogfigures.moc"
