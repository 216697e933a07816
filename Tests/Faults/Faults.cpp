#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <unistd.h>

/// Lets calls of the system that save files fail.
///
/// QX_FAULT says which, as "CALL NUMBER ERROR": CALL is the kind of calls that counts, or "any";
/// the one of that number, counted from 1, fails with the error number ERROR, or kills the process
/// when that is 0. Then QX_FAULT says "none", and everything works. While it is set, nothing waits
/// for the disk, and files take few bytes at once.
namespace {

const size_t mostAtOnce = 24;

template <class Function>
Function *real(const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

bool isRegular(int descriptor)
{
    struct stat status;
    return fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

/// Whether this call is to fail; the reason is in errno then.
bool fails(const char *call)
{
    static int count = 0;
    char chosen[16];
    int number = 0;
    int error = 0;
    const char *const fault = getenv("QX_FAULT");
    if (!fault || sscanf(fault, "%15s %d %d", chosen, &number, &error) != 3)
        return false;
    if ((strcmp(chosen, "any") != 0 && strcmp(chosen, call) != 0) || ++count != number)
        return false;
    if (error == 0)
        raise(SIGKILL);
    setenv("QX_FAULT", "none", 1);
    errno = error;
    return true;
}

} // namespace

extern "C" {

ssize_t write(int descriptor, const void *bytes, size_t size)
{
    const auto call = real<ssize_t(int, const void *, size_t)>("write");
    if (!getenv("QX_FAULT") || !isRegular(descriptor))
        return call(descriptor, bytes, size);
    return fails("write") ? -1 : call(descriptor, bytes, std::min(size, mostAtOnce));
}

int fsync(int descriptor)
{
    if (!getenv("QX_FAULT"))
        return real<int(int)>("fsync")(descriptor);
    return fails(isRegular(descriptor) ? "sync" : "folder") ? -1 : 0;
}

int rename(const char *from, const char *to) noexcept
{
    return fails("rename") ? -1 : real<int(const char *, const char *)>("rename")(from, to);
}

int unlink(const char *name) noexcept
{
    return fails("unlink") ? -1 : real<int(const char *)>("unlink")(name);
}

int ftruncate(int descriptor, off_t size) noexcept
{
    return fails("truncate") ? -1 : real<int(int, off_t)>("ftruncate")(descriptor, size);
}
}
