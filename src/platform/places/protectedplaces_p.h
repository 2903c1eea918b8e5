#pragma once

#include <QList>
#include <QString>

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

/// The protected places of this system alone.
[[nodiscard]] QList<ProtectedPlace> systemPlaces();

} // namespace platform
