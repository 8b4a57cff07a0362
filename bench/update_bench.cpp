// UpdateDayly of a month's 31 rows against the same 31 UPDATEs by the engine's C interface in one transaction of the
// same durability, in turn, so that a disk that changes its speed changes both. The person has five years of rows.

#include "bench_company.h"

#include "card/card_grid.h"
#include "card/edit/card_update.h"

#include <sqlite3.h>

#include <cstdio>

namespace {

using namespace kurbo;
using namespace kurbo::bench;

constexpr int pairs = 300;
constexpr int people = 50;
constexpr int days = 31;
constexpr int years = 5;
constexpr int firstId = 5000000;

// Five years before the company's own, in the order in which they were punched.
void addYears(const QString& path) {
    Connection connection;
    connection.open(path, databasePassword());
    Transaction transaction(connection);
    int id = firstId;
    for (Day day = *makeDay(2026 - years, 1, 1); day < *makeDay(2026, 1, 1); day += std::chrono::days(1)) {
        connection.execute(QStringLiteral("INSERT INTO T01_Calendar (F_DateID, F_Date) VALUES (?, ?)"),
                           {dateId(day), day});
        for (int i = 0; i < people; ++i)
            connection.execute(QStringLiteral("INSERT INTO T02_Kurbo (F_KurboID, F_DateID, F_User, F_Enter, F_Leave) "
                                              "VALUES (?, ?, ?, ?, ?)"),
                               {++id, dateId(day), staffCode(i), at(day, 9, 0), at(day, 17, 30)});
    }
    transaction.commit();
}

// The ids of one person's May 2025.
std::vector<std::int64_t> monthIds(const QString& path) {
    Connection connection;
    connection.open(path, databasePassword());
    Rows rows = connection.rows(QStringLiteral("SELECT F_KurboID FROM T02_Kurbo WHERE (F_User = ?) AND (F_DateID "
                                               "BETWEEN '20250501' AND '20250531') ORDER BY F_DateID"),
                                {staffCode(7)});
    std::vector<std::int64_t> ids;
    while (rows.next()) ids.push_back(rows.integer(0));
    return ids;
}

void fillSheet(CardSheet& sheet, const std::vector<std::int64_t>& ids) {
    Card card;
    card.headings = QStringList(cardColumns, QString());
    card.summary.fill(card.headings);
    for (int i = 0; i < days; ++i) {
        CardDay day;
        day.facts.date = *makeDay(2025, 5, 1) + std::chrono::days(i);
        day.kurboId = ids[static_cast<std::size_t>(i)];
        card.days.append(card.headings);
        card.entries.emplace_back(day);
    }
    sheet.show(std::move(card));
}

QString planOf(int round) {
    return QStringLiteral("会議 %1").arg(round);
}
QString leaveOf(int round) {
    return QStringLiteral("18:%1").arg(round % 60, 2, 10, QChar(u'0'));
}

void changeSheet(CardSheet& sheet, int round) {
    for (int row = firstCardDay; row < firstCardDay + days; ++row) {
        sheet.dayAt(row)->read(CardColumn::Plan, planOf(round));
        sheet.dayAt(row)->read(CardColumn::Enter, QStringLiteral("09:00"));
        sheet.dayAt(row)->read(CardColumn::Leave, leaveOf(round));
        sheet.grid.RowStatus(row, GridStatus::Modified);
    }
}

class BareUpdate final {
  public:
    explicit BareUpdate(const QString& path) {
        sqlite3_open(path.toUtf8().constData(), &database_);
        run("PRAGMA synchronous=FULL; PRAGMA foreign_keys=ON; PRAGMA cache_size=-16000");
        sqlite3_prepare_v2(database_,
                           "UPDATE T02_Kurbo SET F_Plan = ?, F_Paid = NULL, F_Special = NULL, F_Compens = NULL, "
                           "F_Enter = ?, F_Leave = ? WHERE F_KurboID = ?",
                           -1, &update_, nullptr);
    }
    ~BareUpdate() {
        sqlite3_finalize(update_);
        sqlite3_close(database_);
    }
    BareUpdate(const BareUpdate&) = delete;
    BareUpdate& operator=(const BareUpdate&) = delete;

    void month(const std::vector<std::int64_t>& ids, const QByteArray& plan, const QByteArray& leave) {
        run("BEGIN IMMEDIATE");
        for (int i = 0; i < days; ++i) {
            const QByteArray day = "2025-05-" + QByteArray::number(i + 1).rightJustified(2, '0') + ' ';
            const QByteArray enterTime = day + "09:00:00";
            const QByteArray leaveTime = day + leave + ":00";
            sqlite3_bind_text(update_, 1, plan.constData(), -1, SQLITE_STATIC);
            sqlite3_bind_text(update_, 2, enterTime.constData(), -1, SQLITE_STATIC);
            sqlite3_bind_text(update_, 3, leaveTime.constData(), -1, SQLITE_STATIC);
            sqlite3_bind_int64(update_, 4, ids[static_cast<std::size_t>(i)]);
            if (sqlite3_step(update_) != SQLITE_DONE || sqlite3_changes(database_) != 1)
                std::printf("bare update: %s\n", sqlite3_errmsg(database_));
            sqlite3_reset(update_);
        }
        run("COMMIT");
    }

  private:
    void run(const char* sql) { sqlite3_exec(database_, sql, nullptr, nullptr, nullptr); }

    sqlite3* database_ = nullptr;
    sqlite3_stmt* update_ = nullptr;
};

} // namespace

int main() {
    const QTemporaryDir folder;
    const QString ours = folder.filePath(QStringLiteral("ours.mdb"));
    const QString theirs = folder.filePath(QStringLiteral("bare.mdb"));
    for (const QString& path : {ours, theirs}) {
        makeBenchCompany(path, people);
        addYears(path);
    }
    const std::vector<std::int64_t> ids = monthIds(ours);
    CardSheet sheet;
    fillSheet(sheet, ids);

    Office office(folder.path());
    Connection connection;
    connection.open(ours, databasePassword());
    BareUpdate bare(theirs);
    Samples updates;
    Samples commits;
    for (int round = 0; round < pairs; ++round) {
        changeSheet(sheet, round);
        const QByteArray plan = planOf(round).toUtf8();
        const QByteArray leave = leaveOf(round).toLatin1();
        commits.add(timed([&] { bare.month(ids, plan, leave); }));
        updates.add(timed([&] { (void)UpdateDayly(office.context, connection, sheet, staffCode(7)); }));
    }
    std::printf("31 rows: UpdateDayly %.0f us, bare %.0f us in the middle\n", updates.at(50), commits.at(50));
    std::printf("UpdateDayly / bare: %.2f in the middle, %.2f at the 95th of 100 (limit 2.00)\n",
                updates.at(50) / commits.at(50), updates.at(95) / commits.at(95));
    return updates.at(50) / commits.at(50) <= 2 ? 0 : 1;
}
