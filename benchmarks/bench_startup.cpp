// Measures from outside how long a program takes until its first frame is on the screen. Also
// measures its resident memory at that time.
//
// Usage: bench_startup PROGRAM ROUNDS, on a display of the size of the program's window. Watches
// one pixel of the navigation column; prints one line "milliseconds kibibytes" a round.

#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QTextStream>
#include <QThread>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 20'000; // milliseconds

bool isPainted(QScreen *screen)
{
    const QColor colour =
        screen->grabWindow(0, 20, screen->size().height() / 2, 1, 1).toImage().pixelColor(0, 0);
    return colour.green() > colour.red() + 60;
}

QString residentKibibytes(qint64 process)
{
    QFile status(u"/proc/%1/status"_s.arg(process));
    if (!status.open(QIODevice::ReadOnly))
        return u"?"_s;
    const QStringList lines = QString::fromLatin1(status.readAll()).split(u'\n');
    return lines.filter(u"VmRSS"_s).value(0).section(u' ', -2, -2);
}

} // namespace

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 3)
        qFatal("usage: bench_startup PROGRAM ROUNDS");
    QScreen *screen = QGuiApplication::primaryScreen();
    QTextStream out(stdout);
    for (int round = 0; round < arguments.at(2).toInt(); ++round) {
        QProcess program;
        program.setProcessChannelMode(QProcess::SeparateChannels);
        program.setStandardErrorFile(QProcess::nullDevice());
        QElapsedTimer timer;
        timer.start();
        program.start(arguments.at(1), {});
        while (!isPainted(screen)) {
            if (timer.elapsed() > patience)
                qFatal("no frame appeared");
            QThread::usleep(500);
        }
        out << timer.nsecsElapsed() / 1'000'000 << ' ' << residentKibibytes(program.processId())
            << Qt::endl;
        program.terminate();
        program.waitForFinished();
        while (isPainted(screen))
            QThread::msleep(5);
    }
    return 0;
}
