#include <cxxabi.h>

// Makes sure that the thread_local objects of a thread are destroyed before their memory is freed.
//
// The compiler's run-time library uses one thread key for a thread's thread_local memory and one
// for the list of destructors. When a thread ends, its keys are handled in the order of their
// creation. The first use of any thread_local variable creates the key of the memory. The first use
// of one with a destructor creates the key of the destructors. So the destructors would find freed
// memory.
//
// This program shows it. It prints another number than 4 without this file:
//
//   struct Value { long long number[4] = {1, 2, 3, 4};
//                  ~Value() { std::printf("%llx\n", number[3]); } };
//   thread_local Value value;
//   int main() { std::thread([] { value.number[0] = 2; }).join(); }
//
// QRegularExpression has such a variable in each thread that matches. Its destructor then calls
// through a wild pointer, and the system hides the fault. The thread ends without releasing the
// lock on the keys, and exit() waits for that lock for ever.
//
// This function registers a destructor first, so that the key of the destructors is the first one.
// It must run before any use of a thread_local variable, constructors of static objects included.
//
// A program with windows gets another __cxa_thread_atexit, from the library that calls its main().
// That one has no such fault. But it ends the program if the third argument is not the one that the
// compiler itself passes.
extern "C" void *__dso_handle;

extern "C" [[gnu::constructor(101)]] void sweepwiseOrderThreadKeys()
{
    abi::__cxa_thread_atexit([](void *) {}, nullptr, &__dso_handle);
}
