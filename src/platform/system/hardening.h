#pragma once

namespace platform {

/// Makes the system look for libraries that are loaded later in its own folder alone, so that one
/// planted beside the program or in the current folder is never loaded. The first thing in main().
void hardenProcess();

} // namespace platform
