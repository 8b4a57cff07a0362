#include "base/system/files.h"

#include "base/failure.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kurbo {
namespace {

void syncFolderOf(const QString& path) {
    const Descriptor folder{
        ::open(QFile::encodeName(QFileInfo(path).absolutePath()).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
    if (folder.get() >= 0) ::fsync(folder.get());
}

// False, with errno EEXIST, where anything has the name.
bool renameToNew(const QByteArray& from, const QByteArray& to) {
    if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0) return true;
    // A share may not know the call.
    if (errno != EINVAL && errno != ENOSYS) return false;
    struct stat any {};
    if (::lstat(to.constData(), &any) != 0) return ::rename(from.constData(), to.constData()) == 0;
    errno = EEXIST;
    return false;
}

bool isPlain(const QString& path) {
    struct stat file {};
    return ::lstat(QFile::encodeName(path).constData(), &file) == 0 && S_ISREG(file.st_mode);
}

// Gives a file made beside `path` the bytes, and the looks of the one that is there.
void fillLike(FreshFile& fresh, const QByteArray& bytes, const QString& path) {
    fresh.write(bytes);
    if (isPlain(path)) (void)fresh.shareLike(path);
    fresh.sync();
}

} // namespace

QString addSlash(const QString& folder) {
    QString result = folder.trimmed();
    while (result.endsWith(u'/')) result.chop(1);
    return result + u'/';
}

bool CheckPath(QString& path, bool folder) {
    path = path.trimmed();
    if (path.isEmpty()) return false;
    const QFileInfo info(path);
    return folder ? info.isDir() : info.isFile();
}

bool FileExists(const QString& path, bool orFolder) {
    QString trimmed = path;
    return CheckPath(trimmed) || (orFolder && CheckPath(trimmed, true));
}

QString FileNameOf(const QString& path) {
    return path.mid(path.lastIndexOf(u'/') + 1);
}

QString FolderOf(const QString& path) {
    return path.left(path.lastIndexOf(u'/'));
}

QByteArray readFile(const QString& path) {
    const QByteArray name = QFile::encodeName(path);
    const Descriptor file{::open(name.constData(), O_RDONLY | O_CLOEXEC)};
    if (file.get() < 0) throw fileFault(errno, path);
    QByteArray bytes;
    QByteArray block(65536, Qt::Uninitialized);
    for (;;) {
        const ssize_t got = ::read(file.get(), block.data(), static_cast<std::size_t>(block.size()));
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) throw fileFault(errno, path);
        if (got == 0) return bytes;
        bytes.append(block.constData(), got);
    }
}

void replaceFile(const QString& path, const QByteArray& bytes, mode_t newMode) {
    FreshFile fresh = FreshFile::beside(path, isPlain(path) ? ownersMode : newMode);
    fillLike(fresh, bytes, path);
    fresh.putOver(path);
}

void replaceAndKeep(const QString& path, const QByteArray& bytes) {
    FreshFile fresh = FreshFile::beside(path);
    fillLike(fresh, bytes, path);
    const QString kept = keepAside(path);
    try {
        fresh.putOver(path);
    } catch (const Fault&) {
        renameOver(kept, path);
        throw;
    }
}

QString chosenFile(const QString& path) {
    const QString real = realPath(path);
    const QFileInfo info(real);
    if ((info.exists() || info.isSymLink()) && !info.isFile())
        throw Complaint(lines(QStringLiteral("ファイルではないため、保存できません。"), path));
    return real;
}

void renameOver(const QString& from, const QString& to) {
    if (::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0)
        throw fileFault(errno, to);
    syncFolderOf(to);
}

QString realPath(const QString& path) {
    const QString real = QFileInfo(path).canonicalFilePath();
    return real.isEmpty() ? path : real;
}

QString freshNameBeside(const QString& path) {
    return path + u'.' + QString::number(QRandomGenerator::system()->generate64(), 36) + QStringLiteral(".new");
}

QString keepAside(const QString& path) {
    const QByteArray from = QFile::encodeName(path);
    for (int number = 1;; ++number) {
        const QString kept = path + QStringLiteral(".old") + (number == 1 ? QString() : QString::number(number));
        if (renameToNew(from, QFile::encodeName(kept))) return kept;
        if (errno != EEXIST) throw fileFault(errno, path);
    }
}

bool isSameFile(const QString& left, const QString& right) {
    struct stat a {};
    struct stat b {};
    return ::stat(QFile::encodeName(left).constData(), &a) == 0 &&
           ::stat(QFile::encodeName(right).constData(), &b) == 0 && a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

void makeWritable(const QString& path) {
    const auto permissions = QFile::permissions(path);
    if (permissions.testFlag(QFile::WriteOwner)) return;
    QFile::setPermissions(path, permissions | QFile::WriteOwner | QFile::WriteUser);
}

} // namespace kurbo
