#include "checks.h"

#include <QCheckBox>

using namespace Qt::StringLiterals;

namespace checks {

QString sizeText(qint64 bytes)
{
    const auto number = [bytes](qint64 unit, int decimals) {
        return QString::number(static_cast<double>(bytes) / static_cast<double>(unit), 'f',
                               decimals);
    };
    if (bytes >= 1 << 30)
        return number(1 << 30, 2) + " GB"_L1;
    if (bytes >= 1 << 20)
        return number(1 << 20, 1) + " MB"_L1;
    return bytes < 1 << 10 ? u"%1 B"_s.arg(bytes) : number(1 << 10, 1) + " KB"_L1;
}

void compare(const QString &what, const QString &shown, const QString &expected)
{
    expect(shown == expected,
           [&] { return u"%1 is \"%2\" and not \"%3\""_s.arg(what, shown, expected); });
}

void checkText(const QWidget *row, const QString &name, const QString &full)
{
    const auto drawn = eyes::drawnText(row, name);
    expect(!drawn || eyes::isShortenedText(*drawn, full),
           [&] { return u"%1 says \"%2\" where \"%3\" belongs"_s.arg(name, *drawn, full); });
}

void checkBox(const QWidget *box, int ticked, int count)
{
    const auto *checkBox = qobject_cast<const QCheckBox *>(box);
    expect(checkBox != nullptr, [] { return u"a row has no box"_s; });
    // The box may be cut off, but nothing may lie over it.
    (void)eyes::isDrawn(box);
    const Qt::CheckState expected = ticked == 0 ? Qt::Unchecked
        : ticked == count                       ? Qt::Checked
                                                : Qt::PartiallyChecked;
    expect(checkBox->checkState() == expected, [&] {
        return u"the box of %1 is in state %2, but %3 of %4 are ticked"_s.arg(
            eyes::describe(box->parentWidget()), QString::number(checkBox->checkState()),
            QString::number(ticked), QString::number(count));
    });
}

} // namespace checks
