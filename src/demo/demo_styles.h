#pragma once

#include <QStringView>

#include <array>
#include <optional>

namespace kurbo {

enum class Shift { Days, Nights };
enum class DayKind { Weekday, Holiday, AmHoliday, PmHoliday };

// Minutes of the day; a band that is not in use has no length.
struct WorkBand {
    int start = 0;
    int end = 0; // 1440 for midnight
    [[nodiscard]] constexpr bool inUse() const { return end > start; }
};
using WorkBands = std::array<WorkBand, 4>;

// One named set of bands. In a flexible set `work` is the core time.
struct Style {
    QStringView name;
    WorkBands work;
    WorkBands flex;
    WorkBands legalOver;
    WorkBands over;
    WorkBands late;
    WorkBands afterLate;
    WorkBands early;
};

[[nodiscard]] const Style& styleOf(bool flexible, Shift shift, DayKind kind);

// When people of a shift come and go, in minutes of the day; flexible people shift the whole stay.
struct ShiftTimes {
    int start;
    int end;
    int earliest;   // how much before the start a flexible person may come
    int coreStart;  // later is late
    int coreEnd;    // before it is early
    int secondHalf; // work starts after a free morning
    int firstEnd;   // work ends before a free afternoon
};

[[nodiscard]] const ShiftTimes& timesOf(bool flexible, Shift shift);

inline constexpr int roundUnit = 15;

// Upper limits of a month, in minutes; nothing where there is none.
struct Limits {
    std::optional<int> legalOver{};
    std::optional<int> over{};
    std::optional<int> late{};
    std::optional<int> early{};
    std::optional<int> holiday{};
    std::optional<int> holidayLate{};
    std::optional<int> legalHoliday{};
    std::optional<int> legalLate{};
};
enum class Adjust { Agreement = 1, Unlimited = 2 };
[[nodiscard]] const Limits& limitsOf(Adjust adjust);

} // namespace kurbo
