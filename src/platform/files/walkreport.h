#pragma once

#include <QList>
#include <QString>

namespace platform {

struct WalkFailure {
    QString path;
    QString reason;
};

/// A folder that was entered under another path than its own.
struct FollowedLink {
    QString path; ///< as the files below it are listed
    QString target; ///< the same folder, link-free
};

/// What could not be walked, and what was followed. A walk never gives up for one folder.
struct WalkReport {
    /// Keeps the report small where very many folders cannot be read.
    static constexpr int maximumFailures = 20;

    QList<WalkFailure> failures; ///< the first unreadable folders
    qint64 failureCount = 0; ///< all of them
    QList<FollowedLink> followed; ///< on Windows none: files are listed below the link's target

    void addFailure(const QString &path, const QString &reason)
    {
        if (++failureCount <= maximumFailures)
            failures.append({path, reason});
    }
};

} // namespace platform
