// Loaded before everything else (LD_PRELOAD), kills the process at one of its writes: just before
// the call that would change the disk.
#include <atomic>
#include <csignal>
#include <cstdio>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

namespace {

std::atomic<int> left{0}; // writes until the end; 0: not armed

void Count() {
    if (left.load() > 0 && --left == 0) {
        kill(getpid(), SIGKILL);
    }
}

// The pipe by which the process answers and the wake-ups of its event loop are no disk.
bool IsFile(int descriptor) {
    struct stat status = {};
    return fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

// What the system does for `name`.
template <class Result, class... Values> Result Do(const char* name, Values... values) {
    return reinterpret_cast<Result (*)(Values...)>(dlsym(RTLD_NEXT, name))(values...);
}

template <class Result, class... Values> Result Counted(const char* name, Values... values) {
    Count();
    return Do<Result>(name, values...);
}

} // namespace

extern "C" {

// How many of the writes armed before have not happened.
int ArmKiller(int writes) {
    return left.exchange(writes);
}

ssize_t write(int descriptor, const void* bytes, size_t count) {
    return IsFile(descriptor) ? Counted<ssize_t>("write", descriptor, bytes, count)
                              : Do<ssize_t>("write", descriptor, bytes, count);
}

ssize_t pwrite64(int descriptor, const void* bytes, size_t count, off64_t offset) {
    return Counted<ssize_t>("pwrite64", descriptor, bytes, count, offset);
}

ssize_t pwrite(int descriptor, const void* bytes, size_t count, off_t offset) {
    return pwrite64(descriptor, bytes, count, offset);
}

int fsync(int descriptor) {
    return Counted<int>("fsync", descriptor);
}

int fdatasync(int descriptor) {
    return Counted<int>("fdatasync", descriptor);
}

int ftruncate64(int descriptor, off64_t size) noexcept {
    return Counted<int>("ftruncate64", descriptor, size);
}

int unlink(const char* path) noexcept {
    return Counted<int>("unlink", path);
}

int rename(const char* from, const char* to) noexcept {
    return Counted<int>("rename", from, to);
}
}
