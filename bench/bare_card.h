#pragma once

#include "bench_company.h"

#include "demo/demo_company.h"

#include <sqlite3.h>

#include <cstring>

namespace kurbo::bench {

inline constexpr int people = 200;

// A demo company with a year of days, made once in a folder of its own.
inline QString companyFile() {
    static const QTemporaryDir folder;
    static const QString path = [] {
        const QString name = folder.filePath(QStringLiteral("store.mdb"));
        createDatabase(name);
        Connection connection;
        connection.open(name, databasePassword());
        DemoOptions options;
        options.people = people;
        options.months = 12;
        options.until = *makeDay(2026, 6, 17);
        makeDemoCompany(connection, options);
        return name;
    }();
    return path;
}

// Reads, merges and keeps what a card needs, as bytes; nothing is parsed or written out.
class BareReader final {
  public:
    explicit BareReader(const QString& file) {
        sqlite3_open(file.toUtf8().constData(), &database_);
        sqlite3_prepare_v2(database_,
                           "SELECT F_Date, F_Type, F_DateID FROM T01_Calendar WHERE F_Date BETWEEN "
                           "'2026-05-01 00:00:00' AND '2026-06-01 00:00:00' ORDER BY F_Date",
                           -1, &calendar_, nullptr);
        sqlite3_prepare_v2(database_,
                           "SELECT F_DateID, F_Plan, F_Enter, F_Leave, F_Paid, F_Special, F_Compens, F_KurboID "
                           "FROM T02_Kurbo WHERE F_User = ? AND F_DateID BETWEEN '20260501' AND '20260531' "
                           "ORDER BY F_DateID",
                           -1, &cards_, nullptr);
    }
    ~BareReader() {
        sqlite3_finalize(calendar_);
        sqlite3_finalize(cards_);
        sqlite3_close(database_);
    }
    BareReader(const BareReader&) = delete;
    BareReader& operator=(const BareReader&) = delete;

    std::size_t read(const QByteArray& staff) {
        sqlite3_exec(database_, "BEGIN", nullptr, nullptr, nullptr);
        sqlite3_bind_text(cards_, 1, staff.constData(), -1, SQLITE_STATIC);
        std::size_t bytes = 0;
        bool more = sqlite3_step(cards_) == SQLITE_ROW;
        while (sqlite3_step(calendar_) == SQLITE_ROW) {
            bytes += size(calendar_, 0) + size(calendar_, 1);
            while (more && std::strcmp(text(cards_, 0), text(calendar_, 2)) == 0) {
                for (int i = 1; i < 8; ++i) bytes += size(cards_, i);
                more = sqlite3_step(cards_) == SQLITE_ROW;
            }
        }
        sqlite3_reset(calendar_);
        sqlite3_reset(cards_);
        sqlite3_exec(database_, "COMMIT", nullptr, nullptr, nullptr);
        return bytes;
    }

  private:
    static const char* text(sqlite3_stmt* statement, int column) {
        return reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    }
    static std::size_t size(sqlite3_stmt* statement, int column) {
        return text(statement, column) ? static_cast<std::size_t>(sqlite3_column_bytes(statement, column)) : 0;
    }
    sqlite3* database_ = nullptr;
    sqlite3_stmt* calendar_ = nullptr;
    sqlite3_stmt* cards_ = nullptr;
};

} // namespace kurbo::bench
