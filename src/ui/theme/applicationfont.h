#pragma once

namespace theme {

/// Sets the font of the application. Call once, before the first widget is made.
void installApplicationFont();

} // namespace theme
