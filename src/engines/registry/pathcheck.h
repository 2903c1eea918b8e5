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

/// Tells whether the file that a registry entry names still exists. A path that cannot be resolved
/// or read counts as existing.
///
/// The constructor reads the environment, the search path and the App Paths. The object also
/// remembers the folders that it has looked at. So make a new one for each scan and use it on one
/// thread.
class PathCheck final
{
    Q_DISABLE_COPY_MOVE(PathCheck)
public:
    explicit PathCheck(const platform::Registry &registry);

    /// Whether the file or folder that @p text names exists. Placeholders are replaced; a text with
    /// an unknown placeholder counts as existing. A name without a drive is looked up where the
    /// system looks, never in the current folder. The name of a program may lack its ".exe".
    [[nodiscard]] bool exists(const QString &text);
    /// The paths that could not be looked at. They count as existing.
    [[nodiscard]] const platform::ReadFailures &readFailures() const
    {
        return m_lookup.readFailures();
    }

    /// The program of a command line: the text in leading quotes, otherwise the text before the
    /// first blank.
    [[nodiscard]] static QString programPath(const QString &command);
    /// The text between a leading quote and the next one. The whole text when there are not two.
    [[nodiscard]] static QString quotedPart(const QString &text);

private:
    /// A placeholder and its value; no value when it is unknown.
    using Placeholder = std::pair<QLatin1StringView, std::optional<QString>>;

    void readSearchPath(const platform::Registry &registry);
    /// Also finds a program whose suffix is missing in @p path.
    [[nodiscard]] bool existsOnDrive(const QString &path);
    [[nodiscard]] bool existsAsAppPath(const QString &name);

    QList<Placeholder> m_placeholders;
    QStringList m_searchFolders; ///< each ends in a separator
    QHash<QString, QString> m_appPaths; ///< the programs' paths, by case-folded name
    platform::PathLookup m_lookup;
};
