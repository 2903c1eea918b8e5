#include "hardening.h"

namespace platform {

void hardenProcess()
{
    // The loader takes libraries from the system's folders as it is.
}

} // namespace platform
