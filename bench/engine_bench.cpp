// All quantities of a day against a bare loop of integer overlaps over the same nine bands, for a fixed and a flexible
// rule set.

#include "engine/work_time.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>

namespace {

using namespace kurbo;

struct BandText {
    const char16_t* name;
    int index;
    const char16_t* start;
    const char16_t* end;
};

constexpr std::array bandTexts{
    BandText{u"Work", 0, u"09:00", u"12:00"},      BandText{u"Work", 1, u"13:00", u"17:30"},
    BandText{u"LegalOver", 0, u"17:30", u"18:00"}, BandText{u"Over", 0, u"18:00", u"22:00"},
    BandText{u"Over", 1, u"12:00", u"13:00"},      BandText{u"Late", 0, u"22:00", u"00:00"},
    BandText{u"Late", 1, u"00:00", u"05:00"},      BandText{u"AfterLate", 0, u"05:00", u"09:00"},
    BandText{u"Early", 0, u"05:00", u"09:00"},
};

clsWorkTime fixedRules() {
    clsWorkTime rules;
    rules.plngRoundMethod = 1;
    for (const auto& [name, index, start, end] : bandTexts) {
        rules.setBand(QStringLiteral("pstrStart") + QString::fromUtf16(name), index, QString::fromUtf16(start));
        rules.setBand(QStringLiteral("pstrEnd") + QString::fromUtf16(name), index, QString::fromUtf16(end));
    }
    return rules;
}

clsWorkTime flexibleRules() {
    clsWorkTime rules = fixedRules();
    rules.pbleFlexTime = true;
    for (const auto& [name, start, end] : {std::tuple{u"Core", u"10:00", u"15:00"}, {u"Flex", u"07:00", u"10:00"}}) {
        rules.setBand(QStringLiteral("pstrStart") + QString::fromUtf16(name), 0, QString::fromUtf16(start));
        rules.setBand(QStringLiteral("pstrEnd") + QString::fromUtf16(name), 0, QString::fromUtf16(end));
    }
    return rules;
}

void BareOverlaps(benchmark::State& state) {
    std::array<Band, bandTexts.size()> bands{};
    for (std::size_t i = 0; i < bands.size(); ++i) {
        const auto end = *timeOfDay(QString::fromUtf16(bandTexts[i].end));
        bands[i] = {*timeOfDay(QString::fromUtf16(bandTexts[i].start)), end == Seconds{} ? wholeDay : end};
    }
    std::int32_t shift = 0;
    for (auto _ : state) {
        const std::int32_t enter = 8 * 3600 + (shift = (shift + 61) % 3600);
        const std::int32_t leave = enter + 10 * 3600;
        std::int32_t total = 0;
        for (const Band& band : bands)
            total += std::max(0, std::min(leave, band.end.count()) - std::max(enter, band.start.count()));
        benchmark::DoNotOptimize(total / 60);
    }
    state.SetItemsProcessed(state.iterations());
}

void allQuantities(benchmark::State& state, clsWorkTime rules) {
    const Day day = *makeDay(2026, 4, 15);
    std::int32_t shift = 0;
    for (auto _ : state) {
        const Moment enter = at(day, 8, 0) + std::chrono::seconds(shift = (shift + 61) % 3600);
        rules.pdtmEnter(enter);
        rules.pdtmLeave(enter + std::chrono::hours(10));
        rules.plngNextDayType(0);
        benchmark::DoNotOptimize(rules.WorkTime() + rules.LegalOverWork() + rules.OverWork() + rules.LateWork() +
                                 rules.EarlyWork() + rules.AbsentHour());
        benchmark::DoNotOptimize(rules.LateEnter() + rules.EarlyLeave());
    }
    state.SetItemsProcessed(state.iterations());
}

void FixedDay(benchmark::State& state) {
    allQuantities(state, fixedRules());
}

void FlexibleDay(benchmark::State& state) {
    allQuantities(state, flexibleRules());
}

BENCHMARK(BareOverlaps);
BENCHMARK(FixedDay);
BENCHMARK(FlexibleDay);

} // namespace

BENCHMARK_MAIN();
