#pragma once

#include "registry.h"

// What the two halves of registry.h share.
namespace platform {

/// The value's data as text, as Registry::text() gives it.
[[nodiscard]] QString registryText(const RegistryValue &value);

} // namespace platform
