#include "base/clock.h"

#include <QDateTime>

namespace kurbo {

Moment SystemClock::now() const {
    const QDateTime local = QDateTime::currentDateTime();
    const QDate date = local.date();
    const QTime time = local.time();
    const std::chrono::year_month_day day{std::chrono::year{date.year()},
                                          std::chrono::month{static_cast<unsigned>(date.month())},
                                          std::chrono::day{static_cast<unsigned>(date.day())}};
    return at(Day{day}, time.hour(), time.minute(), time.second());
}

ShiftedClock::ShiftedClock(Day today) : shift_(today - system_.today()) {}

Moment ShiftedClock::now() const {
    return system_.now() + shift_;
}

} // namespace kurbo
