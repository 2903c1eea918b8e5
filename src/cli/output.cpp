#include "output.h"

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

void complain(const QString &text)
{
    std::fputs(qPrintable(text), stderr);
}

bool print(const QByteArray &report)
{
    const auto size = static_cast<std::size_t>(report.size());
    return std::fwrite(report.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0;
}

ExitStatus refuse(const QString &message)
{
    complain("sweepwise-cli: "_L1 + message + "\nSee sweepwise-cli --help.\n"_L1);
    return WrongUse;
}

ExitStatus finish(const QByteArray &report, ExitStatus status)
{
    return print(report) ? status : refuse(u"the report could not be written"_s);
}

} // namespace cli
