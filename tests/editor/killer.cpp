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

template <class Routine> Routine Real(const char* name) {
    return reinterpret_cast<Routine>(dlsym(RTLD_NEXT, name));
}

} // namespace

extern "C" {

void ArmKiller(int writes) {
    left = writes;
}

// How many of the armed writes have not happened.
int KillerLeft() {
    return left;
}

ssize_t write(int descriptor, const void* bytes, size_t count) {
    static const auto real = Real<ssize_t (*)(int, const void*, size_t)>("write");
    if (IsFile(descriptor)) {
        Count();
    }
    return real(descriptor, bytes, count);
}

ssize_t pwrite64(int descriptor, const void* bytes, size_t count, off64_t offset) {
    static const auto real = Real<ssize_t (*)(int, const void*, size_t, off64_t)>("pwrite64");
    Count();
    return real(descriptor, bytes, count, offset);
}

ssize_t pwrite(int descriptor, const void* bytes, size_t count, off_t offset) {
    return pwrite64(descriptor, bytes, count, offset);
}

int fsync(int descriptor) {
    static const auto real = Real<int (*)(int)>("fsync");
    Count();
    return real(descriptor);
}

int fdatasync(int descriptor) {
    static const auto real = Real<int (*)(int)>("fdatasync");
    Count();
    return real(descriptor);
}

int ftruncate64(int descriptor, off64_t size) noexcept {
    static const auto real = Real<int (*)(int, off64_t)>("ftruncate64");
    Count();
    return real(descriptor, size);
}

int unlink(const char* path) noexcept {
    static const auto real = Real<int (*)(const char*)>("unlink");
    Count();
    return real(path);
}

int rename(const char* from, const char* to) noexcept {
    static const auto real = Real<int (*)(const char*, const char*)>("rename");
    Count();
    return real(from, to);
}
}
