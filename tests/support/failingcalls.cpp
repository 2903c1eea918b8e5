// A library that a test puts before the system's own (LD_PRELOAD), to make system calls of a
// program fail or take long.
//
// FAILING_CALL has the form "name:errno:part of the path:skip:count". With the errno 0 the call is
// delayed by a millisecond instead and then made. With -1 it never returns, with -2 it is delayed
// by a quarter of a second. The first "skip" matching calls are made as usual, the next "count"
// fail, the others are made as usual. An empty count means all. The first call that fails makes the
// empty file that FAILING_CALL_FILE names, so that the test need not guess how far the program is.
//
// With the errno -3 every call is made as usual. The number of the matching calls is written to
// FAILING_CALL_FILE when the program ends.
//
// With OLD_SYSTEM the calls of new systems do not exist, and none tells where something is mounted.

#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>

#include <dirent.h>
#include <dlfcn.h>
#include <linux/limits.h>
#include <pthread.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

constexpr int countOnly = -3;

/// The fields of FAILING_CALL, read once.
struct Fault {
    char name[32] = {};
    int error = 0;
    char path[256] = {};
    long skip = 0;
    long count = -1;
    std::atomic_long matched = 0;

    Fault()
    {
        const char *text = std::getenv("FAILING_CALL");
        if (!text)
            return;
        char field[5][256] = {};
        for (int i = 0; i < 5 && text; ++i) {
            const char *end = std::strchr(text, ':');
            const std::size_t length =
                end ? static_cast<std::size_t>(end - text) : std::strlen(text);
            std::memcpy(field[i], text, length < 255 ? length : 255);
            text = end ? end + 1 : nullptr;
        }
        std::memcpy(name, field[0], sizeof name - 1);
        error = std::atoi(field[1]);
        std::memcpy(path, field[2], sizeof path - 1);
        skip = std::atol(field[3]);
        count = field[4][0] ? std::atol(field[4]) : -1;
    }
};

Fault &fault()
{
    static Fault *const single = new Fault;
    return *single;
}

void reportFirst()
{
    const char *path = std::getenv("FAILING_CALL_FILE");
    if (path)
        (void)::mknod(path, S_IFREG | S_IRUSR | S_IWUSR, 0);
}

__attribute__((destructor)) void writeCount()
{
    const char *path = std::getenv("FAILING_CALL_FILE");
    if (!path || fault().error != countOnly)
        return;
    if (std::FILE *file = std::fopen(path, "w")) {
        std::fprintf(file, "%ld", fault().matched.load());
        std::fclose(file);
    }
}

bool fails(const char *name, const char *path)
{
    Fault &wanted = fault();
    if (std::strcmp(wanted.name, name) != 0 || !std::strstr(path ? path : "", wanted.path))
        return false;
    const long number = wanted.matched++;
    if (wanted.error == countOnly)
        return false;
    if (number < wanted.skip || (wanted.count >= 0 && number >= wanted.skip + wanted.count))
        return false;
    if (number == wanted.skip)
        reportFirst();
    if (wanted.error == 0) {
        ::usleep(1000);
        return false;
    }
    if (wanted.error == -2) {
        const timespec quarter{0, 250'000'000};
        ::nanosleep(&quarter, nullptr);
        return false;
    }
    while (wanted.error < 0)
        ::pause();
    errno = wanted.error;
    return true;
}

template<typename Function>
Function *real(const char *name)
{
    return reinterpret_cast<Function *>(::dlsym(RTLD_NEXT, name));
}

/// The path of an open file; empty if it is not known.
struct OpenPath {
    char text[PATH_MAX + 1] = {};

    explicit OpenPath(int file)
    {
        char link[64] = {};
        std::snprintf(link, sizeof link, "/proc/self/fd/%d", file);
        if (::readlink(link, text, PATH_MAX) < 0)
            text[0] = '\0';
    }
};

} // namespace

extern "C" {

int statx(int folder, const char *path, int flags, unsigned mask, struct statx *status)
{
    if (fails("statx", path))
        return -1;
    const int result = real<decltype(::statx)>("statx")(folder, path, flags, mask, status);
    if (result == 0 && std::getenv("OLD_SYSTEM")) {
        status->stx_mask &= ~static_cast<unsigned>(STATX_MNT_ID);
        status->stx_mnt_id = 0;
        status->stx_attributes &= ~static_cast<unsigned long long>(STATX_ATTR_MOUNT_ROOT);
    }
    return result;
}

int stat(const char *path, struct stat *status)
{
    return fails("stat", path) ? -1 : real<int(const char *, struct stat *)>("stat")(path, status);
}

char *realpath(const char *path, char *target)
{
    return fails("realpath", path) ? nullptr
                                   : real<char *(const char *, char *)>("realpath")(path, target);
}

int fstatat(int folder, const char *path, struct stat *status, int flags)
{
    return fails("fstatat", path)
        ? -1
        : real<decltype(::fstatat)>("fstatat")(folder, path, status, flags);
}

ssize_t getdents64(int folder, void *buffer, size_t length)
{
    return fails("getdents64", OpenPath(folder).text)
        ? -1
        : real<ssize_t(int, void *, size_t)>("getdents64")(folder, buffer, length);
}

ssize_t getxattr(const char *path, const char *name, void *value, size_t size)
{
    return fails("getxattr", path)
        ? -1
        : real<decltype(::getxattr)>("getxattr")(path, name, value, size);
}

// The calls for which the C library has no function. The numbers are those of all processors.
long syscall(long number, ...)
{
    constexpr long openat2 = 437;
    constexpr long getxattrat = 464;
    long arguments[6];
    std::va_list list;
    va_start(list, number);
    for (long &argument : arguments)
        argument = va_arg(list, long);
    va_end(list);
    if ((number == openat2 || number == getxattrat) && std::getenv("OLD_SYSTEM")) {
        errno = ENOSYS;
        return -1;
    }
    if (number == getxattrat && fails("getxattr", reinterpret_cast<const char *>(arguments[1])))
        return -1;
    return real<long(long, ...)>("syscall")(number, arguments[0], arguments[1], arguments[2],
                                            arguments[3], arguments[4], arguments[5]);
}

int fsync(int file)
{
    return fails("fsync", OpenPath(file).text) ? -1 : real<decltype(::fsync)>("fsync")(file);
}

int unlinkat(int folder, const char *path, int flags)
{
    return fails("unlinkat", path) ? -1
                                   : real<decltype(::unlinkat)>("unlinkat")(folder, path, flags);
}

// The caller gives a mode only when the file may be made; otherwise the value is not used.
int open(const char *path, int flags, mode_t mode)
{
    return fails("open", path) ? -1 : real<int(const char *, int, ...)>("open")(path, flags, mode);
}

int open64(const char *path, int flags, mode_t mode)
{
    return fails("open", path) ? -1 : real<int(const char *, int, ...)>("open")(path, flags, mode);
}

int pthread_create(pthread_t *thread, const pthread_attr_t *attributes, void *(*start)(void *),
                   void *argument)
{
    return fails("pthread_create", "")
        ? errno
        : real<decltype(::pthread_create)>("pthread_create")(thread, attributes, start, argument);
}
}
