#pragma once

#include <QString>
#include <QStringList>

// The attributes that Wine keeps of files beside what this file system knows of them.
namespace platform {

/// Tells where files may bear such attributes: below the prefix, what it calls its drives, and its
/// temporary folder. One object a run; any thread.
class DosAttributes final
{
public:
    DosAttributes();

    /// Whether what lies in the folder at a link-free path has to be asked.
    [[nodiscard]] bool canApplyIn(const QString &folder) const;
    /// Whether Windows programs see the entry @p name of an open folder as hidden or as the
    /// system's. Of a link what it leads to counts, as it does there.
    [[nodiscard]] static bool isHidden(int folder, const char *name);

private:
    QStringList m_roots; ///< with a slash at the end
};

} // namespace platform
