#include "output.h"

#include <QJsonDocument>
#include <QStringList>

#include <cstdio>
#include <utility>

using namespace Qt::StringLiterals;

namespace cli {

QString exitStatusHelp()
{
    static constexpr std::pair<ExitStatus, QLatin1StringView> meanings[] = {
        {Success, "success"_L1},
        {SomeFailed, "some items could not be cleaned"_L1},
        {WrongUse, "wrong use or failure"_L1},
    };
    QStringList texts;
    for (const auto &[status, meaning] : meanings)
        texts.append(u"%1 %2"_s.arg(QString::number(status), meaning));
    return texts.join(", "_L1);
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

ExitStatus printReport(const Invocation &invocation, const std::function<QJsonObject()> &asJson,
                       const std::function<QString()> &asText, ExitStatus status)
{
    const QByteArray report =
        invocation.has(Option::Json) ? QJsonDocument(asJson()).toJson() : asText().toLocal8Bit();
    const auto size = static_cast<std::size_t>(report.size());
    if (std::fwrite(report.constData(), 1, size, stdout) != size || std::fflush(stdout) != 0)
        return refuse(u"the report could not be written"_s);
    return status;
}

QString tickMark(Qt::CheckState state)
{
    return state == Qt::Checked ? u"[x] "_s : state == Qt::Unchecked ? u"[ ] "_s : u"[-] "_s;
}

} // namespace cli
