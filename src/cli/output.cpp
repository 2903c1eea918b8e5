#include "output.h"

#include <cstdio>

using namespace Qt::StringLiterals;

namespace cli {

void complain(const QString &text)
{
    std::fputs(qPrintable(text), stderr);
}

bool print(const QByteArray &report)
{
    const auto size = static_cast<std::size_t>(report.size());
    return std::fwrite(report.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0;
}

int refuse(const QString &message)
{
    complain("sweepwise-cli: "_L1 + message + "\nSee sweepwise-cli --help.\n"_L1);
    return WrongUse;
}

int finish(const QByteArray &report, ExitStatus status)
{
    return print(report) ? status : refuse(u"the report could not be written"_s);
}

} // namespace cli
