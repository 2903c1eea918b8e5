// Looks for large files in one tree by one way: the scanner of the program or another way to
// compare it with. Each run is one process, so that its time and peak memory can be measured from
// outside. The script `large_files.py` starts the runs.
//
// Usage: bench_largefiles make FOLDER              fills the empty folder
//        bench_largefiles WAY FOLDER               prints how many files it has found
// with WAY one of scanner-1, scanner-2 (walkers), bare-1, bare-2 (threads), qdiriterator.

#include "benchsize.h"
#include "largefilescanner.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTextStream>

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const int files = benchSize(500'000);
constexpr int filesPerFolder = 100;
constexpr qint64 minimumSize = 104'857'600;

/// Fills the tree: ten levels deep, sizes from 0 to 1 MiB; every ten-thousandth file is a large
/// one. All files are sparse, since a walk reads their sizes and not their content.
void make(const QString &root)
{
    QString path = root;
    for (int i = 0; i < files; ++i) {
        if (i % filesPerFolder == 0) {
            const int folder = i / filesPerFolder;
            path = (folder % 10 == 0 ? root : path) + u"/folder-%1"_s.arg(folder);
            if (!QDir().mkpath(path))
                qFatal("cannot make the tree");
        }
        const QString name =
            u"%1/file-%2.%3"_s.arg(path, QString::number(i), i % 10 == 0 ? u"mp4"_s : u"dat"_s);
        const int fd = ::creat(QFile::encodeName(name).constData(), 0600);
        const off_t size = i % 10'000 == 0 ? minimumSize + 1 + i : (i * 7919) % 1'048'576;
        if (fd < 0 || ::ftruncate(fd, size) != 0)
            qFatal("cannot fill the tree");
        ::close(fd);
    }
}

qint64 scan(const QString &root, int walkers)
{
    LargeFileScanner scanner;
    scanner.setWalkerCount(walkers);
    scanner.setDrives({root});
    scanner.setMinSize(minimumSize);
    QObject::connect(&scanner, &LargeFileScanner::scanFinished, qApp, &QCoreApplication::quit);
    scanner.startScan();
    QCoreApplication::exec();
    return scanner.results().size();
}

qint64 iterate(const QString &root)
{
    qint64 found = 0;
    QDirIterator it(root, QDir::Files | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories | QDirIterator::FollowSymlinks);
    while (it.hasNext()) {
        it.next();
        if (it.fileInfo().size() >= minimumSize)
            ++found;
    }
    return found;
}

/// The minimum of work for such a search: read each folder and ask each file for its size. Several
/// threads share the list of folders, which the mutex guards.
class Bare
{
public:
    qint64 run(const QString &root, int threads)
    {
        m_pending.push_back(QFile::encodeName(root).toStdString());
        {
            std::vector<std::jthread> all;
            for (int i = 0; i < threads; ++i)
                all.emplace_back([this] { work(); });
        }
        return m_found;
    }

private:
    void work()
    {
        std::unique_lock lock(m_mutex);
        for (;;) {
            if (!m_pending.empty()) {
                const std::string folder = std::move(m_pending.back());
                m_pending.pop_back();
                ++m_busy;
                lock.unlock();
                std::vector<std::string> subfolders = read(folder);
                lock.lock();
                --m_busy;
                for (std::string &subfolder : subfolders)
                    m_pending.push_back(std::move(subfolder));
                m_changed.notify_all();
            } else if (m_busy > 0) {
                m_changed.wait(lock);
            } else {
                return;
            }
        }
    }

    std::vector<std::string> read(const std::string &folder)
    {
        std::vector<std::string> subfolders;
        const int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY);
        alignas(dirent64) char buffer[65'536];
        for (;;) {
            const ssize_t length = ::getdents64(fd, buffer, sizeof buffer);
            if (length <= 0)
                break;
            for (ssize_t offset = 0; offset < length;) {
                const auto *entry = reinterpret_cast<const dirent64 *>(buffer + offset);
                offset += entry->d_reclen;
                struct statx status = {};
                if (entry->d_type == DT_REG
                    && ::statx(fd, entry->d_name, AT_SYMLINK_NOFOLLOW, STATX_SIZE, &status) == 0) {
                    if (static_cast<qint64>(status.stx_size) >= minimumSize)
                        ++m_found;
                } else if (entry->d_type == DT_DIR && entry->d_name[0] != '.') {
                    subfolders.push_back(folder + '/' + entry->d_name);
                }
            }
        }
        ::close(fd);
        return subfolders;
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<std::string> m_pending;
    int m_busy = 0;
    std::atomic<qint64> m_found = 0;
};

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        QTextStream(stderr) << "usage: bench_largefiles make|WAY FOLDER\n";
        return 2;
    }
    const QString &way = arguments.at(1);
    const QString &root = arguments.at(2);
    if (way == "make"_L1) {
        make(root);
        return 0;
    }
    const qint64 found = way == "scanner-1"_L1 ? scan(root, 1)
        : way == "scanner-2"_L1                ? scan(root, 2)
        : way == "bare-1"_L1                   ? Bare().run(root, 1)
        : way == "bare-2"_L1                   ? Bare().run(root, 2)
                                               : iterate(root);
    QTextStream(stdout) << found << Qt::endl;
    return 0;
}
