#pragma once

#include "registry.h"
#include "scanresult.h"

#include <QDateTime>
#include <QLatin1StringView>
#include <QString>

/// Makes, writes and reads the file from which removed registry entries can be restored. The file
/// is a registry export of format 5.00 with the chosen keys and values. A key is exported with its
/// own values but without its subkeys.
///
/// A registry editor merges the file with full rights, so no entry may add a line of its own.
/// Control characters in comments are replaced. A key or value with a line break in its name is not
/// exported; a warning line replaces it.
class RegistryBackup final
{
public:
    /// The file's text for what is checked in @p result, with CR LF line ends. An entry that cannot
    /// be read becomes a warning line. @p created is written in local time.
    [[nodiscard]] static QString text(const ScanResult &result, const platform::Registry &registry,
                                      const QDateTime &created);

    /// Why a backup cannot be written to @p path, for people. Empty when the path is free or has a
    /// file that may be replaced. A link at the path itself is not followed; links on the way to
    /// its folder are. A relative path starts at the current folder.
    [[nodiscard]] static QString targetProblem(const QString &path);

    /// Writes @p text to @p path as UTF-16 little-endian with a byte-order mark. Without the mark
    /// the registry editor imports nothing. Returns when data and name are on the disk. After a
    /// failure @p error says why, and an older file at the path is unchanged.
    [[nodiscard]] static bool write(const QString &path, const QString &text, QString &error);

    /// The comment before the key of a class from the user's hive. The key line names the merged
    /// classes, and a registry editor knows only one place for them. No other comment begins like
    /// this.
    static constexpr QLatin1StringView userClassMark{
        ";Stored in HKEY_CURRENT_USER\\Software\\Classes"};

    /// The line of a value; several lines when a list of bytes is wrapped.
    [[nodiscard]] static QString valueLine(const platform::RegistryValue &value);

    /// The text in @p data, which is a file that write() has written. The byte-order mark may be
    /// missing. Line ends that a text mode of Windows has changed are restored. Nothing for an odd
    /// number of bytes.
    [[nodiscard]] static std::optional<QString> decode(const QByteArray &data);
};
