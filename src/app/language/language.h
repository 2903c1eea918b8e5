#pragma once

#include <QString>

class QTranslator;

namespace language {

/// The language code to start with: @p stored unless it is empty, otherwise the code for
/// @p systemLocale (such as "pt_BR"), otherwise "en". Writes the reason to the debug output.
[[nodiscard]] QString choose(const QString &stored, const QString &systemLocale);

/// Reads the stored language, loads the catalogue of the chosen language into @p translator and
/// installs it. Without a catalogue the source texts are shown. Writes every step to the debug
/// output.
void install(QTranslator &translator);

} // namespace language
