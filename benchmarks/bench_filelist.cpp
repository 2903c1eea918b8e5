// Measures the list of large files with a million results. Prints three numbers, each on its own
// line: the milliseconds from the end of a search to the painted list, the milliseconds of the
// slowest jump in the list, and the bytes per row in addition to its record.

#include "benchsize.h"
#include "filecardlist.h"
#include "largefilemodel.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QStackedWidget>

#include <algorithm>
#include <cstdio>

#include <malloc.h>

using namespace Qt::StringLiterals;

namespace {

const int rows = benchSize(1'000'000);
constexpr int jumps = 200;

QList<LargeFileInfo> makeFiles()
{
    QList<LargeFileInfo> files;
    files.reserve(rows);
    QString folder;
    for (int i = 0; i < rows; ++i) {
        if (i % 20 == 0)
            folder = u"/home/somebody/Projects/Some project/build/folder %1"_s.arg(i / 20);
        const QString name = u"recording number %1 of many.mkv"_s.arg(i);
        files.append({folder + u'/' + name, name, folder, 2'000'000'000LL - i,
                      QDateTime::fromMSecsSinceEpoch(1'700'000'000'000 + i), u"video"_s});
    }
    return files;
}

std::size_t bytesInUse()
{
    const struct mallinfo2 info = ::mallinfo2();
    return info.uordblks + info.hblkhd;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QList<LargeFileInfo> files = makeFiles();
    LargeFileModel model;
    QStackedWidget views;
    views.addWidget(new QWidget);
    auto *list = new FileCardList(&model);
    views.addWidget(list);
    views.resize(710, 600);
    views.show();
    QApplication::processEvents();

    const std::size_t before = bytesInUse();
    QElapsedTimer timer;
    timer.start();
    model.setFiles(files);
    views.setCurrentIndex(1);
    QApplication::processEvents();
    list->viewport()->repaint();
    const double opening = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    const std::size_t after = bytesInUse();

    QRandomGenerator random(1);
    double longest = 0;
    for (int i = 0; i < jumps; ++i) {
        timer.restart();
        list->verticalScrollBar()->setValue(
            random.bounded(list->verticalScrollBar()->maximum() + 1));
        list->viewport()->repaint();
        longest = std::max(longest, static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::printf("%.1f\n%.1f\n%.2f\n", opening, longest, static_cast<double>(after - before) / rows);
    return 0;
}
