#include "logger.h"

#include "ownfile.h"
#include "text.h"

#include <QDateTime>
#include <QDebug>
#include <QMutexLocker>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

QLatin1StringView levelText(int level)
{
    switch (level) {
    case Logger::Debug:
        return "DEBUG"_L1;
    case Logger::Info:
        return "INFO"_L1;
    case Logger::Warning:
        return "WARN"_L1;
    case Logger::Error:
        return "ERROR"_L1;
    default:
        return "UNKNOWN"_L1;
    }
}

} // namespace

Logger &Logger::instance()
{
    // Never destroyed: engines may still log while static objects are destroyed.
    static auto *const logger = new Logger;
    return *logger;
}

Logger::Logger() = default;

Logger::~Logger()
{
    if (m_file.isOpen())
        m_file.close();
}

void Logger::init(const QString &logDirectory)
{
    const QMutexLocker lock(&m_mutex);
    if (m_file.isOpen())
        m_file.close();
    m_isFileReady = false;

    const QDateTime now = QDateTime::currentDateTime();
    m_path = logDirectory + "/sweepwise_"_L1 + now.toString(u"yyyyMMdd"_s) + ".log"_L1;
    m_failure.clear();
    if (!platform::makePrivateFolder(logDirectory, m_failure)
        || !platform::openForAppending(m_path, m_file, m_failure))
        return;
    m_isFileReady = true;

    const QString separator(40, u'=');
    QTextStream stream(&m_file);
    stream << '\n' << separator << '\n';
    stream << "Sweepwise Log Started: " << now.toString(Qt::TextDate) << '\n';
    stream << separator << '\n';
    stream.flush();
    noteFailure(stream);
}

QString Logger::failure() const
{
    const QMutexLocker lock(&m_mutex);
    return m_failure;
}

void Logger::noteFailure(const QTextStream &stream)
{
    if (stream.status() != QTextStream::Ok && m_failure.isEmpty())
        m_failure = m_file.errorString();
}

void Logger::log(int level, const QString &message)
{
    if (level < m_minimumLevel)
        return;

    const QString line =
        u"[%1] [%2] %3"_s.arg(QDateTime::currentDateTime().toString(u"yyyy-MM-dd hh:mm:ss.zzz"_s),
                              levelText(level), singleLine(message));
    qDebug().noquote() << line;

    if (!m_isFileReady)
        return;
    const QMutexLocker lock(&m_mutex);
    if (!m_file.isOpen())
        return;
    QTextStream stream(&m_file);
    stream << line << '\n';
    stream.flush();
    noteFailure(stream);
}
