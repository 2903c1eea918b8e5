#pragma once

#include <QList>
#include <QString>

namespace platform {

/// A folder that could not be read.
struct WalkFailure {
    QString path;
    QString reason;
};

/// A folder that was entered by another path than its own.
struct FollowedLink {
    QString path; ///< as in the paths of its files
    QString target; ///< the folder's own path, without links
};

/// What a walk could not read, and the links that it followed. A folder that fails does not end the
/// walk. A value.
struct WalkReport {
    /// Limits the size of the report when very many folders cannot be read.
    static constexpr int maximumFailures = 20;

    QList<WalkFailure> failures; ///< the first folders that could not be read
    qint64 failureCount = 0; ///< the number of all folders that could not be read
    /// empty on Windows, where files are listed below the link's target
    QList<FollowedLink> followed;

    void addFailure(const QString &path, const QString &reason)
    {
        if (++failureCount <= maximumFailures)
            failures.append({path, reason});
    }
};

} // namespace platform
