#pragma once

#include <chrono>
#include <cstdint>

namespace kurbo {

// Lengths of time in whole minutes and seconds, 32 bits wide: a stay is shorter than 68 years.
using Minutes = std::chrono::duration<std::int32_t, std::ratio<60>>;
using Seconds = std::chrono::duration<std::int32_t>;

// A number of one unit. Amounts of the same unit are added and compared; those of two units don't meet.
template <typename Unit>
class Amount final {
  public:
    constexpr Amount() = default;
    constexpr explicit Amount(std::int32_t count) : count_(count) {}
    [[nodiscard]] constexpr std::int32_t count() const { return count_; }

    constexpr Amount& operator+=(Amount other) {
        count_ += other.count_;
        return *this;
    }
    [[nodiscard]] friend constexpr Amount operator+(Amount one, Amount other) { return one += other; }
    [[nodiscard]] friend constexpr Amount operator-(Amount one, Amount other) {
        return Amount(one.count_ - other.count_);
    }
    [[nodiscard]] friend constexpr bool operator==(Amount one, Amount other) = default;
    [[nodiscard]] friend constexpr auto operator<=>(Amount one, Amount other) { return one.count_ <=> other.count_; }

  private:
    std::int32_t count_ = 0;
};

// Days on which something was so, and how often it was.
using Count = Amount<struct CountUnit>;
// Leave is taken in half days; a balance has hundredths of them.
using HalfDays = Amount<struct HalfDayUnit>;
using DayHundredths = Amount<struct DayHundredthUnit>;

[[nodiscard]] constexpr DayHundredths hundredths(HalfDays days) {
    return DayHundredths(days.count() * 50);
}

// What columns and paper are measured in, whatever draws them.
using Twips = Amount<struct TwipUnit>;
inline constexpr int twipsPerInch = 1440;
[[nodiscard]] constexpr int dots(Twips length, int dotsPerInch) {
    return length.count() * dotsPerInch / twipsPerInch;
}

} // namespace kurbo
