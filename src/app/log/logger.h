#pragma once

#include <QFile>
#include <QMutex>
#include <QObject>
#include <QString>

#include <atomic>

/// The program's log: one text file a day, appended to across runs, every line echoed to the debug
/// output.
///
/// Any thread may log. The mutex guards the file; the minimum level and the ready flag are read
/// without it.
class Logger final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Logger)
public:
    enum Level { Debug = 0, Info = 1, Warning = 2, Error = 3 };

    static Logger &instance();

    Logger();
    ~Logger() override;

    /// Opens "sweepwise_<yyyyMMdd>.log" below @p logDirectory, which is made if need be, and writes
    /// the start banner. If that fails nothing is reported: lines then reach the debug output
    /// alone.
    void init(const QString &logDirectory);

    /// Writes "[time] [level] message" as one line, flushed at once. Control characters in the
    /// message are replaced, so that a hostile file name cannot forge a line. A message below Info
    /// is dropped.
    void log(int level, const QString &message);
    void info(const QString &message) { log(Info, message); }
    void warning(const QString &message) { log(Warning, message); }
    void error(const QString &message) { log(Error, message); }

    /// The day's file, once init() has been called.
    [[nodiscard]] QString fileName() const { return m_file.fileName(); }

private:
    QFile m_file;
    QMutex m_mutex;
    std::atomic_int m_minimumLevel = Info;
    std::atomic_bool m_isFileReady = false;
};
