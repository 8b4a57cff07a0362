#include "maintenance/move_place.h"

#include "base/system/files.h"
#include "store/file/lock_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace kurbo {
namespace {

[[noreturn]] void refuse(const char16_t* problem, const char16_t* advice) {
    throw Complaint(lines(QString::fromUtf16(problem), QString::fromUtf16(advice)));
}

constexpr auto* otherFile = u"別のファイルを指定して下さい。";

// The name with its folder's links followed, whether or not the file is there.
QString plainName(const QString& path) {
    const QFileInfo info(path);
    const QString folder = info.dir().canonicalPath();
    return info.exists() ? info.canonicalFilePath() : addSlash(folder) + info.fileName();
}

// Compaction, the lock and the copy at the program's end would take the moved days for a file of theirs.
bool isReserved(const Context& context, const QString& database, const QString& destination) {
    const QString own = realPath(database);
    const QStringList reserved{LockFile::nameFor(own),           LockFile::copyNameFor(own),
                               own + QStringLiteral("-journal"), own + QStringLiteral("-wal"),
                               own + QStringLiteral("-shm"),     context.paths.BackupPath};
    for (const auto* const ending : {u"-journal", u"-wal", u"-shm"})
        if (plainName(destination) + QString::fromUtf16(ending) == own) return true;
    return std::ranges::any_of(reserved, [&](const QString& path) {
        return isSameFile(path, destination) || plainName(path) == plainName(destination);
    });
}

// On the disk of the database itself, the changes of the database need as much room again until they are done.
bool hasRoom(const QString& database, const QString& folder) {
    struct stat file {};
    struct stat place {};
    struct statvfs disk {};
    const QByteArray name = QFile::encodeName(folder);
    if (::stat(QFile::encodeName(database).constData(), &file) != 0 || ::stat(name.constData(), &place) != 0 ||
        ::statvfs(name.constData(), &disk) != 0)
        return true;
    const auto copies = file.st_dev == place.st_dev ? 2U : 1U;
    return static_cast<std::uint64_t>(disk.f_bavail) * disk.f_frsize >=
           copies * static_cast<std::uint64_t>(file.st_size);
}

bool mayWrite(const QString& path) {
    return ::faccessat(AT_FDCWD, QFile::encodeName(path).constData(), W_OK, AT_EACCESS) == 0;
}

} // namespace

void checkPlace(const Context& context, const QString& database, const QString& destination) {
    const QFileInfo info(destination);
    const QString folder = QFileInfo(realPath(destination)).absolutePath();
    if ((info.exists() && !info.isFile()) || info.fileName().isEmpty())
        refuse(u"移動先DBのファイル名が指定されていません。", u"フォルダに続けてファイル名を指定して下さい。");
    if (isSameFile(database, destination)) refuse(u"移動先DBにカレントDBと同じファイルは指定できません。", otherFile);
    if (isReserved(context, database, destination))
        refuse(u"移動先DBに指定したファイル名は、システムが他の用途で使用します。", otherFile);
    if (!info.fileName().endsWith(QStringLiteral(".mdb"), Qt::CaseInsensitive))
        refuse(u"移動先DBのファイル名が不正です。", u"ファイル名は「.mdb」で終わるように指定して下さい。");
    if (!mayWrite(folder) || (info.exists() && !mayWrite(destination)))
        refuse(u"移動先DBに書き込む事ができません。",
               u"フォルダとファイルの書き込みの許可を確認するか、別のフォルダを指定して下さい。");
    if (!hasRoom(database, folder))
        refuse(u"移動先ディスクの空き容量が不足しています。",
               u"不要なファイルを削除するか、別のディスクのフォルダを指定して下さい。");
}

} // namespace kurbo
