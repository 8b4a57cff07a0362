#include "support/child.h"

#include <sqlite3.h>

#include <cerrno>
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace kurbo::test {
namespace {

DiskFailure failure;
int callsLeft;

void die() {
    ::kill(::getpid(), SIGKILL);
}

// A write that fails, or nothing where its time has not come.
template <typename Part>
bool failed(Part writePart) {
    if (--callsLeft > 0) return false;
    errno = ENOSPC;
    if (failure == DiskFailure::Full) return true;
    if (failure == DiskFailure::KilledHalfway) writePart();
    die();
    return true;
}

ssize_t writeHere(int file, const void* bytes, std::size_t size) {
    return failed([&] { return ::write(file, bytes, size / 2); }) ? -1 : ::write(file, bytes, size);
}

ssize_t writeAt(int file, const void* bytes, std::size_t size, off_t from) {
    return failed([&] { return ::pwrite(file, bytes, size / 2, from); }) ? -1 : ::pwrite(file, bytes, size, from);
}

int cut(int file, off_t size) {
    if (failure != DiskFailure::Full && --callsLeft <= 0) die();
    return ::ftruncate(file, size);
}

int removed(const char* path) {
    if (failure != DiskFailure::Full && --callsLeft <= 0) die();
    return ::unlink(path);
}

template <typename Call>
void replace(const char* name, Call call) {
    sqlite3_vfs* disk = sqlite3_vfs_find(nullptr);
    disk->xSetSystemCall(disk, name, reinterpret_cast<sqlite3_syscall_ptr>(call));
}

} // namespace

pid_t startChild(const std::function<int()>& body) {
    const pid_t child = ::fork();
    if (child == 0) ::_exit(body());
    return child;
}

int endOf(pid_t child) {
    int status = 0;
    if (::waitpid(child, &status, 0) != child || !WIFEXITED(status)) return -1;
    return WEXITSTATUS(status);
}

void failAtCall(DiskFailure kind, int n) {
    failure = kind;
    callsLeft = n;
    replace("write", writeHere);
    replace("pwrite", writeAt);
    replace("pwrite64", writeAt);
    replace("ftruncate", cut);
    replace("unlink", removed);
}

} // namespace kurbo::test
