#pragma once

namespace platform {

/// Restricts the search for libraries that are loaded later to the system's own folder. A library
/// that was planted beside the program or in the current folder is then never loaded. To be called
/// first in main().
void hardenProcess();

} // namespace platform
