#include <cxxabi.h>

// Lets the thread_local objects of a thread be destroyed before their memory is freed.
//
// The compiler's run-time libraries keep both a thread's thread_local memory and the list of the
// destructors to call under a thread key, and a thread that ends goes through the keys in the order
// in which they were made. The memory's key is made at the first use of any thread_local variable,
// the destructors' at the first use of one that has a destructor: so the destructors would find
// freed memory. QRegularExpression has such a variable in each thread that matches. Its destructor
// then calls through a wild pointer; the system swallows the fault, and the thread ends without
// giving back the lock on the keys, for which exit() waits for ever.
//
// Asking for the destructors first makes their key the first one. This has to come before anything
// uses a thread_local variable, constructors of static objects included.
extern "C" [[gnu::constructor(101)]] void sweepwiseOrderThreadKeys()
{
    static int nothing = 0;
    abi::__cxa_thread_atexit([](void *) {}, &nothing, &nothing);
}
