#pragma once

#include "settings/calendar/calendar_sheet.h"
#include "settings/calendar/holiday_file.h"

namespace kurbo {

// Columns of the rules by which days off are set.
enum class HolidayColumn { No, Method, Weekday, From, To, Name, Kind };
inline constexpr int holidayColumns = 7;
inline constexpr int holidayRules = 50;

// The rules for the year that the calendar shows: from row 1 a row a rule. They are stored nowhere.
struct HolidaySheet {
    GridModel grid;
    int year = 0;

    [[nodiscard]] QString text(int row, HolidayColumn column) const {
        return grid.TextMatrix(row, static_cast<int>(column));
    }
    // The day that a column's "mm/dd" means.
    [[nodiscard]] std::optional<Day> day(int row, HolidayColumn column) const;
};

// Empty rules for the calendar's year, with its kinds of holiday.
void SetupGrid(HolidaySheet& sheet, const CalendarSheet& calendar);

// Puts the holidays into rows without a method, from the first; what does not fit is left out.
void fillHolidays(HolidaySheet& sheet, const QList<HolidayLine>& holidays);

// Throws the complaint about the first rule that isn't whole.
void checkRules(const HolidaySheet& sheet);

// Sets names and kinds in the calendar, rule by rule; an empty one clears. The calendar's rows are marked, and it is
// told when a day was met.
void writeRules(const HolidaySheet& sheet, CalendarSheet& calendar);

// What a rule sets on its days.
struct HolidayMark {
    QString name;
    QString kind;
};
// The days of a weekday, 1 Sunday to 7 Saturday: the `nth` of each month, or all for 0.
void WriteWeekday(CalendarSheet& calendar, int nth, int weekday, const HolidayMark& mark);
// The days from `start` to `end`, both included.
void WritePeriod(CalendarSheet& calendar, Day start, Day end, const HolidayMark& mark);

// What may be typed into the rules.
class HolidayCells final : public GridRules {
  public:
    explicit HolidayCells(const HolidaySheet& sheet) : sheet_(sheet) {}

    [[nodiscard]] bool mayEdit(int row, int column) const override;
    [[nodiscard]] QString refusal(int row, int column, const QString& text) const override;
    [[nodiscard]] QString tip(int row, int column) const override;
    [[nodiscard]] bool isJapanese(int column) const override;

  private:
    const HolidaySheet& sheet_;
};

} // namespace kurbo
