#pragma once

#include "base/units.h"

#include <QString>
#include <QStringView>

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

namespace kurbo {

enum class DayType { Weekday, Holiday, AmHoliday, PmHoliday };
inline constexpr std::size_t dayTypeCount = 4;

enum class BandKind { Work, Core, Flex, LegalOver, Over, Late, AfterLate, Early };
inline constexpr std::size_t bandKindCount = 8;

inline constexpr Seconds wholeDay = std::chrono::hours(24);
// Of a time that isn't set.
inline constexpr Seconds noTimeOfDay{-1};

// "HH:MM" from "00:00" to "23:59", since midnight; nothing for any other text.
[[nodiscard]] std::optional<Seconds> timeOfDay(QStringView text);

// Times since midnight. An end at "00:00" is the end of the day.
struct Band {
    Seconds start = noTimeOfDay;
    Seconds end = noTimeOfDay;
    [[nodiscard]] bool isEmpty() const { return start == noTimeOfDay || end == noTimeOfDay; }
};

// Up to four bands; the walk over them ends at the first empty one, whatever comes behind it.
class BandList final {
  public:
    static constexpr int capacity = 4;
    [[nodiscard]] const Band& at(int index) const { return bands_[static_cast<std::size_t>(index)]; }
    // How much of a stay lies in the bands, all since the midnight of the bands.
    [[nodiscard]] Seconds overlap(Seconds enter, Seconds leave) const {
        const std::int32_t from = enter.count();
        const std::int32_t to = leave.count();
        std::int32_t total = 0;
        for (std::size_t i = 0; i < starts_.size(); ++i)
            total += std::max(0, std::min(to, ends_[i]) - std::max(from, starts_[i]));
        return Seconds(total);
    }
    [[nodiscard]] Seconds length() const { return length_; }
    void setStart(int index, Seconds start) { set(index, start, at(index).end); }
    void setEnd(int index, Seconds end) { set(index, at(index).start, end); }

  private:
    void set(int index, Seconds start, Seconds end);

    std::array<Band, capacity> bands_;
    // The bands of the walk side by side, as bare seconds, so that all four are compared at once; places behind them
    // have no length.
    std::array<std::int32_t, capacity> starts_{};
    std::array<std::int32_t, capacity> ends_{};
    Seconds length_{};
};

// One pair of band properties, as "pstrStartWork" and "pstrEndWork", with the words of its failures.
struct BandProperty {
    const char16_t* suffix; // behind "pstrStart" and "pstrEnd"
    DayType day;
    BandKind kind;
    const char16_t* startName;
    const char16_t* endName;
    const char16_t* orderText; // behind the end's name when the end lies before the start
};

// All 28 pairs. A holiday has no core, flexible, legal overtime and overtime bands.
[[nodiscard]] const BandProperty* bandProperty(DayType day, BandKind kind);
// By the whole name, "pstrStartAmAfterLate" or "pstrEndAmAfterLate"; none for an unknown name.
[[nodiscard]] const BandProperty* bandPropertyNamed(QStringView name);

} // namespace kurbo
