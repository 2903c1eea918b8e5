#pragma once

#include "registry.h"

#include <QCoreApplication>

// What the two halves of registry.h share.
namespace platform {

/// What is said of the registry is translated under one name, whichever half says it.
struct RegistryTexts {
    Q_DECLARE_TR_FUNCTIONS(RegistryTexts)
};

/// What is said to who asks to change the merged classes.
[[nodiscard]] inline QString mergedClassesError()
{
    return RegistryTexts::tr("A class is changed in the user's or in the machine's hive");
}

/// The value's data as text, as Registry::text() gives it.
[[nodiscard]] QString registryText(const RegistryValue &value);

/// Whether the regular file at @p path begins as one that a registry is kept in: this prefix's,
/// another one's, or a hive of Windows itself.
[[nodiscard]] bool beginsAsRegistryFile(const QString &path);

} // namespace platform
