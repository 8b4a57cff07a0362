#pragma once

#include "month/calendar_days.h"
#include "month/day_loop.h"

#include <algorithm>
#include <span>
#include <vector>

namespace kurbo {

// The facts of a row, whatever else it holds.
[[nodiscard]] inline DayFacts& factsIn(DayFacts& row) {
    return row;
}

// Puts the card rows of one person, wherever they come from, into the days of a period: a day stands there once for
// each of its rows, and once without any. The calendar outlives it.
template <typename Row>
class DayMerger final {
  public:
    DayMerger(const std::vector<StoredDay>& calendar, Period period) : calendar_(calendar) { begin(period); }

    // Another period; the rows of the last one go.
    void begin(Period period) {
        const auto first = std::ranges::lower_bound(calendar_, period.from, {}, &StoredDay::date);
        const auto end = std::ranges::upper_bound(first, calendar_.end(), period.to, {}, &StoredDay::date);
        missing_ = std::span(first, end);
        const bool goesOn = end != calendar_.end() && end->date == period.to + std::chrono::days(1);
        next_ = goesOn ? end->type : QChar();
        days_.clear();
        days_.reserve(missing_.size());
        last_.reset();
    }

    // The place of the next row, to be filled. Rows come in the order of their days, which lie in the period. Filled in
    // their place: rows built aside and moved in show in the time of a card.
    Row& rowOn(const StoredDay& day) {
        while (!missing_.empty() && missing_.front().date < day.date) addMissing();
        if (!missing_.empty() && missing_.front().date == day.date) missing_ = missing_.subspan(1);
        last_ = days_.size();
        return add(day);
    }

    // All days of the period, after the last row; they may be moved away.
    [[nodiscard]] std::vector<Row>& finish() {
        while (!missing_.empty()) addMissing();
        return days_;
    }

    // The calendar type of the day behind the period, 0 when the calendar ends with it.
    [[nodiscard]] QChar next() const { return next_; }
    // The place among the days of the last row that came; nothing for a period without rows.
    [[nodiscard]] std::optional<std::size_t> last() const { return last_; }

  private:
    Row& add(const StoredDay& day) {
        Row& row = days_.emplace_back();
        factsIn(row).date = day.date;
        factsIn(row).type = day.type;
        return row;
    }
    void addMissing() {
        add(missing_.front());
        missing_ = missing_.subspan(1);
    }

    const std::vector<StoredDay>& calendar_;
    std::span<const StoredDay> missing_; // the days without a row so far
    std::vector<Row> days_;
    std::optional<std::size_t> last_;
    QChar next_;
};

// What the columns from `column` on hold: F_Enter, F_Leave, F_Paid, F_Special, F_Compens.
inline void readFacts(DayFacts& day, const Rows& rows, int column) {
    day.enter = rows.moment(column);
    day.leave = rows.moment(column + 1);
    day.paid = codeIn(rows, column + 2);
    day.special = codeIn(rows, column + 3);
    day.compens = codeIn(rows, column + 4);
}

} // namespace kurbo
