#include "base/files.h"

#include "base/failure.h"
#include "base/file_lock.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kurbo {
namespace {

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

void syncFolderOf(const QString& path) {
    const Descriptor folder{
        ::open(QFile::encodeName(QFileInfo(path).absolutePath()).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
    if (folder.get() >= 0) ::fsync(folder.get());
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

QString WithoutExtension(const QString& fileName) {
    return fileName.left(fileName.indexOf(u'.'));
}

QStringList SplitFileList(const QString& chosen) {
    QStringList names = chosen.split(QChar(u'\0'), Qt::SkipEmptyParts);
    if (names.size() < 2) return names;
    const QString folder = addSlash(names.takeFirst());
    for (QString& name : names) name.prepend(folder);
    return names;
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

void replaceFile(const QString& path, const QByteArray& bytes) {
    const QString fresh = freshNameBeside(path);
    const QByteArray name = QFile::encodeName(fresh);
    try {
        const Descriptor file{::open(name.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666)};
        if (file.get() < 0) throw fileFault(errno, path);
        writeAll(file.get(), bytes, path);
        if (::fsync(file.get()) != 0) throw fileFault(errno, path);
        renameOver(fresh, path);
    } catch (...) {
        ::unlink(name.constData());
        throw;
    }
}

void syncFile(const QString& path) {
    const Descriptor file{::open(QFile::encodeName(path).constData(), O_RDWR | O_CLOEXEC)};
    if (file.get() < 0 || ::fsync(file.get()) != 0) throw fileFault(errno, path);
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

bool shareLike(const QString& from, const QString& to) {
    struct stat model {};
    struct stat own {};
    const QByteArray name = QFile::encodeName(to);
    if (::stat(QFile::encodeName(from).constData(), &model) != 0 || ::stat(name.constData(), &own) != 0) return false;
    if (own.st_gid != model.st_gid && ::chown(name.constData(), static_cast<uid_t>(-1), model.st_gid) != 0)
        return false;
    return ::chmod(name.constData(), model.st_mode & 0777U) == 0;
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
