// Drives the pages of the program with a million files and measures how long the window does not
// answer. Prints a line for each step: the longest time between two turns of the event loop in
// milliseconds, and the name of the step.
//
// Usage: bench_window junk|large FOLDER. The files are made below the folder, which must be empty.

#include "appinfo.h"
#include "application.h"
#include "benchsize.h"
#include "categorywidget.h"
#include "cleanitemwidget.h"
#include "filecardlist.h"
#include "itemdetaildialog.h"
#include "junkpage.h"
#include "largefilepage.h"
#include "largefileviews.h"
#include "mainwindow.h"
#include "options.h"
#include "progressdialog.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QSettings>
#include <QStackedWidget>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <functional>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const int files = benchSize(1'000'000);
const int deletedFiles = benchSize(10'000);
constexpr int filesPerFolder = 200;
constexpr off_t largeSize = 200'000'000;

/// Makes sparse files of @p size bytes.
void makeFiles(const QString &folder, off_t size)
{
    for (int i = 0; i < files; ++i) {
        const QByteArray subfolder =
            QFile::encodeName(folder) + "/some folder " + QByteArray::number(i / filesPerFolder);
        if (i % filesPerFolder == 0)
            ::mkdir(subfolder.constData(), 0700);
        const QByteArray path = subfolder + "/a file with a long name " + QByteArray::number(i);
        const int fd = ::open(path.constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600);
        if (fd < 0 || ::ftruncate(fd, size) != 0)
            qFatal("cannot make %s: %s", path.constData(), std::strerror(errno));
        ::close(fd);
    }
}

/// The longest time between two turns of the event loop.
class Gaps final : public QObject
{
    Q_DISABLE_COPY_MOVE(Gaps)
public:
    Gaps()
    {
        connect(&m_timer, &QTimer::timeout, this, &Gaps::turn);
        m_timer.setTimerType(Qt::PreciseTimer);
        m_timer.start(1);
        m_sinceLast.start();
    }

    /// Calls @p act and runs the event loop until @p signal of @p sender, or without a sender until
    /// the window has painted. Then prints the longest gap.
    template<class Sender, class Signal>
    void measure(const char *step, Sender *sender, Signal signal, const std::function<void()> &act)
    {
        bool isDone = false;
        const auto connection = connect(sender, signal, this, [&isDone] { isDone = true; });
        begin();
        act();
        turn();
        while (!isDone)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        disconnect(connection);
        end(step);
    }

    void measure(const char *step, const std::function<void()> &act)
    {
        begin();
        act();
        turn();
        end(step);
    }

private:
    void begin()
    {
        settle();
        m_longest = 0;
        m_sinceLast.start();
    }

    void end(const char *step)
    {
        settle();
        std::printf("%.1f %s\n", static_cast<double>(m_longest) / 1e6, step);
        std::fflush(stdout);
    }

    void turn()
    {
        m_longest = std::max(m_longest, m_sinceLast.nsecsElapsed());
        m_sinceLast.start();
    }

    static void settle()
    {
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < 300)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    QTimer m_timer;
    QElapsedTimer m_sinceLast;
    qint64 m_longest = 0; ///< nanoseconds
};

void measureJunk(MainWindow &window, Gaps &gaps)
{
    auto *page = window.findChild<JunkPage *>();
    auto *scan = page->findChild<QPushButton *>(u"scanBtn"_s);
    auto *clean = page->findChild<QPushButton *>(u"cleanBtn"_s);
    gaps.measure("junk: open the page", [&] { window.onDashboardNavigate(1); });
    gaps.measure("junk: scan and show", page, &BasePage::scanFinished, [scan] { scan->click(); });
    auto *category = page->findChild<CategoryWidget *>();
    if (!category)
        qFatal("nothing was found");
    auto *check = category->findChild<QCheckBox *>(u"categoryCheck"_s);
    gaps.measure("junk: untick the category", [check] { check->click(); });
    gaps.measure("junk: tick the category", [check] { check->click(); });
    gaps.measure("junk: expand the category",
                 [&] { category->findChild<QPushButton *>(u"expandBtn"_s)->click(); });
    gaps.measure("junk: load more",
                 [&] { category->findChild<QPushButton *>(u"loadMoreBtn"_s)->click(); });
    gaps.measure("junk: untick an item", [&] {
        category->findChild<CleanItemWidget *>()->findChild<QCheckBox *>()->click();
    });
    gaps.measure("junk: open the details",
                 [&] { category->findChild<QPushButton *>(u"itemCount"_s)->click(); });
    gaps.measure("junk: close the details",
                 [&] { window.findChild<ItemDetailDialog *>()->close(); });
    gaps.measure("junk: clean, cancel and scan at once", page, &BasePage::scanFinished, [&] {
        clean->click();
        page->cancelOperation();
        scan->click();
    });
    gaps.measure("junk: clean", page, &BasePage::cleanFinished, [clean] { clean->click(); });
}

/// Answers each question with yes.
void answer()
{
    if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
        QAbstractButton *yes = box->button(QMessageBox::Yes);
        (yes ? yes : box->button(QMessageBox::Ok))->click();
    }
}

void measureLarge(MainWindow &window, Gaps &gaps, const QString &folder)
{
    auto *stack = window.findChild<QStackedWidget *>(u"pageStack"_s);
    auto *old = stack->findChild<LargeFilePage *>();
    const int index = stack->indexOf(old);
    delete old;
    auto *page =
        new LargeFilePage({{folder, u"Drive"_s, false, 1'000'000'000'000, 1'000'000}}, stack);
    stack->insertWidget(index, page);
    gaps.measure("large: open the page", [&] { window.onDashboardNavigate(index); });
    auto *selection = page->findChild<LargeFileSelectionView *>();
    selection->driveBoxes().first()->setChecked(true);
    selection->sizeCombo()->setCurrentIndex(0);
    gaps.measure("large: search, sort and show", page->scanner(), &LargeFileScanner::scanFinished,
                 [&] { selection->startButton()->click(); });
    if (page->model()->rowCount() != files)
        qFatal("%d files were found", page->model()->rowCount());
    auto *results = page->findChild<LargeFileResultsView *>();
    QScrollBar *bar = results->list()->verticalScrollBar();
    gaps.measure("large: scroll", [&] {
        for (int i = 0; i < 100; ++i) {
            QTimer::singleShot(i * 5, bar, [bar, i] {
                bar->setValue(static_cast<int>(static_cast<qint64>(bar->maximum()) * i / 100));
            });
        }
    });
    gaps.measure("large: tick 10,000", [&] {
        for (int row = 0; row < deletedFiles; ++row)
            page->model()->setTicked(row * 7 % files, true);
        page->updateSelectedInfo();
    });
    gaps.measure("large: delete 10,000", page->scanner(), &LargeFileScanner::deleteFinished,
                 [&] { results->deleteButton()->click(); });
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 3)
        qFatal("usage: bench_window junk|large FOLDER");
    const QString folder = QFile::decodeName(argv[2]);
    const bool isJunk = std::strcmp(argv[1], "junk") == 0;
    const QString tree = folder + "/files"_L1;
    for (const char *variable :
         {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "WINEPREFIX", "WINDIR",
          "LOCALAPPDATA", "PROGRAMDATA", "SYSTEMDRIVE", "USERPROFILE", "APPDATA"}) {
        const QString path = folder + u'/' + QLatin1StringView(variable);
        QDir().mkpath(path);
        qputenv(variable, QFile::encodeName(path));
    }
    QDir().mkpath(tree);
    qputenv("TMPDIR", QFile::encodeName(tree));
    makeFiles(tree, isJunk ? 10 : largeSize);

    QApplication application(argc, argv);
    QApplication::setApplicationName(appinfo::name);
    QApplication::setApplicationVersion(appinfo::version);
    QApplication::setOrganizationName(appinfo::organisation);
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
        if (type == QtFatalMsg)
            std::fputs(qPrintable(text + u'\n'), stderr);
    });
    Application::instance()->initialize();
    options::set(*Application::instance()->settings(), options::confirmClean, false);
    Application::instance()->showMainWindow();

    QTimer answers;
    QObject::connect(&answers, &QTimer::timeout, &answer);
    answers.start(3);
    Gaps gaps;
    if (isJunk)
        measureJunk(*Application::instance()->mainWindow(), gaps);
    else
        measureLarge(*Application::instance()->mainWindow(), gaps, tree);
    std::fflush(stdout);
    // The records and the window need not be taken apart.
    ::_exit(0);
}
