#pragma once

#include <QString>

class QTranslator;

namespace language {

/// The language code to start with: @p stored as it is unless it is empty, else the one that fits
/// the system locale @p systemLocale (such as "pt_BR"), else "en". Tells the debug output how it
/// was found.
[[nodiscard]] QString choose(const QString &stored, const QString &systemLocale);

/// Reads the language store, loads the catalogue of the chosen language into @p translator and
/// installs it. A catalogue that does not exist leaves the source texts. Tells the debug output
/// every step.
void install(QTranslator &translator);

} // namespace language
