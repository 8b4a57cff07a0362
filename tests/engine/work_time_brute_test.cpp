#include "engine/work_time.h"
#include "support/desk.h"

#include <random>
#include <set>
#include <vector>

namespace kurbo::test {
namespace {

using Span = std::pair<int, int>; // minutes of the day

class Brute : public ::testing::Test {
  protected:
    int dice(int from, int to) { return from + static_cast<int>(random() % static_cast<unsigned>(to - from + 1)); }

    static QString clock(int minute) {
        return u"%1:%2"_q.arg(minute / 60 % 24, 2, 10, QChar(u'0')).arg(minute % 60, 2, 10, QChar(u'0'));
    }

    // One to four bands that follow each other; the last may end with the day.
    std::vector<Span> randomBands() {
        std::set<int> cuts;
        const auto wanted = static_cast<std::size_t>(2 * dice(1, 4));
        while (cuts.size() < wanted) cuts.insert(dice(0, 24 * 60));
        std::vector<Span> bands;
        for (auto cut = cuts.begin(); cut != cuts.end();) {
            const int start = *cut++;
            bands.emplace_back(start, *cut++);
        }
        return bands;
    }

    static void set(clsWorkTime& rules, DayType day, BandKind kind, const std::vector<Span>& bands) {
        for (std::size_t i = 0; i < bands.size(); ++i) {
            rules.setStart(day, kind, static_cast<int>(i), clock(bands[i].first));
            rules.setEnd(day, kind, static_cast<int>(i), clock(bands[i].second));
        }
    }

    // Every second of the stay that lies in a band on its own date.
    static Minutes counted(Moment enter, Moment leave, const std::vector<Span>& bands) {
        int seconds = 0;
        for (Moment second = enter; second < leave; second += std::chrono::seconds(1)) {
            const auto minute = (second - dayOf(second)).count() / 60;
            for (const auto& [start, end] : bands)
                if (minute >= start && minute < end) ++seconds;
        }
        return Minutes(seconds / 60);
    }

    std::mt19937 random{20260415};
};

} // namespace

TEST_F(Brute, EverySecondIsCountedOnce) {
    for (int round = 0; round < 60; ++round) {
        clsWorkTime rules;
        rules.plngRoundMethod = 1;
        const auto work = randomBands();
        const auto late = randomBands();
        set(rules, DayType::Weekday, BandKind::Work, work);
        set(rules, DayType::Holiday, BandKind::Late, late);
        const Moment enter = at(*makeDay(2026, 4, 15), 0, 0) + std::chrono::seconds(dice(0, 86399));
        const Moment leave = enter + std::chrono::seconds(dice(0, 2 * 86400));
        rules.pdtmEnter(enter);
        rules.pdtmLeave(leave);
        EXPECT_EQ(rules.WorkTime(), counted(enter, leave, work)) << "round " << round;
        EXPECT_EQ(rules.HolidayLateWork(), counted(enter, leave, late)) << "round " << round;
    }
}

} // namespace kurbo::test
