// Compares the program's file operations with other ways to do the same. The absolute times mean
// little on a shared machine: the script `run` prints their ratios.

#include "benchsize.h"
#include "fileremove.h"
#include "filewalk.h"
#include "junkcleaner.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <chrono>
#include <thread>

#include <fcntl.h>
#include <malloc.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const int files = benchSize(100'000);
constexpr int filesPerFolder = 200;
const int filesToRemove = benchSize(100'000);

/// The tree for the walks: up to ten levels deep, sizes from 0 to 2 KiB, every tenth file a log.
class Tree
{
public:
    Tree()
        : m_path(m_folder.path())
    {
        if (!m_folder.isValid())
            qFatal("cannot make a temporary folder: %s", qPrintable(m_folder.errorString()));
        QString path = m_path;
        for (int i = 0; i < files; ++i) {
            if (i % filesPerFolder == 0) {
                const int folder = i / filesPerFolder;
                path = folder % 10 == 0 ? m_path + u"/f%1"_s.arg(folder)
                                        : path + u"/f%1"_s.arg(folder);
                QDir().mkpath(path);
            }
            const QString name =
                u"%1/file-%2.%3"_s.arg(path, QString::number(i), i % 10 == 0 ? u"log"_s : u"dat"_s);
            const int fd = ::creat(QFile::encodeName(name).constData(), 0600);
            if (fd < 0 || ::ftruncate(fd, i % 2048) != 0)
                qFatal("cannot fill the tree");
            ::close(fd);
        }
    }

    static const QString &path()
    {
        static const Tree tree;
        return tree.m_path;
    }

private:
    QTemporaryDir m_folder;
    QString m_path;
};

void expect(benchmark::State &state, qint64 count)
{
    if (count != files)
        state.SkipWithError("not every file was found");
}

void walkOurs(benchmark::State &state)
{
    const QString root = Tree::path();
    for (auto _ : state) {
        qint64 count = 0;
        qint64 size = 0;
        platform::ListedFolders listed;
        platform::walkFiles(
            root, {},
            [&](platform::WalkedFile &&file) {
                ++count;
                size += file.size;
            },
            &listed);
        benchmark::DoNotOptimize(size);
        expect(state, count);
    }
}

void walkQDirIterator(benchmark::State &state)
{
    const QString root = Tree::path();
    for (auto _ : state) {
        qint64 count = 0;
        qint64 size = 0;
        QDirIterator it(root, {u"*"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            it.next();
            ++count;
            size += it.fileInfo().size();
        }
        benchmark::DoNotOptimize(size);
        expect(state, count);
    }
}

void walkFind(benchmark::State &state)
{
    const QString root = Tree::path();
    for (auto _ : state) {
        QProcess find;
        find.setStandardOutputFile(QProcess::nullDevice());
        find.start(u"find"_s,
                   {root, u"-type"_s, u"f"_s, u"-size"_s, u"+100M"_s, u"-printf"_s, u"%s %p\n"_s});
        if (!find.waitForFinished(-1) || find.exitCode() != 0)
            state.SkipWithError("find failed");
    }
}

BENCHMARK(walkOurs)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(walkQDirIterator)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(walkFind)->Unit(benchmark::kMillisecond)->UseRealTime();

/// Measures how long the walk runs after a stop request.
void cancelWalk(benchmark::State &state)
{
    const QString root = Tree::path();
    for (auto _ : state) {
        std::atomic_bool stop = false;
        std::jthread walker([&] {
            while (!stop)
                platform::walkFiles(root, {{}, true, {&stop}}, [](platform::WalkedFile &&) {});
        });
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
        const auto stopTime = std::chrono::steady_clock::now();
        stop = true;
        walker.join();
        state.SetIterationTime(
            std::chrono::duration<double>(std::chrono::steady_clock::now() - stopTime).count());
    }
}

BENCHMARK(cancelWalk)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(1)
    ->Repetitions(50);

/// Makes the files that the measured code removes; each round makes them again.
QStringList fillForRemoval(const QString &root)
{
    QStringList paths;
    paths.reserve(filesToRemove);
    for (int i = 0; i < filesToRemove; ++i) {
        const QString folder = root + u"/d%1"_s.arg(i / 1000);
        if (i % 1000 == 0)
            QDir().mkpath(folder);
        paths.append(folder + u"/f%1"_s.arg(i));
        ::close(::creat(QFile::encodeName(paths.last()).constData(), 0600));
    }
    return paths;
}

template<class Remove>
void removeAll(benchmark::State &state, Remove remove)
{
    for (auto _ : state) {
        state.PauseTiming();
        // In memory: the journal of a disk would take much longer than the difference to measure.
        const QTemporaryDir folder(u"/dev/shm/bench-XXXXXX"_s);
        const QStringList paths = fillForRemoval(folder.path());
        platform::ListedFolders listed;
        platform::walkFiles(
            folder.path(), {}, [](platform::WalkedFile &&) {}, &listed);
        state.ResumeTiming();
        remove(folder.path(), paths, listed);
        state.PauseTiming();
        if (QFile::exists(paths.constFirst()) || QFile::exists(paths.constLast()))
            state.SkipWithError("not every file was removed");
        state.ResumeTiming();
    }
}

void removeOurs(benchmark::State &state)
{
    removeAll(state,
              [](const QString &, const QStringList &paths, const platform::ListedFolders &listed) {
                  platform::FileRemover remover;
                  remover.setListed(&listed);
                  for (const QString &path : paths)
                      benchmark::DoNotOptimize(remover.remove(path));
              });
}

void removeUnlinkat(benchmark::State &state)
{
    removeAll(state, [](const QString &, const QStringList &paths, const auto &) {
        QString folder;
        int fd = -1;
        for (const QString &path : paths) {
            const qsizetype slash = path.lastIndexOf(u'/');
            if (QStringView(path).left(slash) != folder) {
                folder = path.left(slash);
                ::close(fd);
                fd = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY);
            }
            ::unlinkat(fd, QFile::encodeName(path.mid(slash + 1)).constData(), 0);
        }
        ::close(fd);
    });
}

void removeQFile(benchmark::State &state)
{
    removeAll(state, [](const QString &, const QStringList &paths, const auto &) {
        for (const QString &path : paths) {
            if (QFileInfo::exists(path))
                QFile::remove(path);
        }
    });
}

void removeRm(benchmark::State &state)
{
    removeAll(state, [](const QString &root, const QStringList &, const auto &) {
        QProcess::execute(u"rm"_s, {u"-rf"_s, root});
    });
}

// The time in the file system varies: there are many rounds, and the script takes the median.
BENCHMARK(removeUnlinkat)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(1)
    ->Repetitions(7);
BENCHMARK(removeOurs)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1)->Repetitions(7);
BENCHMARK(removeQFile)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1)->Repetitions(7);
BENCHMARK(removeRm)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1)->Repetitions(7);

qint64 usedHeap()
{
    const struct mallinfo2 info = ::mallinfo2();
    return static_cast<qint64>(info.uordblks) + static_cast<qint64>(info.hblkhd);
}

void memoryPerItem(benchmark::State &state)
{
    const QString root = Tree::path();
    for (auto _ : state) {
        const qint64 before = usedHeap();
        QList<CleanItem> items;
        platform::walkFiles(root, {}, [&items](platform::WalkedFile &&file) {
            items.emplaceBack(file.name, file.path, file.size);
        });
        items.squeeze();
        state.counters["bytes"] =
            static_cast<double>(usedHeap() - before) / static_cast<double>(items.size());
    }
}

BENCHMARK(memoryPerItem)->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace

BENCHMARK_MAIN();
