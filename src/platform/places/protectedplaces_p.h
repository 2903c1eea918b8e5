#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// What the Unix and the Windows part of protectedplaces.h share.
namespace platform {

/// A folder that no rule may take whole. A value.
struct ProtectedPlace {
    /// Which part of the place is protected.
    enum class Extent {
        Itself, ///< the folder must not be removed whole; its contents may be clutter
        Children, ///< the same holds for each folder directly in it
        Grandchildren, ///< the same holds for the next level below, too
        Tree, ///< everything in it is protected
    };

    QString path; ///< may be empty or missing
    Extent extent = Extent::Itself;
};

/// The protected places of this system alone. What cannot be read for it is noted.
[[nodiscard]] QList<ProtectedPlace> systemPlaces();

/// The names of the folders in @p parent, which holds the profiles of the users. Empty when there
/// is no such folder, and when this user may not list it. Other failures are noted.
[[nodiscard]] QStringList profileNames(const QString &parent);

/// Whether this user may not list the folder at an absolute path, so that the spelling of the names
/// in it cannot be known.
[[nodiscard]] bool isClosed(const QString &folder);

/// The canonicalPath() of @p path. Behind a folder that this user may not enter, the names are kept
/// as they are spelled: no walk gets there either. Empty when @p path is not absolute or does not
/// exist. It is also empty when the system cannot tell where it leads, which is noted.
[[nodiscard]] QString reachablePath(const QString &path);

} // namespace platform
