#pragma once

#include <QJsonValue>
#include <QStringList>

/// What the rules of every rule file have in common.
namespace rulefile {

/// A name or description of a rule in the language of the interface: what the catalogue has for it
/// under @p context, else as it stands.
[[nodiscard]] QString text(const char *context, const QJsonValue &value);

/// The array's elements as text; one that is no string becomes an empty one and is kept.
[[nodiscard]] QStringList stringList(const QJsonValue &value);

/// Whether file-name wildcards leave out hardly any name; no wildcards leave out none.
[[nodiscard]] bool takesNearlyAll(const QStringList &patterns);

} // namespace rulefile
