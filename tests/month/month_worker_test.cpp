#include "month/month_worker.h"

#include "support/desk.h"

namespace kurbo::test {
namespace {

const Day monday = *makeDay(2026, 4, 13);

// A person who works from nine until the hour of the month, in so many months.
PersonMonths worker(std::size_t months) {
    PersonMonths person;
    person.rules.plngRoundMethod = 1;
    person.rules.setBand(u"pstrStartWork", 0, u"09:00");
    person.rules.setBand(u"pstrEndWork", 0, u"20:00");
    person.sums.resize(months);
    return person;
}

MonthJob job(PersonMonths& person, std::size_t month, int leave) {
    return {&person, month, {{monday, {}, at(monday, 9, 0), at(monday, leave, 0), {}, {}, {}}}, {}, {}};
}

} // namespace

// As many months as get a thread of their own, and as many as get none.
TEST(MonthWorker, CalculatesEveryMonthOnceAndTellsTheFirstFailure) {
    for (const std::size_t months : {std::size_t{20}, std::size_t{5000}}) {
        PersonMonths person = worker(months);
        MonthWorker all(monday, months);
        for (std::size_t i = 0; i < months; ++i) all.add(job(person, i, 10 + static_cast<int>(i % 10)));
        all.finish();
        for (std::size_t i = 0; i < months; ++i) ASSERT_EQ(person.sums[i].work, std::chrono::hours(1 + i % 10));

        PersonMonths faulty = worker(months);
        const auto run = [&] {
            MonthWorker failing(monday, months);
            for (std::size_t i = 0; i < months; ++i) failing.add(job(faulty, i, i == 3 ? 8 : 10));
            failing.finish();
        };
        EXPECT_THROW(run(), Fault) << "a leave before its enter";
        const MonthWorker given(monday, months); // given up at once
    }
}

} // namespace kurbo::test
