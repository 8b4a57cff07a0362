#include "store/file/database_file.h"

#include "base/system/files.h"
#include "store/connection.h"
#include "store/engine_fault.h"
#include "store/file/database_copy.h"
#include "store/schema.h"

#include <sqlite3.h>

#include <QFile>
#include <QFileInfo>

#include <array>
#include <cerrno>
#include <memory>

namespace kurbo {
namespace {

struct CloseEngine {
    void operator()(sqlite3* database) const { sqlite3_close_v2(database); }
};
using Engine = std::unique_ptr<sqlite3, CloseEngine>;

Engine openEngine(const QString& path, int flags) {
    sqlite3* database = nullptr;
    const int result = sqlite3_open_v2(QFile::encodeName(path).constData(), &database, flags, nullptr);
    Engine engine(database);
    sqlite3_extended_result_codes(database, 1);
    if (result != SQLITE_OK) throw engineFault(database, result, path);
    return engine;
}

void run(const Engine& engine, const QByteArray& sql, const QString& path) {
    const int result = sqlite3_exec(engine.get(), sql.constData(), nullptr, nullptr, nullptr);
    if (result != SQLITE_OK) throw engineFault(engine.get(), result, path);
}

// What a new site finds before its first setting.
constexpr std::array reservedRecords{
    "INSERT INTO C02_Section (F_SectionCode, F_SectionName, F_Order) VALUES ('NEW', '新しい部課', 0)",
    "INSERT INTO C03_Staff (F_StaffCode, F_StaffName, F_Order) VALUES ('NEW', '新しい社員', 0)",
    "INSERT INTO C03_Staff (F_StaffCode, F_StaffName, F_Order) VALUES ('ADMIN', 'ADMIN', 0)",
    "INSERT INTO M02_StaffInfo (F_StaffCode, F_Password, F_CloseDay, F_PaidTotal) VALUES ('ADMIN', 'ADMIN', 31, 0)",
    "INSERT INTO M03_WeekdayStyle (F_WeekdayCode, F_WeekdayName) VALUES (0, '新しい勤務時間')",
    "INSERT INTO M04_HolidayStyle (F_HolidayCode, F_HolidayName) VALUES (0, '新しい勤務時間')",
    "INSERT INTO M05_AmHolidayStyle (F_AmHolidayCode, F_AmHolidayName) VALUES (0, '新しい勤務時間')",
    "INSERT INTO M06_PmHolidayStyle (F_PmHolidayCode, F_PmHolidayName) VALUES (0, '新しい勤務時間')",
    "INSERT INTO M07_AdjustHours (F_AdjustCode, F_AdjustName) VALUES (0, '新しい時間調整')",
    "INSERT INTO M08_Access (F_AccessCode, F_AccessName) VALUES (0, '新しいアクセス権')",
};

void build(const QString& path) {
    const Engine engine = openEngine(path, SQLITE_OPEN_READWRITE);
    run(engine, "BEGIN", path);
    for (const QByteArray& statement : schemaStatements(databasePassword())) run(engine, statement, path);
    for (const char* statement : reservedRecords) run(engine, statement, path);
    run(engine, "COMMIT", path);
}

// Takes the name, so that two makers of one file do not meet. Passwords will stand in the file: nobody outside of its
// group gets a right.
void claimName(const QString& path) {
    constexpr mode_t groupsMode = 0660;
    const Descriptor file = makePlain(path, groupsMode);
    if (file.get() < 0) throw fileFault(errno, path);
}

QStringList answers(sqlite3* database, const char* sql) {
    sqlite3_stmt* statement = nullptr;
    int result = sqlite3_prepare_v2(database, sql, -1, &statement, nullptr);
    QStringList texts;
    while (result == SQLITE_OK && (result = sqlite3_step(statement)) == SQLITE_ROW) {
        QStringList cells;
        for (int i = 0; i < sqlite3_column_count(statement); ++i)
            cells.append(QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement, i))));
        texts.append(cells.join(u' '));
        result = SQLITE_OK;
    }
    sqlite3_finalize(statement);
    if (result != SQLITE_DONE) throw engineFault(database, result, {});
    return texts;
}

} // namespace

void createDatabase(const QString& path) {
    claimName(path);
    try {
        build(path);
    } catch (...) {
        QFile::remove(path);
        throw;
    }
}

void copyDatabase(const QString& path, const QString& target) {
    if (isSameFile(path, target)) return;
    FreshFile fresh = FreshFile::beside(target);
    Connection source;
    source.open(path, databasePassword());
    writeCopy(source, fresh);
    (void)fresh.shareLike(path);
    putInPlace(fresh, target, databasePassword(), OldFile::Goes);
}

QStringList checkDatabase(const QString& path) {
    Connection connection;
    connection.open(path, databasePassword());
    QStringList wrong = answers(connection.handle(), "PRAGMA integrity_check");
    wrong.removeAll(QStringLiteral("ok"));
    for (const QString& row : answers(connection.handle(), "PRAGMA foreign_key_check"))
        wrong.append(QStringLiteral("row without its parent: ") + row);
    const QStringList present = answers(connection.handle(), "SELECT name FROM sqlite_master");
    for (const QString& table : tableNames())
        if (!present.contains(table)) wrong.append(QStringLiteral("table missing: ") + table);
    for (const QString& index : indexNames())
        if (!present.contains(index)) wrong.append(QStringLiteral("index missing: ") + index);
    return wrong;
}

} // namespace kurbo
