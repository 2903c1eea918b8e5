#pragma once

#include <QList>
#include <QString>

// What the two halves of protectedplaces.h share.
namespace platform {

struct ProtectedPlace {
    /// What of it is kept.
    enum class Extent {
        Itself, ///< it must not be taken whole; what lies in it may be clutter
        Children, ///< the same for each folder right below it
        Grandchildren, ///< and for those right below these
        Tree, ///< everything in it
    };

    QString path; ///< may be empty or missing
    Extent extent = Extent::Itself;
};

/// Places that only one of the systems has.
[[nodiscard]] QList<ProtectedPlace> systemPlaces();

} // namespace platform
