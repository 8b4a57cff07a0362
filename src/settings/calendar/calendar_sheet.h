#pragma once

#include "engine/work_time.h"
#include "screen/grid/grid_model.h"

#include <functional>

namespace kurbo {

// Columns of a year's days.
enum class CalendarColumn { No, Date, Name, Kind, Id };
inline constexpr int calendarColumns = 5;

// One year of the calendar on the screen: the grid, from row 1 a row a day, is the working copy.
struct CalendarSheet {
    GridModel grid;
    int year = 0;
    // The kinds of holiday that the company has.
    GridList kinds;
    // Told after every change.
    std::function<void()> onEdit;

    [[nodiscard]] QString text(int row, CalendarColumn column) const {
        return grid.TextMatrix(row, static_cast<int>(column));
    }
    // The day of a row; nothing for the heading.
    [[nodiscard]] std::optional<Day> day(int row) const { return parseSlashDate(text(row, CalendarColumn::Date)); }
    void touch() const {
        if (onEdit) onEdit();
    }
};

// The grid's list of the kinds of holiday in this work style; no entry stands for a working day.
[[nodiscard]] QString holidayKinds(const clsWorkTime& style);

// One day as it is stored; empty texts for Null.
struct CalendarRow {
    Day day;
    QString id;
    QString name;
    QString kind;
};
void drawCalendar(CalendarSheet& sheet, int year, const QList<CalendarRow>& days);

// Throws the complaint about the first row that can't be stored.
void checkCalendar(const CalendarSheet& sheet);

// A name takes 30 bytes, in half-width characters.
[[nodiscard]] bool isHolidayName(const QString& text);

// The cells that a person changes: the day's name and its kind of holiday.
class CalendarRules final : public GridRules {
  public:
    explicit CalendarRules(CalendarSheet& sheet) : sheet_(sheet) {}

    [[nodiscard]] bool mayEdit(int row, int column) const override;
    [[nodiscard]] QString refusal(int row, int column, const QString& text) const override;
    void edited(int row, int column) override;
    [[nodiscard]] QString tip(int row, int column) const override;
    [[nodiscard]] bool isJapanese(int column) const override;

  private:
    CalendarSheet& sheet_;
};

} // namespace kurbo
