#pragma once

#include "registry.h"

#include <QCoreApplication>

// What the Unix and the Windows part of registry.h share.
namespace platform {

/// The translation context of all texts about the registry, on both systems.
struct RegistryTexts {
    Q_DECLARE_TR_FUNCTIONS(RegistryTexts)
};

/// The error text for a change of the merged classes.
[[nodiscard]] inline QString mergedClassesError()
{
    return RegistryTexts::tr("A class is changed in the user's or in the machine's hive");
}

/// The value's data as text, see Registry::text().
[[nodiscard]] QString registryText(const RegistryValue &value);

/// Whether the regular file at @p path begins like a registry file: of this prefix, of another
/// prefix, or a hive of Windows itself.
[[nodiscard]] bool beginsAsRegistryFile(const QString &path);

} // namespace platform
