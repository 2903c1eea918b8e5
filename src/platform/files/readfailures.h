#pragma once

#include <QList>
#include <QString>

namespace platform {

/// A file, folder or registry key that could not be read, and why.
struct ReadFailure {
    QString where;
    QString reason; ///< for people
};

/// What a scan, a clean or a single question could not read. A value; no two threads may change one
/// at once.
///
/// Very many places may fail for the same reason. Only the first of them are kept.
class ReadFailures final
{
public:
    static constexpr qsizetype maximumPlaces = 20; ///< kept for each reason

    /// All failures with the same reason.
    struct Group {
        QString reason;
        QStringList places; ///< the first of them, in the order in which they failed
        qint64 count = 0;
    };

    void add(const QString &where, const QString &reason);
    void add(const ReadFailure &failure) { add(failure.where, failure.reason); }
    void add(const Group &more);
    void add(const ReadFailures &other);
    void clear() { m_groups.clear(); }

    [[nodiscard]] bool isEmpty() const { return m_groups.isEmpty(); }
    /// The number of all failures.
    [[nodiscard]] qint64 count() const;
    /// In the order in which the reasons first occurred.
    [[nodiscard]] const QList<Group> &groups() const { return m_groups; }
    /// The failures whose places are kept, one group after the other.
    [[nodiscard]] QList<ReadFailure> kept() const;
    /// One line for each reason, for people: its first place, how many more there are, the reason.
    [[nodiscard]] QStringList lines() const;

private:
    Group &groupOf(const QString &reason);

    QList<Group> m_groups;
};

} // namespace platform
