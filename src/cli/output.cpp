#include "output.h"

#include "interrupt.h"
#include "logger.h"
#include "text.h"

#include <QIODevice>
#include <QStringList>
#include <QTextStream>

#include <algorithm>
#include <cstdio>
#include <utility>

using namespace Qt::StringLiterals;

namespace cli {

QString exitStatusHelp()
{
    static constexpr std::pair<ExitStatus, QLatin1StringView> meanings[] = {
        {Success, "success"_L1},
        {SomeFailed, "something could not be read or cleaned"_L1},
        {WrongUse, "wrong use, or the command could not be carried out"_L1},
        {HungUp, "cancelled because the terminal was closed (Linux)"_L1},
        {LibraryMissing, "a library of the system is missing (Windows)"_L1},
        {Interrupted, "cancelled by Ctrl+C"_L1},
        {Terminated, "cancelled by a request to end, or by the end of the session"_L1},
    };
    QString text;
    for (const auto &[status, meaning] : meanings)
        text += "  "_L1 + QString::number(status).leftJustified(5) + meaning + u'\n';
    return text;
}

void writeError(const QString &text)
{
    std::fputs(qPrintable(text), stderr);
}

ExitStatus refuse(const QString &message)
{
    writeError("sweepwise-cli: "_L1 + message + "\nSee sweepwise-cli --help.\n"_L1);
    return WrongUse;
}

namespace {

/// Standard output as a device. After the first failure it takes nothing more: a report that goes
/// on behind a gap would look whole.
class StandardOutput final : public QIODevice
{
    Q_DISABLE_COPY_MOVE(StandardOutput)
public:
    StandardOutput() { m_isSound = open(WriteOnly | Unbuffered); }

    /// Writes what is still in memory. Returns whether all was written.
    [[nodiscard]] bool finish() { return m_isSound && std::fflush(stdout) == 0; }
    [[nodiscard]] bool isSequential() const override { return true; }

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *data, qint64 size) override
    {
        const auto count = static_cast<std::size_t>(size);
        m_isSound = m_isSound && std::fwrite(data, 1, count, stdout) == count;
        return m_isSound ? size : -1;
    }

private:
    bool m_isSound = false;
};

/// Has @p report write to standard output.
ExitStatus write(const std::function<void(QIODevice &)> &report)
{
    StandardOutput output;
    report(output);
    return output.finish() ? Success : refuse(u"the output could not be written"_s);
}

void writeText(QIODevice &output, const TextReport &report)
{
    QTextStream stream(&output);
    stream.setEncoding(QStringConverter::System);
    report(stream);
}

} // namespace

ExitStatus printText(const QString &text)
{
    return write([&text](QIODevice &output) {
        writeText(output, [&text](QTextStream &stream) { stream << text; });
    });
}

ExitStatus printRun(const Invocation &invocation, const RunEnd &end, const JsonReport &asJson,
                    const TextReport &asText, ExitStatus status)
{
    const platform::ReadFailures &incomplete = end.incomplete;
    // The work is over: from here on a request may end the process, which may wait for a reader.
    // After a first one only a second one may, and that no SIGHUP is.
    if (!platform::interrupt::isRequested())
        platform::interrupt::releaseRequests();
    const QStringList lines = incomplete.lines();
    for (const QString &line : lines)
        writeError("sweepwise-cli: "_L1 + singleLine(line) + u'\n');
    const Logger &log = Logger::instance();
    if (const QString failure = log.failure(); !failure.isEmpty())
        writeError(u"sweepwise-cli: the log %1 cannot be written: %2\n"_s.arg(
            singleLine(log.fileName()), failure));
    const auto writeJson = [&](QIODevice &output) {
        JsonWriter json(output);
        asJson(json);
        json.array("incomplete"_L1, incomplete.kept(), [](const platform::ReadFailure &failure) {
            return QJsonObject{{u"where"_s, failure.where}, {u"reason"_s, failure.reason}};
        });
        // Of very many places with the same reason only the first are named.
        json.member("incompleteCount"_L1, incomplete.count());
        json.member("cancelled"_L1, end.isCancelled);
        json.finish();
    };
    const auto writeAll = [&](QTextStream &stream) {
        asText(stream);
        if (end.isCancelled)
            stream << "Cancelled before the end.\n";
        if (!incomplete.isEmpty())
            stream << "Incomplete. Places that could not be read: " << incomplete.count() << '\n';
    };
    const ExitStatus written = invocation.has(Option::Json)
        ? write(writeJson)
        : write([&](QIODevice &output) { writeText(output, writeAll); });
    if (end.isCancelled)
        return static_cast<ExitStatus>(platform::interrupt::exitStatus());
    if (written != Success)
        return written;
    return incomplete.isEmpty() ? status : std::max(status, SomeFailed);
}

QString tickMark(Qt::CheckState state)
{
    return state == Qt::Checked ? u"[x] "_s : state == Qt::Unchecked ? u"[ ] "_s : u"[-] "_s;
}

} // namespace cli
