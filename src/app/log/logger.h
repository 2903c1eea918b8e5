#pragma once

#include <QFile>
#include <QMutex>
#include <QObject>
#include <QString>
#include <QStringList>

#include <atomic>

class QTextStream;

/// The program's log: one text file a day. Later runs append to it. Every line also goes to the
/// debug output.
///
/// Any thread may log. The mutex guards the file. The minimum level and the ready flag are atomic
/// and are read without it. instance() is never deleted.
class Logger final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Logger)
public:
    enum Level { Debug = 0, Info = 1, Warning = 2, Error = 3 };

    static Logger &instance();

    Logger();
    ~Logger() override;

    /// Opens "sweepwise_<yyyyMMdd>.log" in @p logDirectory and writes the start banner. Makes the
    /// directory if it is missing. On failure no line says so, see failure(). Lines then reach only
    /// the debug output.
    void init(const QString &logDirectory);

    /// Writes "[time] [level] message" as one line and flushes it at once. Control characters in
    /// the message are replaced, so that a file name cannot forge a line. A message below Info is
    /// dropped.
    void log(int level, const QString &message);
    void info(const QString &message) { log(Info, message); }
    void warning(const QString &message) { log(Warning, message); }
    void error(const QString &message) { log(Error, message); }
    void warnings(const QStringList &messages)
    {
        for (const QString &message : messages)
            warning(message);
    }

    /// Why the file cannot be opened, or why a line of it was lost first. For people; empty when
    /// nothing has failed.
    [[nodiscard]] QString failure() const;
    /// The path of the day's file; empty before init().
    [[nodiscard]] QString fileName() const { return m_path; }

private:
    // Called with the mutex held.
    void noteFailure(const QTextStream &stream);

    QString m_path;
    QFile m_file;
    QString m_failure;
    mutable QMutex m_mutex;
    std::atomic_int m_minimumLevel = Info;
    std::atomic_bool m_isFileReady = false;
};
