// Opens every page and dialog in one language. Writes a picture of each stop, or lists the texts
// that a user could not read.
//
// Usage:
//   screenshots [--language CODE] FOLDER    a picture of each stop, and one of all of them
//   screenshots [--language CODE] --check   a line for each text that does not fit or control with
//                                           a fault; exit status 1 if there is one

#include "access.h"
#include "appinfo.h"
#include "applicationfont.h"
#include "language.h"
#include "testhome.h"
#include "textfit.h"
#include "tour.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QPainter>
#include <QSettings>
#include <QTranslator>
#include <QWidget>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

/// Writes the pictures of the stops into a folder, and one small picture of all of them.
class Album
{
public:
    explicit Album(const QString &folder)
        : m_folder(folder)
    {
        QDir().mkpath(folder);
    }

    /// Adds a picture of the window and of the windows above it, each at its place on the screen.
    void add(const QString &name, QWidget *window, const QList<QWidget *> &above)
    {
        QPixmap picture = window->grab();
        QPixmap page(picture.size());
        page.setDevicePixelRatio(picture.devicePixelRatio());
        page.fill(QColor(226, 232, 240));
        QPainter painter(&page);
        painter.drawPixmap(0, 0, picture);
        for (QWidget *widget : above)
            painter.drawPixmap(widget->frameGeometry().topLeft()
                                   - window->frameGeometry().topLeft(),
                               widget->grab());
        painter.end();
        m_pages.append(page);
        save(page, u"%1-%2"_s.arg(QString::number(m_pages.size()).rightJustified(2, u'0'), name));
    }

    /// Writes one picture with all stops side by side, in half size.
    void addContactSheet()
    {
        constexpr int columns = 6;
        constexpr int gap = 8;
        if (m_pages.isEmpty())
            return;
        const QSize cell = m_pages.constFirst().size() / 2;
        const int rows = (static_cast<int>(m_pages.size()) + columns - 1) / columns;
        QPixmap sheet(columns * (cell.width() + gap) + gap, rows * (cell.height() + gap) + gap);
        sheet.fill(Qt::white);
        QPainter painter(&sheet);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        for (int i = 0; i < m_pages.size(); ++i) {
            const QPoint place(gap + i % columns * (cell.width() + gap),
                               gap + i / columns * (cell.height() + gap));
            painter.drawPixmap(QRect(place, cell), m_pages.at(i));
        }
        painter.end();
        save(sheet, u"00-all"_s);
    }

private:
    void save(const QPixmap &picture, const QString &name)
    {
        const QString file = u"%1/%2.png"_s.arg(m_folder, name);
        if (!picture.save(file))
            qFatal("cannot write %s", qPrintable(file));
    }

    QString m_folder;
    QList<QPixmap> m_pages;
};

int check(const TestHome &home)
{
    int count = 0;
    takeTour(home, [&count](const QString &name, QWidget *window, const QList<QWidget *> &above) {
        for (const QWidget *widget : QList<QWidget *>{window} + above) {
            const QStringList complaints = unreadableTexts(widget) + accessFaults(widget);
            for (const QString &complaint : complaints)
                std::printf("%s: %s\n", qPrintable(name), qPrintable(complaint));
            count += static_cast<int>(complaints.size());
        }
    });
    return count == 0 ? 0 : 1;
}

} // namespace

int main(int argc, char *argv[])
{
    const TestHome home;
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    QApplication::setApplicationName(appinfo::name);
    QApplication::setOrganizationName(appinfo::organisation);
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &message) {
        if (type != QtDebugMsg)
            fprintf(stderr, "%s\n", qPrintable(message));
    });

    QCommandLineParser parser;
    const QCommandLineOption languageOption(u"language"_s, {}, u"CODE"_s, u"en"_s);
    const QCommandLineOption checkOption(u"check"_s);
    parser.addOptions({languageOption, checkOption});
    parser.process(application);
    const QStringList folders = parser.positionalArguments();
    if (folders.size() != (parser.isSet(checkOption) ? 0 : 1))
        qFatal("usage: screenshots [--language CODE] FOLDER | --check");

    QSettings(appinfo::organisation, appinfo::name)
        .setValue("language"_L1, parser.value(languageOption));
    QTranslator translator;
    language::install(translator);
    if (translator.isEmpty())
        qFatal("there is no catalogue for '%s'", qPrintable(parser.value(languageOption)));
    theme::installApplicationFont();

    if (parser.isSet(checkOption))
        return check(home);
    Album album(folders.constFirst());
    takeTour(home, [&album](const QString &name, QWidget *window, const QList<QWidget *> &above) {
        album.add(name, window, above);
    });
    album.addContactSheet();
    return 0;
}
