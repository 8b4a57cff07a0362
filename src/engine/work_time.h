#pragma once

#include "base/day.h"
#include "engine/bands.h"

#include <array>
#include <optional>

namespace kurbo {

// What a setter refuses; thrown as a Fault with the source "clsWorkTime".
enum class WorkTimeError : std::int32_t {
    Index = static_cast<std::int32_t>(0x80040201),
    NoTime = static_cast<std::int32_t>(0x80040202),
    Order = static_cast<std::int32_t>(0x80040203),
    NoUnit = static_cast<std::int32_t>(0x80040204),
    Bounds = 9, // an index below 0
};

// All work rules of one person, and every quantity of a day as the overlap of the stay with bands. It reads nothing but
// its own properties. Results are whole minutes, rounded down once from a sum of seconds, or a count of 0 or 1. Set
// pdtmEnter, pdtmLeave and plngNextDayType, then ask in any order.
class clsWorkTime final {
  public:
    // --- Properties without a rule of their own.
    bool pbleFlexTime = false;
    int plngAmHolidayWork = 1; // 0 no AM holiday; work on it is 1 early work, 2 holiday work, 3 not counted
    bool pbleAmFlexTime = false;
    int plngPmHolidayWork = 1; // 0 no PM holiday; work on it is 1 overtime, 2 holiday work, 3 not counted
    bool pblePmFlexTime = false;
    int plngRoundMethod = 0; // 0 each punch, 1 the month's sums
    int plngRoundEnter = 1;  // 0 down, 1 up
    int plngRoundLeave = 0;
    int plngRoundHour = 0;
    int plngCountUnit = 1; // 0 decimal, 1 h:mm
    bool pbleEnableDiff = false;
    bool pbleEnableLegalOver = false;
    bool pbleEnableOver = true;
    bool pbleEnableLate = true;
    bool pbleEnableEarly = true;
    bool pbleEnableHoliday = true;
    bool pbleEnableHolidayLate = true;
    bool pbleEnableLegalHoliday = false;
    bool pbleEnableLegalLate = false;
    bool pbleEnableAbsent = true;
    bool pbleEnablePaid = true;
    bool pbleEnableSpecial = true;
    bool pbleEnableCompens = true;
    bool pbleEnableAbsentDay = true;
    bool pbleEnableLateEnter = true;
    bool pbleEnableEarlyLeave = true;
    Seconds plngEnterDelay{};
    Seconds plngLeaveGain{};
    float psngPaidTotal = 0; // days

    // --- Properties with a rule. A refused value leaves the old one.
    // "HH:MM" into minutes.
    void pstrStandardTime(QStringView text);
    void pstrAmStandardTime(QStringView text);
    void pstrPmStandardTime(QStringView text);
    [[nodiscard]] Minutes plngStandardTime() const { return standard(DayType::Weekday); }
    [[nodiscard]] Minutes plngAmStandardTime() const { return standard(DayType::AmHoliday); }
    [[nodiscard]] Minutes plngPmStandardTime() const { return standard(DayType::PmHoliday); }
    // Not 0.
    void plngRoundUnit(Minutes unit);
    [[nodiscard]] Minutes plngRoundUnit() const { return roundUnit_; }
    // 1 to 27, or 31 for the end of the month.
    void plngCloseDay(int day);
    [[nodiscard]] int plngCloseDay() const { return closeDay_; }
    // A band's start and end by its property's name ("pstrStartWork") or by its kind. The end lies behind the start, or
    // is "00:00", the end of the day; so the start is set first.
    void setBand(QStringView property, int index, QStringView text);
    void setStart(DayType day, BandKind kind, int index, QStringView text);
    void setEnd(DayType day, BandKind kind, int index, QStringView text);
    [[nodiscard]] const BandList& bands(DayType day, BandKind kind) const;

    // The stay of the day in hand; enter first. With plngRoundMethod 0 the calculations use rounded times. A leave that
    // lies before the enter is refused, but its raw value is kept.
    void pdtmEnter(std::optional<Moment> enter);
    void pdtmLeave(std::optional<Moment> leave);
    // 0 weekday, 1 holiday, 2 AM holiday, 3 PM holiday: the day after the one in hand. Also sets the border.
    void plngNextDayType(int type);

    // Times since midnight, noTimeOfDay while unset. The end of business hours at "00:00" is 0.
    [[nodiscard]] Seconds startBusiness(DayType day) const { return business_[index(day)].start; }
    [[nodiscard]] Seconds endBusiness(DayType day) const { return business_[index(day)].end; }
    // The time at which the next day begins.
    [[nodiscard]] Seconds borderTime() const { return border_; }
    // The time at which a day of that kind begins: the start of its first band of flexible or fixed work, -1 without
    // one.
    [[nodiscard]] Seconds borderOf(DayType day) const;

    // --- Results.
    [[nodiscard]] Minutes WorkTime() const;
    [[nodiscard]] Minutes AmWorkTime() const;
    [[nodiscard]] Minutes PmWorkTime() const;
    [[nodiscard]] Minutes LegalOverWork() const;
    [[nodiscard]] Minutes OverWork() const;
    [[nodiscard]] Minutes LateWork() const;
    [[nodiscard]] Minutes EarlyWork() const;
    [[nodiscard]] Minutes AmLegalOverWork() const;
    [[nodiscard]] Minutes AmOverWork() const;
    [[nodiscard]] Minutes AmLateWork() const;
    [[nodiscard]] Minutes AmEarlyWork() const;
    [[nodiscard]] Minutes PmLegalOverWork() const;
    [[nodiscard]] Minutes PmOverWork() const;
    [[nodiscard]] Minutes PmLateWork() const;
    [[nodiscard]] Minutes PmEarlyWork() const;
    [[nodiscard]] Minutes AbsentHour() const;
    [[nodiscard]] Minutes AmAbsentHour() const;
    [[nodiscard]] Minutes PmAbsentHour() const;
    [[nodiscard]] Count LateEnter() const;
    [[nodiscard]] Count AmLateEnter() const;
    [[nodiscard]] Count PmLateEnter() const;
    [[nodiscard]] Count EarlyLeave() const;
    [[nodiscard]] Count AmEarlyLeave() const;
    [[nodiscard]] Count PmEarlyLeave() const;
    [[nodiscard]] Minutes HolidayWork() const;
    [[nodiscard]] Minutes HolidayLateWork() const;

  private:
    static constexpr std::size_t index(DayType day) { return static_cast<std::size_t>(day); }
    [[nodiscard]] Minutes standard(DayType day) const { return standard_[index(day)]; }
    void setStandard(DayType day, QStringView text, const char16_t* failure);
    void keepBusiness(DayType day, BandKind kind, Seconds end);
    [[nodiscard]] Moment rounded(Moment time, int direction) const;
    void placeLeave();

    [[nodiscard]] Seconds overlap(Seconds dayStart, const BandList& list) const;
    [[nodiscard]] Seconds walked(const BandList& list, Seconds shift = {}) const;
    // Cold: few stays go over midnight, and the others are not to pay for it.
    [[nodiscard, gnu::cold]] Seconds walkedBeyondFirst(const BandList& list, Seconds shift) const;
    [[nodiscard]] Minutes workTime(DayType day, bool flexible) const;
    [[nodiscard]] Minutes overWork(DayType day, DayType afterAmHoliday) const;
    [[nodiscard]] Minutes absentHour(DayType day, bool flexible) const;
    [[nodiscard]] Count lateEnter(DayType day) const;
    [[nodiscard]] Count earlyLeave(DayType day) const;

    std::array<std::array<BandList, bandKindCount>, dayTypeCount> bands_;
    std::array<Minutes, dayTypeCount> standard_{Minutes(480), Minutes(0), Minutes(240), Minutes(240)};
    std::array<Band, dayTypeCount> business_;
    Seconds border_ = noTimeOfDay;
    Minutes roundUnit_{30};
    int closeDay_ = 31;
    int nextDayType_ = 0;
    Moment rawEnter_{};
    Moment rawLeave_{};
    Moment workingLeave_{};
    // The stay in seconds since the midnight before the working enter; the last midnight at or before the leave. The
    // raw enter in seconds since its own midnight, and the raw leave since that.
    Moment enterDay_{};
    Seconds enter_{};
    Seconds leave_{};
    Seconds lastDay_{};
    Seconds rawEnterOfDay_{};
    Seconds rawLeaveOfDay_{};
};

// A time moved to a multiple of `unit`, measured from the top of its hour: direction 0 down, 1 up, any other not at
// all. `unit` above 0.
[[nodiscard]] Moment RoundPunch(Moment time, int direction, Minutes unit);

} // namespace kurbo
