#include "base/system/plain_file.h"

#include "base/failure.h"
#include "base/system/files.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kurbo {
namespace {

constexpr int always = O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;

} // namespace

Descriptor openPlain(const QString& path, int access) {
    Descriptor file{::open(QFile::encodeName(path).constData(), access | always)};
    struct stat found {};
    // A file without any name, deleted since, passes: its caller finds that out.
    if (file.get() < 0 || (::fstat(file.get(), &found) == 0 && S_ISREG(found.st_mode) && found.st_nlink <= 1))
        return file;
    file.reset();
    errno = ELOOP;
    return file;
}

Descriptor makePlain(const QString& path, mode_t mode) {
    return Descriptor{::open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_EXCL | always, mode)};
}

Descriptor openOrMakePlain(const QString& path, int access, mode_t mode) {
    constexpr int attempts = 10;
    Descriptor file;
    for (int i = 0; i < attempts; ++i) {
        file = openPlain(path, access);
        if (file.get() >= 0 || errno != ENOENT) break;
        file = makePlain(path, mode);
        if (file.get() >= 0 || errno != EEXIST) break;
    }
    return file;
}

void writeAll(int descriptor, const QByteArray& bytes, const QString& path) {
    qsizetype done = 0;
    while (done < bytes.size()) {
        const ssize_t written =
            ::write(descriptor, bytes.constData() + done, static_cast<std::size_t>(bytes.size() - done));
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) throw fileFault(errno, path);
        done += written;
    }
}

bool shareLike(int descriptor, const QString& model) {
    struct stat wanted {};
    struct stat own {};
    if (::stat(QFile::encodeName(model).constData(), &wanted) != 0 || ::fstat(descriptor, &own) != 0) return false;
    mode_t mode = wanted.st_mode & 0777U;
    const bool grouped =
        own.st_gid == wanted.st_gid || ::fchown(descriptor, static_cast<uid_t>(-1), wanted.st_gid) == 0;
    if (!grouped) mode = (mode & 0707U) | ((mode & 07U) << 3U);
    return ::fchmod(descriptor, mode) == 0 && grouped;
}

FreshFile::FreshFile(const QString& path, mode_t mode, const QString& told)
    : path_(path), told_(told), file_(makePlain(path, mode)) {
    if (file_.get() < 0) throw fileFault(errno, told);
}

FreshFile::FreshFile(const QString& path) : FreshFile(path, ownersMode, path) {}

FreshFile FreshFile::beside(const QString& target, mode_t mode) {
    return {freshNameBeside(target), mode, target};
}

FreshFile::~FreshFile() {
    if (file_.get() >= 0) ::unlink(QFile::encodeName(path_).constData());
}

void FreshFile::sync() const {
    struct stat own {};
    struct stat named {};
    if (::fsync(file_.get()) != 0 || ::fstat(file_.get(), &own) != 0 ||
        ::lstat(QFile::encodeName(path_).constData(), &named) != 0)
        throw fileFault(errno, told_);
    if (own.st_ino != named.st_ino || own.st_dev != named.st_dev) throw fileFault(ELOOP, told_);
}

void FreshFile::putOver(const QString& target) {
    renameOver(path_, target);
    file_.reset();
}

} // namespace kurbo
