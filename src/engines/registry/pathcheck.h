#pragma once

#include "registry.h"
#include "windowspaths.h"

#include <QHash>
#include <QLatin1StringView>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <utility>

/// Tells whether the file that a registry entry names is still there. An entry gets the benefit of
/// every doubt: what cannot be resolved or looked at counts as being there.
///
/// Takes the environment, and what the registry says of where programs are found, as they are when
/// it is made, and remembers what it has seen of folders: make one for a scan.
class PathCheck final
{
    Q_DISABLE_COPY_MOVE(PathCheck)
public:
    explicit PathCheck(const platform::Registry &registry);

    /// Whether the file or folder that @p text names exists. Placeholders are replaced; a text with
    /// one that is not known counts as existing. A name without a drive is looked for where the
    /// system would look, never in a current folder; that of a program may lack its ".exe".
    [[nodiscard]] bool exists(const QString &text);

    /// The program of a command line: what stands in leading quotes, else all before the first
    /// blank.
    [[nodiscard]] static QString programPath(const QString &command);
    /// What stands between a leading quote and the next one; everything when there are not two.
    [[nodiscard]] static QString quotedPart(const QString &text);

private:
    /// A placeholder and what it stands for; nothing when that cannot be told.
    using Placeholder = std::pair<QLatin1StringView, std::optional<QString>>;

    void readSearchPath(const platform::Registry &registry);
    /// Also for a program that is named without what its file ends in.
    [[nodiscard]] bool existsOnDrive(const QString &path);
    [[nodiscard]] bool existsAsAppPath(const QString &name);

    QList<Placeholder> m_placeholders;
    QStringList m_searchFolders; ///< with a separator behind
    QHash<QString, QString> m_appPaths; ///< the programs' paths, by name in one case
    platform::PathLookup m_lookup;
};
