// A library that a test puts before the system's own (LD_PRELOAD), to make system calls of a
// program fail or take long.
//
// FAILING_CALL has the form "name:errno:part of the path:skip:count". With the errno 0 the call is
// delayed by a millisecond instead and then made. With -1 it never returns, with -2 it is delayed
// by a quarter of a second. With -4 the process kills itself before the call. With -5 a reading or
// writing handles only a part of its bytes, and other calls are made as usual. The first "skip"
// matching calls are made as usual, the next "count" fail, the others are made as usual. An empty
// count means all. The first call that fails makes the empty file that FAILING_CALL_FILE names, so
// that the test need not guess how far the program is.
//
// The name "any" stands for every call in this file, "changing" for those that change something on
// the disk. Their path is the whole one, also where the call has a folder and a name.
//
// With the errno -3 every call is made as usual. The number of the matching calls is written to
// FAILING_CALL_FILE when the program ends.
//
// With OLD_SYSTEM the calls of new systems do not exist, and none tells where something is mounted.

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>

#include <dirent.h>
#include <dlfcn.h>

#include <linux/fcntl.h> // fcntl.h would declare open() with a variable number of arguments
#include <linux/limits.h>
#include <pthread.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

constexpr int countOnly = -3;
constexpr int killed = -4;
constexpr int partly = -5;

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

/// Whether the matching call with this number has to fail. Tells of the first.
bool isDue(long number)
{
    const Fault &wanted = fault();
    if (number < wanted.skip || (wanted.count >= 0 && number >= wanted.skip + wanted.count))
        return false;
    if (number == wanted.skip)
        reportFirst();
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
        if (real<ssize_t(const char *, char *, size_t)>("readlink")(link, text, PATH_MAX) < 0)
            text[0] = '\0';
    }
};

/// Whether the call changes something on the disk.
enum class Effect { Looks, Changes };

bool isWanted(const char *name, Effect effect, const char *path, int folder)
{
    const Fault &wanted = fault();
    const bool isAny = std::strcmp(wanted.name, "any") == 0
        || (effect == Effect::Changes && std::strcmp(wanted.name, "changing") == 0);
    if (!isAny)
        return std::strcmp(wanted.name, name) == 0 && std::strstr(path, wanted.path);
    return std::strstr(path, wanted.path)
        || (path[0] != '/' && std::strstr(OpenPath(folder).text, wanted.path));
}

/// Whether the call has to fail. @p path is relative to the open folder @p folder.
bool fails(const char *name, const char *path, Effect effect = Effect::Looks, int folder = AT_FDCWD)
{
    Fault &wanted = fault();
    if (!isWanted(name, effect, path ? path : "", folder))
        return false;
    const long number = wanted.matched++;
    if (wanted.error == countOnly || wanted.error == partly)
        return false;
    if (!isDue(number))
        return false;
    if (wanted.error == killed)
        ::kill(::getpid(), SIGKILL);
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

/// The same for a call on an open file.
bool failsOn(const char *name, int file, Effect effect = Effect::Looks)
{
    return fault().name[0] != '\0' && fails(name, OpenPath(file).text, effect);
}

/// How many of @p size bytes a reading or writing handles. Call it after failsOn().
size_t handled(const char *name, int file, Effect effect, size_t size)
{
    Fault &wanted = fault();
    if (wanted.error != partly || size < 2 || !isWanted(name, effect, OpenPath(file).text, AT_FDCWD)
        || !isDue(wanted.matched - 1))
        return size;
    return size / 2;
}

Effect effectOf(int openFlags)
{
    return (openFlags & O_ACCMODE) == O_RDONLY ? Effect::Looks : Effect::Changes;
}

} // namespace

extern "C" {

int statx(int folder, const char *path, int flags, unsigned mask, struct statx *status)
{
    if (fails("statx", path, Effect::Looks, folder))
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
    return fails("fstatat", path, Effect::Looks, folder)
        ? -1
        : real<decltype(::fstatat)>("fstatat")(folder, path, status, flags);
}

ssize_t getdents64(int folder, void *buffer, size_t length)
{
    return failsOn("getdents64", folder)
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
    const auto *path = reinterpret_cast<const char *>(arguments[1]);
    const int folder = static_cast<int>(arguments[0]);
    if (number == getxattrat && fails("getxattr", path, Effect::Looks, folder))
        return -1;
    if (number == openat2 && fails("openat2", path, Effect::Looks, folder))
        return -1;
    return real<long(long, ...)>("syscall")(number, arguments[0], arguments[1], arguments[2],
                                            arguments[3], arguments[4], arguments[5]);
}

int fsync(int file)
{
    return failsOn("fsync", file, Effect::Changes) ? -1 : real<decltype(::fsync)>("fsync")(file);
}

int unlinkat(int folder, const char *path, int flags)
{
    return fails("unlinkat", path, Effect::Changes, folder)
        ? -1
        : real<decltype(::unlinkat)>("unlinkat")(folder, path, flags);
}

// The caller gives a mode only when the file may be made; otherwise the value is not used.
int open(const char *path, int flags, mode_t mode)
{
    return fails("open", path, effectOf(flags))
        ? -1
        : real<int(const char *, int, ...)>("open")(path, flags, mode);
}

int open64(const char *path, int flags, mode_t mode)
{
    return open(path, flags, mode);
}

// These are what a hardened build calls when no file may be made.
int __open_2(const char *path, int flags)
{
    return open(path, flags, 0);
}

int __open64_2(const char *path, int flags)
{
    return open(path, flags, 0);
}

int openat(int folder, const char *path, int flags, mode_t mode)
{
    return fails("openat", path, effectOf(flags), folder)
        ? -1
        : real<int(int, const char *, int, ...)>("openat")(folder, path, flags, mode);
}

int openat64(int folder, const char *path, int flags, mode_t mode)
{
    return openat(folder, path, flags, mode);
}

int __openat_2(int folder, const char *path, int flags)
{
    return openat(folder, path, flags, 0);
}

ssize_t read(int file, void *buffer, size_t size)
{
    if (failsOn("read", file))
        return -1;
    return real<ssize_t(int, void *, size_t)>("read")(file, buffer,
                                                      handled("read", file, Effect::Looks, size));
}

ssize_t write(int file, const void *data, size_t size)
{
    if (failsOn("write", file, Effect::Changes))
        return -1;
    return real<ssize_t(int, const void *, size_t)>("write")(
        file, data, handled("write", file, Effect::Changes, size));
}

int fdatasync(int file)
{
    return failsOn("fdatasync", file, Effect::Changes)
        ? -1
        : real<decltype(::fdatasync)>("fdatasync")(file);
}

int ftruncate64(int file, off64_t size)
{
    return failsOn("ftruncate", file, Effect::Changes)
        ? -1
        : real<int(int, off64_t)>("ftruncate64")(file, size);
}

int fchmod(int file, mode_t mode)
{
    return failsOn("fchmod", file, Effect::Changes)
        ? -1
        : real<decltype(::fchmod)>("fchmod")(file, mode);
}

int fstat(int file, struct stat *status)
{
    return failsOn("fstat", file) ? -1 : real<int(int, struct stat *)>("fstat")(file, status);
}

int lstat(const char *path, struct stat *status)
{
    return fails("lstat", path) ? -1
                                : real<int(const char *, struct stat *)>("lstat")(path, status);
}

int fstatfs(int file, struct statfs *status)
{
    return failsOn("fstatfs", file) ? -1 : real<int(int, struct statfs *)>("fstatfs")(file, status);
}

int faccessat(int folder, const char *path, int mode, int flags)
{
    return fails("faccessat", path, Effect::Looks, folder)
        ? -1
        : real<decltype(::faccessat)>("faccessat")(folder, path, mode, flags);
}

int rename(const char *from, const char *to)
{
    return fails("rename", from, Effect::Changes)
        ? -1
        : real<int(const char *, const char *)>("rename")(from, to);
}

int renameat2(int fromFolder, const char *from, int toFolder, const char *to, unsigned flags)
{
    return fails("rename", from, Effect::Changes, fromFolder)
        ? -1
        : real<int(int, const char *, int, const char *, unsigned)>("renameat2")(
            fromFolder, from, toFolder, to, flags);
}

int link(const char *from, const char *to)
{
    return fails("link", to, Effect::Changes)
        ? -1
        : real<int(const char *, const char *)>("link")(from, to);
}

int linkat(int fromFolder, const char *from, int toFolder, const char *to, int flags)
{
    return fails("link", to, Effect::Changes, toFolder)
        ? -1
        : real<decltype(::linkat)>("linkat")(fromFolder, from, toFolder, to, flags);
}

int unlink(const char *path)
{
    return fails("unlink", path, Effect::Changes) ? -1 : real<int(const char *)>("unlink")(path);
}

int rmdir(const char *path)
{
    return fails("rmdir", path, Effect::Changes) ? -1 : real<int(const char *)>("rmdir")(path);
}

int mkdir(const char *path, mode_t mode)
{
    return fails("mkdir", path, Effect::Changes)
        ? -1
        : real<int(const char *, mode_t)>("mkdir")(path, mode);
}

ssize_t readlink(const char *path, char *target, size_t size)
{
    return fails("readlink", path)
        ? -1
        : real<ssize_t(const char *, char *, size_t)>("readlink")(path, target, size);
}

int pthread_create(pthread_t *thread, const pthread_attr_t *attributes, void *(*start)(void *),
                   void *argument)
{
    return fails("pthread_create", "")
        ? errno
        : real<decltype(::pthread_create)>("pthread_create")(thread, attributes, start, argument);
}
}
