// One punch (calendar, status, write) against a bare one-row commit through the engine's C interface in the same
// durability mode, in turn, so that a machine that changes its speed changes both.

#include "bench_company.h"

#include "punch/punch_clock.h"

#include <sqlite3.h>

#include <cstdio>

namespace {

using namespace kurbo;
using namespace kurbo::bench;

constexpr int pairs = 1500;

class BareInsert final {
  public:
    explicit BareInsert(const QString& path) {
        sqlite3_open(path.toUtf8().constData(), &database_);
        sqlite3_exec(database_, "PRAGMA synchronous=FULL; PRAGMA foreign_keys=ON", nullptr, nullptr, nullptr);
        sqlite3_prepare_v2(database_, "INSERT INTO T02_Kurbo (F_KurboID, F_DateID, F_User, F_Enter) VALUES (?,?,?,?)",
                           -1, &insert_, nullptr);
    }
    ~BareInsert() {
        sqlite3_finalize(insert_);
        sqlite3_close(database_);
    }
    BareInsert(const BareInsert&) = delete;
    BareInsert& operator=(const BareInsert&) = delete;

    void run(int id, const QByteArray& day, const QByteArray& user) {
        sqlite3_bind_int(insert_, 1, id);
        sqlite3_bind_text(insert_, 2, day.constData(), -1, SQLITE_STATIC);
        sqlite3_bind_text(insert_, 3, user.constData(), -1, SQLITE_STATIC);
        sqlite3_bind_text(insert_, 4, "2026-01-01 09:00:00", -1, SQLITE_STATIC);
        if (sqlite3_step(insert_) != SQLITE_DONE) std::printf("bare insert: %s\n", sqlite3_errmsg(database_));
        sqlite3_reset(insert_);
    }

  private:
    sqlite3* database_ = nullptr;
    sqlite3_stmt* insert_ = nullptr;
};

} // namespace

int main() {
    const QTemporaryDir folder;
    const QString ours = folder.filePath(QStringLiteral("ours.mdb"));
    const QString theirs = folder.filePath(QStringLiteral("bare.mdb"));
    makeBenchCompany(ours, pairs);
    makeBenchCompany(theirs, pairs);

    Office office(folder.path());
    Connection connection;
    connection.open(ours, databasePassword());
    BareInsert bare(theirs);
    const QByteArray day = dateId(office.clock.today()).toLatin1();

    Samples punches;
    Samples commits;
    for (int i = 0; i < pairs; ++i) {
        const QString staff = staffCode(i);
        const QByteArray user = staff.toLatin1();
        commits.add(timed([&] { bare.run(i + 1, day, user); }));
        punches.add(timed([&] {
            (void)punch(office.context, connection, {{}, staff, {true, true, false, {}}, Seconds(30), {}},
                        Punch::Enter);
        }));
    }
    std::printf("punch / bare commit: %.2f in the middle, %.2f at the 95th of 100 (limit 1.30)\n",
                punches.at(50) / commits.at(50), punches.at(95) / commits.at(95));
    return punches.at(50) / commits.at(50) <= 1.3 ? 0 : 1;
}
