#pragma once

namespace platform {

/// Restricts the search for libraries that are loaded later to the system's own folder. A library
/// that was planted beside the program or in the current folder is then never loaded. To be called
/// first in main(). On Linux, a file that reaches the limit of the process for files becomes an
/// error, instead of the end of the process, and no file that is opened later takes the place of a
/// closed standard stream.
void hardenProcess();

} // namespace platform
