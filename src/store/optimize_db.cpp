#include "store/optimize_db.h"

#include "base/files.h"
#include "store/connection.h"
#include "store/engine_fault.h"

#include <sqlite3.h>

#include <QFile>
#include <QFileInfo>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kurbo {
namespace {

struct Result {
    StoreError number;
    const char16_t* word;
};

constexpr std::array results{Result{StoreError::NoFile, u"NoFile"}, Result{StoreError::NoDrive, u"NoDrive"},
                             Result{StoreError::NoPath, u"NoPath"}, Result{StoreError::NotMdb, u"NotMdb"},
                             Result{StoreError::Opened, u"Opened"}};

QString wordOf(const Fault& fault) {
    for (const auto& result : results)
        if (static_cast<std::int64_t>(result.number) == fault.number()) return QString::fromUtf16(result.word);
    return {};
}

// Keeps out programs that know nothing of the lock file. The mode holds the engine's own lock until closing.
void lockEngine(Connection& source) {
    source.setTimeout(std::chrono::milliseconds{0});
    try {
        source.engine("PRAGMA locking_mode=EXCLUSIVE; BEGIN EXCLUSIVE; COMMIT");
    } catch (const Fault& fault) {
        if (fault.number() == static_cast<std::int64_t>(StoreError::Busy)) throw storeFault(StoreError::Opened);
        throw;
    }
}

void sync(const QString& path) {
    const Descriptor file{::open(QFile::encodeName(path).constData(), O_RDWR | O_CLOEXEC)};
    if (file.get() < 0 || ::fsync(file.get()) != 0) throw fileFault(errno, path);
}

void check(const QString& path, const QString& password) {
    Connection copy;
    copy.openAlone(path, password);
    const auto verdict = copy.firstValue(QStringLiteral("SELECT quick_check FROM pragma_quick_check"));
    if (!verdict || verdict->text() != u"ok") throw storeFault(StoreError::Damaged, path);
}

void compact(const QString& path, const QString& copy, const QString& password) {
    Connection source;
    source.openAlone(path, password);
    lockEngine(source);
    source.engine("VACUUM INTO '" + QFile::encodeName(copy).replace('\'', "''") + '\'');
    check(copy, password);
    // A copy that others may not open would shut them out: then the file stays as it is.
    if (!shareLike(path, copy)) throw storeFault(StoreError::Opened);
    sync(copy);
    renameOver(copy, path);
}

// Throws when the file is not there, or has a second name that would keep the old contents.
void checkPlace(const QString& path) {
    struct stat file {};
    if (::stat(QFile::encodeName(path).constData(), &file) != 0) throw missingFault(errno, path);
    if (file.st_nlink > 1) throw storeFault(StoreError::Opened);
}

QString optimized(const QString& given, const QString& password) {
    if (!given.contains(QStringLiteral(".mdb"), Qt::CaseInsensitive))
        throw Fault(static_cast<std::int64_t>(StoreError::NotMdb), QStringLiteral("Kurbo.Store"),
                    QStringLiteral("mdbファイル以外のファイルは最適化できません。"));
    const QString path = realPath(given);
    if (QFileInfo::exists(LockFile::nameFor(path))) return QStringLiteral("ExistLdb");
    checkPlace(path);
    LockFile lock;
    if (!lock.claim(path)) return QStringLiteral("ExistLdb");
    const QString copy = LockFile::copyNameFor(path);
    QFile::remove(copy);
    try {
        compact(path, copy, password);
    } catch (...) {
        QFile::remove(copy);
        throw;
    }
    return QStringLiteral("OK");
}

} // namespace

QString OptimizeDB(const Context& context, const QString& path, const QString& password) {
    return guarded(context, u"basDAO", u"OptimizeDB", QStringLiteral("Error"), [&] {
        try {
            return optimized(path, password);
        } catch (const Fault& fault) {
            const QString word = wordOf(fault);
            if (word.isEmpty()) throw;
            return word;
        }
    });
}

} // namespace kurbo
