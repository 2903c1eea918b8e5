#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace platform {

struct ProtectedPlace;

/// The places that no rule may take whole. They are looked up when the first question is asked,
/// which takes about a hundred system calls, and stay the same from then on. So one object serves
/// one scan, on its thread.
class ProtectedPlaces final
{
    Q_DISABLE_COPY_MOVE(ProtectedPlaces)
public:
    ProtectedPlaces();
    ~ProtectedPlaces();

    /// Whether a rule must never treat all files in @p path as clutter. @p path is absolute, from
    /// locate(). True for:
    /// - the root of a drive or of the file system;
    /// - a protected place, and a folder that contains one;
    /// - everything inside a place that is protected with its whole tree;
    /// - a folder that does not exist;
    /// - every folder if it could not be determined where the protected places are. Then
    ///   folderFailures() tells what could not be read.
    [[nodiscard]] bool isProtectedRoot(const QString &path);

    /// The same, but false for a folder inside a place that is protected with its whole tree. The
    /// owner may have put files there, such as a browser's profile below the program folder.
    [[nodiscard]] bool holdsProtectedPlace(const QString &path);

private:
    [[nodiscard]] bool isProtected(const QString &path, bool includesTreeContents);

    std::optional<QList<ProtectedPlace>> m_places; ///< empty until the first question
    bool m_isComplete = false;
};

} // namespace platform
