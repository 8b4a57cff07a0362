#include "store/file/lock_file.h"

#include "base/system/files.h"
#include "store/engine_fault.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace kurbo {
namespace {

constexpr std::int64_t presenceByte = 0x40000000;
constexpr std::int64_t handOutByte = presenceByte + 1;
constexpr std::int64_t firstTicketByte = presenceByte + 0x100;
constexpr std::uint64_t ticketBytes = 4096;

std::int64_t byteOf(std::uint64_t ticket) {
    return firstTicketByte + static_cast<std::int64_t>(ticket % ticketBytes);
}

// The path with its last ".mdb" replaced, in the case of its own first letter.
QString withSuffix(const QString& path, QLatin1StringView suffix) {
    const QString known = QStringLiteral(".mdb");
    const qsizetype dot = path.lastIndexOf(known, -1, Qt::CaseInsensitive);
    if (dot < 0 || path.indexOf(u'/', dot) >= 0) return path + u'.' + QString(suffix).toLower();
    const bool upper = path[dot + 1].isUpper();
    return path.left(dot + 1) + (upper ? QString(suffix) : QString(suffix).toLower()) + path.mid(dot + known.size());
}

bool sameFile(int descriptor, const char* path) {
    struct stat opened {};
    struct stat named {};
    return ::fstat(descriptor, &opened) == 0 && ::lstat(path, &named) == 0 && opened.st_ino == named.st_ino &&
           opened.st_dev == named.st_dev;
}

// A new one; whoever may write the database may write it.
Descriptor made(const QString& path, const QString& databasePath) {
    Descriptor file = makePlain(path, ownersMode);
    if (file.get() >= 0) (void)shareLike(file.get(), databasePath);
    return file;
}

// Whether another client has made the file and not shared it yet.
bool isBeingMade(const QString& path, const QString& databasePath) {
    struct stat lock {};
    struct stat database {};
    constexpr mode_t others = 0077;
    if (::lstat(QFile::encodeName(path).constData(), &lock) != 0) return true;
    return (lock.st_mode & others) == 0 && ::stat(QFile::encodeName(databasePath).constData(), &database) == 0 &&
           (database.st_mode & others) != 0;
}

Descriptor openOrMake(const QString& path, const QString& databasePath) {
    constexpr int attempts = 50;
    Descriptor file;
    for (int i = 0; i < attempts; ++i) {
        file = openPlain(path, O_RDWR);
        if (file.get() >= 0) break;
        if (errno == ENOENT) {
            file = made(path, databasePath);
            if (file.get() >= 0 || errno != EEXIST) break;
        } else if (errno != EACCES || !isBeingMade(path, databasePath)) {
            break;
        } else {
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
            errno = EACCES; // of the last attempt
        }
    }
    return file;
}

} // namespace

QString LockFile::nameFor(const QString& databasePath) {
    return withSuffix(databasePath, QLatin1StringView("LDB"));
}

QString LockFile::copyNameFor(const QString& databasePath) {
    return withSuffix(databasePath, QLatin1StringView("BAK"));
}

bool LockFile::join(const QString& databasePath, Deadline until, const WaitNotice& notice) {
    const QString path = nameFor(realPath(databasePath));
    const QByteArray name = QFile::encodeName(path);
    for (;;) {
        Descriptor file = openOrMake(path, databasePath);
        if (file.get() < 0 && (errno == EACCES || errno == EPERM || errno == EROFS)) return false;
        if (file.get() < 0 && (errno == ENOSPC || errno == EDQUOT)) throw storeFault(StoreError::DiskFull);
        if (file.get() < 0 && errno == ELOOP) throw fileFault(errno, path);
        if (file.get() < 0) throw missingFault(errno, path);
        if (!lockWithin(file.get(), presenceByte, LockKind::Shared, until, notice)) throw storeFault(StoreError::Busy);
        // Between opening and locking, the last one out may have removed this very file.
        if (!sameFile(file.get(), name.constData())) continue;
        path_ = path;
        file_ = std::move(file);
        return true;
    }
}

void LockFile::leave() {
    if (!joined()) return;
    endTurn();
    const QByteArray name = QFile::encodeName(path_);
    if (tryLock(file_.get(), presenceByte, LockKind::Exclusive) && sameFile(file_.get(), name.constData()))
        ::unlink(name.constData());
    file_.reset();
}

std::uint64_t LockFile::takeTicket() {
    std::uint64_t ticket = 0;
    if (::pread(file_.get(), &ticket, sizeof ticket, 0) != sizeof ticket) ticket = 0;
    const std::uint64_t next = ticket + 1;
    // On a full disk the number may stay: two writers then share a ticket, and its byte keeps them apart.
    (void)!::pwrite(file_.get(), &next, sizeof next, 0);
    return ticket;
}

bool LockFile::waitTurn(Deadline until, const WaitNotice& notice) {
    if (!joined()) return true;
    if (!lockWithin(file_.get(), handOutByte, LockKind::Exclusive, until, notice)) return false;
    const std::uint64_t ticket = takeTicket();
    const bool own = tryLock(file_.get(), byteOf(ticket), LockKind::Exclusive);
    unlock(file_.get(), handOutByte);
    if (!own && !lockWithin(file_.get(), byteOf(ticket), LockKind::Exclusive, until, notice)) return false;
    ticketByte_ = byteOf(ticket);
    const std::int64_t before = byteOf(ticket + ticketBytes - 1);
    const bool mine = lockWithin(file_.get(), before, LockKind::Shared, until, notice);
    if (mine) unlock(file_.get(), before);
    if (!mine) endTurn();
    return mine;
}

void LockFile::endTurn() {
    if (ticketByte_ >= 0) unlock(file_.get(), std::exchange(ticketByte_, -1));
}

bool LockFile::claim(const QString& databasePath) {
    const QString path = nameFor(realPath(databasePath));
    Descriptor file = made(path, databasePath);
    if (file.get() < 0 && errno == EEXIST) return false;
    if (file.get() < 0) throw fileFault(errno, path);
    // In between another client may have come, and may have gone and removed the file.
    if (!tryLock(file.get(), presenceByte, LockKind::Exclusive) ||
        !sameFile(file.get(), QFile::encodeName(path).constData()))
        return false;
    path_ = path;
    file_ = std::move(file);
    return true;
}

bool LockFile::isHeld(const QString& databasePath) {
    const Descriptor file = openPlain(nameFor(realPath(databasePath)), O_RDWR);
    return file.get() >= 0 && !tryLock(file.get(), presenceByte, LockKind::Exclusive);
}

void LockFile::removeStale(const QString& databasePath) {
    const QString path = nameFor(realPath(databasePath));
    const QByteArray name = QFile::encodeName(path);
    const Descriptor file = openPlain(path, O_RDWR);
    if (file.get() >= 0 && tryLock(file.get(), presenceByte, LockKind::Exclusive) &&
        sameFile(file.get(), name.constData()))
        ::unlink(name.constData());
}

} // namespace kurbo
