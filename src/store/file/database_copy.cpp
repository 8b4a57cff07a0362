#include "store/file/database_copy.h"

#include "base/system/files.h"
#include "store/engine_fault.h"

#include <sqlite3.h>

#include <QFile>
#include <QFileInfo>

#include <array>
#include <memory>

namespace kurbo {
namespace {

struct CloseEngine {
    void operator()(sqlite3* database) const { sqlite3_close_v2(database); }
};
using Engine = std::unique_ptr<sqlite3, CloseEngine>;

Engine emptyFile(const QString& path) {
    sqlite3* database = nullptr;
    const int result = sqlite3_open_v2(QFile::encodeName(path).constData(), &database, SQLITE_OPEN_READWRITE, nullptr);
    Engine engine(database);
    sqlite3_extended_result_codes(database, 1);
    if (result != SQLITE_OK) throw engineFault(database, result, path);
    return engine;
}

// Files that a crash leaves beside a database; the engine would take them for a part of the next file of that name.
constexpr std::array leftovers{"-journal", "-wal", "-shm"};

bool hasLeftovers(const QString& path) {
    return std::ranges::any_of(leftovers,
                               [&](const char* ending) { return QFileInfo::exists(path + QLatin1StringView(ending)); });
}

// The engine finishes what a crash has interrupted. Where there is no database to finish, nothing is lost.
void settle(const QString& path, const QString& password) {
    try {
        Connection old;
        old.openAlone(path, password);
    } catch (const Fault&) {
        return;
    }
}

} // namespace

void writeCopy(Connection& from, const FreshFile& target, const WorkNotice& notice) {
    constexpr int pagesAtOnce = 500;
    const Engine copy = emptyFile(target.path());
    sqlite3_backup* backup = sqlite3_backup_init(copy.get(), "main", from.handle(), "main");
    if (!backup) throw engineFault(copy.get(), sqlite3_errcode(copy.get()), target.path());
    int result = SQLITE_OK;
    while ((result = sqlite3_backup_step(backup, notice ? pagesAtOnce : -1)) == SQLITE_OK) notice();
    sqlite3_backup_finish(backup);
    if (result != SQLITE_DONE) throw engineFault(copy.get(), result, target.path());
}

void requireWhole(const QString& path, const QString& password) {
    Connection connection;
    connection.openAlone(path, password);
    requireWhole(connection);
}

void requireWhole(Connection& connection) {
    const auto verdict = connection.firstValue(QStringLiteral("SELECT quick_check FROM pragma_quick_check"));
    if (!verdict || verdict->text() != u"ok") throw storeFault(StoreError::Damaged, connection.path());
}

void putInPlace(FreshFile& copy, const QString& target, const QString& password, OldFile old) {
    copy.sync();
    if (hasLeftovers(target)) settle(target, password);
    for (const char* const ending : leftovers) QFile::remove(target + QLatin1StringView(ending));
    const QString kept = old == OldFile::Kept && QFileInfo::exists(target) ? keepAside(target) : QString();
    try {
        copy.putOver(target);
    } catch (const Fault&) {
        if (!kept.isEmpty()) renameOver(kept, target);
        throw;
    }
}

} // namespace kurbo
