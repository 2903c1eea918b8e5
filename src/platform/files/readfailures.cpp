#include "readfailures.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace platform {

ReadFailures::Group &ReadFailures::groupOf(const QString &reason)
{
    const auto found =
        std::find_if(m_groups.begin(), m_groups.end(),
                     [&reason](const Group &group) { return group.reason == reason; });
    if (found != m_groups.end())
        return *found;
    m_groups.append({reason, {}, 0});
    return m_groups.last();
}

void ReadFailures::add(const QString &where, const QString &reason)
{
    Group &group = groupOf(reason);
    // Several rules may meet the same folder.
    if (group.places.contains(where))
        return;
    ++group.count;
    if (group.places.size() < maximumPlaces)
        group.places.append(where);
}

void ReadFailures::add(const Group &more)
{
    Group &own = groupOf(more.reason);
    // A run may meet the same places again. Then they count once.
    const bool isSame = own.places == more.places;
    if (isSame)
        own.count = qMax(own.count, more.count);
    for (const QString &place : more.places)
        add(place, more.reason);
    if (!isSame)
        groupOf(more.reason).count += more.count - more.places.size();
}

void ReadFailures::add(const ReadFailures &other)
{
    for (const Group &more : other.m_groups)
        add(more);
}

qint64 ReadFailures::count() const
{
    qint64 sum = 0;
    for (const Group &group : m_groups)
        sum += group.count;
    return sum;
}

QList<ReadFailure> ReadFailures::kept() const
{
    QList<ReadFailure> failures;
    for (const Group &group : m_groups) {
        for (const QString &place : group.places)
            failures.append({place, group.reason});
    }
    return failures;
}

QStringList ReadFailures::lines() const
{
    QStringList lines;
    for (const Group &group : m_groups) {
        const QString more = group.count > 1 ? u" and %1 more"_s.arg(group.count - 1) : QString();
        lines.append(u"Cannot read %1%2: %3"_s.arg(group.places.constFirst(), more, group.reason));
    }
    return lines;
}

} // namespace platform
