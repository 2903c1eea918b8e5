#include "hardening.h"

namespace platform {

void hardenProcess()
{
    // On Linux the loader searches only the system's folders already.
}

} // namespace platform
