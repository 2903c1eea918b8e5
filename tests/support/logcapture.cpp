#include "logcapture.h"

#include <QMutex>
#include <QtGlobal>

#include <algorithm>

namespace {

QMutex captureMutex;
QStringList *captured = nullptr;
QtMessageHandler previousHandler = nullptr;

void capture(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    {
        const QMutexLocker lock(&captureMutex);
        if (captured)
            captured->append(message);
    }
    if (type != QtDebugMsg && previousHandler)
        previousHandler(type, context, message);
}

} // namespace

LogCapture::LogCapture()
{
    const QMutexLocker lock(&captureMutex);
    captured = new QStringList;
    previousHandler = qInstallMessageHandler(capture);
}

LogCapture::~LogCapture()
{
    qInstallMessageHandler(previousHandler);
    const QMutexLocker lock(&captureMutex);
    delete captured;
    captured = nullptr;
}

QStringList LogCapture::lines() const
{
    const QMutexLocker lock(&captureMutex);
    return *captured;
}

bool LogCapture::contains(const QString &text) const
{
    return count(text) > 0;
}

qsizetype LogCapture::count(const QString &text) const
{
    const QStringList all = lines();
    return std::count_if(all.begin(), all.end(),
                         [&text](const QString &line) { return line.contains(text); });
}
