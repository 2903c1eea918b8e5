#pragma once

#include "registry.h"
#include "scanresult.h"

#include <QDateTime>
#include <QLatin1StringView>
#include <QString>

/// The file from which removed registry entries can be restored: a registry export, format 5.00, of
/// the chosen keys and values. The keys' own values are in it, not the keys below them.
///
/// Two things in entries could make lines of their own in a file that is merged with full rights:
/// control characters in comments are replaced, and a key or value whose name holds a line break is
/// not exported but warned about.
class RegistryBackup final
{
public:
    /// The text of the file for what is checked in @p result, with CR LF line ends. What cannot be
    /// read becomes a warning line. @p created is written in local time.
    [[nodiscard]] static QString text(const ScanResult &result, const platform::Registry &registry,
                                      const QDateTime &created);

    /// Why @p path cannot name a backup, for people; empty when nothing is there or a file that may
    /// be replaced. What stands there is looked at and not followed, while links on the way to its
    /// folder are. A relative path is below the current folder.
    [[nodiscard]] static QString targetProblem(const QString &path);

    /// Writes @p text to @p path as UTF-16 little-endian with a byte-order mark, without which the
    /// registry editor imports nothing, and returns when it is on the disk, name and all. If that
    /// fails, @p error says why and a file that was there before is still what it was.
    [[nodiscard]] static bool write(const QString &path, const QString &text, QString &error);

    /// The comment before the key of a class that is the user's and not the machine's: a registry
    /// editor knows but one place for both. No other comment begins so.
    static constexpr QLatin1StringView userClassMark{
        ";Stored in HKEY_CURRENT_USER\\Software\\Classes"};

    /// The value's line, or lines where a list of bytes is wrapped.
    [[nodiscard]] static QString valueLine(const platform::RegistryValue &value);

    /// What @p data of a file written by write() says: with or without the mark, and with the
    /// line ends that a text mode of Windows made of them undone. Nothing for an odd number of
    /// bytes.
    [[nodiscard]] static std::optional<QString> decode(const QByteArray &data);
};
