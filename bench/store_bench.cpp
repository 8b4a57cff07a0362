// Reading through the store against the engine's C interface alone: all card rows in the order of the file, one
// person's month, and the next id of a large table.

#include "bench_company.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

namespace {

using namespace kurbo;
using namespace kurbo::bench;

constexpr int people = 1000;

QString file() {
    static const QTemporaryDir folder;
    static const QString path = [] {
        const QString name = folder.filePath(QStringLiteral("store.mdb"));
        makeBenchCompany(name, people);
        return name;
    }();
    return path;
}

struct Day31 {
    std::int64_t id;
    std::optional<Moment> enter;
    std::optional<Moment> leave;
};

const QString allRows = QStringLiteral("SELECT F_KurboID, F_Enter, F_Leave FROM T02_Kurbo");
const QString monthRows = QStringLiteral("SELECT F_KurboID, F_Enter, F_Leave FROM T02_Kurbo "
                                         "WHERE (F_User = ?) AND (F_DateID BETWEEN '20260201' AND '20260228')");
const QString ids = QStringLiteral("SELECT F_KurboID FROM T02_Kurbo ORDER BY F_KurboID;");

Connection& store() {
    static Connection connection;
    if (!connection.isOpen()) connection.open(file(), databasePassword());
    return connection;
}

sqlite3_stmt* bare(const QString& statement) {
    static sqlite3* database = nullptr;
    if (!database) sqlite3_open(file().toUtf8().constData(), &database);
    sqlite3_stmt* prepared = nullptr;
    sqlite3_prepare_v2(database, statement.toUtf8().constData(), -1, &prepared, nullptr);
    return prepared;
}

// Columns are fetched as bytes only: the limit does not parse.
std::size_t readBare(sqlite3_stmt* statement) {
    std::size_t bytes = 0;
    while (sqlite3_step(statement) == SQLITE_ROW) {
        bytes += static_cast<std::size_t>(sqlite3_column_int64(statement, 0));
        for (int i = 1; i < 3; ++i)
            if (sqlite3_column_text(statement, i))
                bytes += static_cast<std::size_t>(sqlite3_column_bytes(statement, i));
    }
    sqlite3_reset(statement);
    return bytes;
}

std::vector<Day31> readStore(Rows rows) {
    std::vector<Day31> days;
    while (rows.next()) days.push_back({rows.integer(0), rows.moment(1), rows.moment(2)});
    return days;
}

void AllRowsBare(benchmark::State& state) {
    sqlite3_stmt* statement = bare(allRows);
    for (auto _ : state) benchmark::DoNotOptimize(readBare(statement));
    state.SetItemsProcessed(state.iterations() * people * 60);
}

void AllRowsStore(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(readStore(store().rows(allRows)));
    state.SetItemsProcessed(state.iterations() * people * 60);
}

void MonthBare(benchmark::State& state) {
    sqlite3_stmt* statement = bare(monthRows);
    int i = 0;
    for (auto _ : state) {
        const QByteArray staff = staffCode(++i % people).toLatin1();
        sqlite3_bind_text(statement, 1, staff.constData(), -1, SQLITE_STATIC);
        benchmark::DoNotOptimize(readBare(statement));
    }
}

void MonthStore(benchmark::State& state) {
    int i = 0;
    for (auto _ : state) benchmark::DoNotOptimize(readStore(store().rows(monthRows, {staffCode(++i % people)})));
}

void NextIdBare(benchmark::State& state) {
    sqlite3_stmt* statement = bare(QStringLiteral("SELECT max(F_KurboID) FROM T02_Kurbo"));
    for (auto _ : state) {
        sqlite3_step(statement);
        benchmark::DoNotOptimize(sqlite3_column_int64(statement, 0));
        sqlite3_reset(statement);
    }
}

void NextIdStore(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(store().lastValue(ids));
}

BENCHMARK(AllRowsBare)->Unit(benchmark::kMillisecond);
BENCHMARK(AllRowsStore)->Unit(benchmark::kMillisecond);
BENCHMARK(MonthBare)->Unit(benchmark::kMicrosecond);
BENCHMARK(MonthStore)->Unit(benchmark::kMicrosecond);
BENCHMARK(NextIdBare)->Unit(benchmark::kMicrosecond);
BENCHMARK(NextIdStore)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
