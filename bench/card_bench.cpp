// One card of 31 days, from an open connection to filled cells, against the bare reading of the same rows by two
// prepared, indexed questions merged in code.

#include "bare_card.h"

#include "card/card_cells.h"
#include "month/loaders.h"

#include <benchmark/benchmark.h>

namespace {

using namespace kurbo;
using namespace kurbo::bench;

QString person(int i) {
    return QString::number(1001 + i % people);
}

void MonthBare(benchmark::State& state) {
    BareReader reader(companyFile());
    int i = 0;
    for (auto _ : state) benchmark::DoNotOptimize(reader.read(person(++i).toLatin1()));
}

void MonthRead(benchmark::State& state) {
    Connection connection;
    connection.open(companyFile(), databasePassword());
    int i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(readCardDays(connection, person(++i), {*makeDay(2026, 5, 1), *makeDay(2026, 5, 31)}));
}

void MonthCard(benchmark::State& state) {
    const QTemporaryDir folder;
    Office office(folder.path());
    office.clock.set(at(*makeDay(2026, 6, 17), 9, 0));
    Connection connection;
    connection.open(companyFile(), databasePassword());
    std::vector<clsWorkTime> rules(people);
    for (int j = 0; j < people; ++j) {
        auto& own = rules[static_cast<std::size_t>(j)];
        (void)(GetWorkStyle(office.context, connection, own) &&
               GetStaffInfo(office.context, connection, own, person(j)) &&
               GetWorkTime(office.context, connection, own, person(j)));
    }
    int i = 0;
    for (auto _ : state) {
        ++i;
        benchmark::DoNotOptimize(makeCard(office.context, connection, rules[static_cast<std::size_t>(i % people)],
                                          person(i), {*makeDay(2026, 5, 1), *makeDay(2026, 5, 31)}));
    }
}

BENCHMARK(MonthBare)->Unit(benchmark::kMicrosecond);
BENCHMARK(MonthRead)->Unit(benchmark::kMicrosecond);
BENCHMARK(MonthCard)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
