#pragma once

#include "engine/hours.h"
#include "store/connection.h"

#include <string>
#include <string_view>
#include <vector>

namespace kurbo {

// A day of the calendar as stored; a type of 0 means none.
struct StoredDay {
    std::string id; // "yyyymmdd"
    Day date;
    QChar type;
};

// The days of the span in their order, and the one behind it, whose kind tells where the last day ends. Throws a Fault.
[[nodiscard]] std::vector<StoredDay> readCalendar(Connection& connection, Period span);

// Finds the days of rows that come in their order. The days outlive it.
class CalendarWalk final {
  public:
    explicit CalendarWalk(const std::vector<StoredDay>& days) : days_(days) {}
    // The day of that id; none when the calendar lacks it.
    [[nodiscard]] const StoredDay* to(std::string_view id) {
        while (passed_ < days_.size() && days_[passed_].id < id) ++passed_;
        return passed_ < days_.size() && days_[passed_].id == id ? &days_[passed_] : nullptr;
    }
    // How many days lie behind.
    [[nodiscard]] std::size_t passed() const { return passed_; }

  private:
    const std::vector<StoredDay>& days_;
    std::size_t passed_ = 0;
};

// The first letter of a stored code, 0 for an empty one.
[[nodiscard]] QChar codeIn(const Rows& rows, int column);

} // namespace kurbo
