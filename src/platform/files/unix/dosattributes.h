#pragma once

#include <QString>
#include <QStringList>

// The DOS attributes of files, which Wine stores in an extended attribute.
namespace platform {

/// Tells where files can have DOS attributes: below the prefix, below its drives and in its
/// temporary folder. The drive that is the whole system is left out. While it cannot be determined
/// where the prefix and its drives are, that is everywhere. One object a run; any thread.
class DosAttributes final
{
public:
    DosAttributes();

    /// Whether entries of the folder at a link-free path can have DOS attributes.
    [[nodiscard]] bool canApplyIn(const QString &folder) const;
    struct Answer {
        bool isHidden = false;
        int error = 0; ///< the errno when it cannot be determined
    };
    /// Whether Windows programs see the entry @p name of an open folder as hidden or as a system
    /// entry. For a link its target decides, as it does there.
    [[nodiscard]] static Answer isHidden(int folder, const char *name);

private:
    QStringList m_roots; ///< without links
    bool m_isCertain = false; ///< nothing failed when the roots were looked up
};

} // namespace platform
