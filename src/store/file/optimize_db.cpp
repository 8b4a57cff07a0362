#include "store/file/optimize_db.h"

#include "base/system/files.h"
#include "store/engine_fault.h"
#include "store/file/database_copy.h"

#include <QFile>
#include <QFileInfo>

#include <array>
#include <cerrno>
#include <optional>
#include <sys/stat.h>

namespace kurbo {
namespace {

// The result that stands for a fault of the store; nothing for a fault that is reported.
std::optional<OptimizeResult> resultOf(const Fault& fault) {
    constexpr std::array results{
        std::pair{StoreError::NoFile, OptimizeResult::NoFile}, std::pair{StoreError::NoDrive, OptimizeResult::NoDrive},
        std::pair{StoreError::NoPath, OptimizeResult::NoPath}, std::pair{StoreError::NotMdb, OptimizeResult::NotMdb},
        std::pair{StoreError::Opened, OptimizeResult::Opened}};
    for (const auto& [number, result] : results)
        if (static_cast<std::int64_t>(number) == fault.number()) return result;
    return {};
}

void compact(const QString& path, const QString& password, const WorkNotice& notice) {
    const QString name = LockFile::copyNameFor(path);
    QFile::remove(name);
    FreshFile copy(name);
    Connection source;
    source.openAlone(path, password);
    shutOthersOut(source);
    // A foreign tool may have left changes in a file beside it, which would be played into the new one.
    source.engine("PRAGMA journal_mode=DELETE");
    const Noticed noticed(source, notice);
    source.engine("VACUUM INTO '" + QFile::encodeName(name).replace('\'', "''") + '\'');
    requireWhole(name, password);
    // A copy that others may not open would shut them out: then the file stays as it is.
    if (!copy.shareLike(path)) throw storeFault(StoreError::Opened);
    copy.sync();
    copy.putOver(path);
}

// Throws when the file is not there, or has a second name that would keep the old contents.
void checkPlace(const QString& path) {
    struct stat file {};
    if (::stat(QFile::encodeName(path).constData(), &file) != 0) throw missingFault(errno, path);
    if (file.st_nlink > 1) throw storeFault(StoreError::Opened);
}

OptimizeResult optimized(const QString& given, const QString& password, LockFile& lock, const WorkNotice& notice) {
    if (!given.contains(QStringLiteral(".mdb"), Qt::CaseInsensitive))
        throw Fault(static_cast<std::int64_t>(StoreError::NotMdb), QStringLiteral("Kurbo.Store"),
                    QStringLiteral("mdbファイル以外のファイルは最適化できません。"));
    const QString path = realPath(given);
    if (QFileInfo::exists(LockFile::nameFor(path))) return OptimizeResult::ExistLdb;
    checkPlace(path);
    if (!lock.claim(path)) return OptimizeResult::ExistLdb;
    try {
        compact(path, password, notice);
    } catch (...) {
        lock.leave();
        throw;
    }
    return OptimizeResult::OK;
}

} // namespace

OptimizeResult OptimizeDB(const Context& context, const QString& path, const QString& password) {
    LockFile lock;
    return OptimizeDB(context, path, password, lock, {});
}

OptimizeResult OptimizeDB(const Context& context, const QString& path, const QString& password, LockFile& lock,
                          const WorkNotice& notice) {
    return guarded(context, u"basDAO", u"OptimizeDB", OptimizeResult::Error, [&] {
        try {
            return optimized(path, password, lock, notice);
        } catch (const Fault& fault) {
            const auto result = resultOf(fault);
            if (!result) throw;
            return *result;
        }
    });
}

} // namespace kurbo
