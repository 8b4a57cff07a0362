#pragma once

#include "engine/work_time.h"
#include "screen/grid/grid_model.h"

#include <span>

namespace kurbo {

// The five pages of the work times as descriptions: four of bands, one for each kind of day, and one of limits.

// Which of the company's choices a row hangs on.
enum class TimeGate {
    Always,
    Flex,
    LegalOver, // of days that are not flexible
    Over,
    Late,
    Early,
    Holiday,
    HolidayLate,
    LegalHoliday,
    LegalLate
};

// What a row is called in the grid, in its tip and in the chart's legend.
struct TimeWords {
    const char16_t* label = u"";
    const char16_t* tip = label;
    const char16_t* legend = label;
};

struct TimeRow {
    const char16_t* field; // "Work" for F_StartWork0, F_EndWork0 and so on; on the page of limits the field itself
    int slots = 0;         // start and end pairs; 0 on the page of limits
    GridColour colour{};
    TimeGate shown = TimeGate::Always;
    TimeGate stored = shown;
    TimeWords words;
    TimeWords flexWords{.label = nullptr}; // on a flexible day, where they differ
};

struct TimePage {
    const char16_t* name; // behind dts, txt, vfg and so on
    const char16_t* word;
    const char16_t* subject; // what its questions call the page
    const char16_t* table;
    const char16_t* codeField;
    const char16_t* nameField;
    const char16_t* reserved; // the name of the record that new ones are made from
    const char16_t* staffField;
    const char16_t* removalFailure;
    struct {
        const char16_t* show;
        const char16_t* check;
        const char16_t* update;
        const char16_t* remove;
    } procedures;
    bool clsWorkTime::*flex;
    int clsWorkTime::*halfHoliday; // 0 where the company has no such day; none on the other pages
    const char16_t* legend;        // its labels in the chart's legend; none on the page of limits
    int firstRow;                  // the rows above are headings
    std::span<const TimeRow> rows;
    // An entry that is left for another one takes its changes along without a question.
    bool asksOnLeaving;

    [[nodiscard]] bool isBands() const { return legend != nullptr; }
};

inline constexpr std::size_t timePageCount = 5;
inline constexpr int weekdayPage = 0;
inline constexpr int adjustPage = 4;
[[nodiscard]] std::span<const TimePage, timePageCount> timePages();

[[nodiscard]] bool isOpen(TimeGate gate, const TimePage& page, const clsWorkTime& style);
[[nodiscard]] bool exists(const TimePage& page, const clsWorkTime& style);
[[nodiscard]] const TimeWords& wordsOf(const TimeRow& row, const TimePage& page, const clsWorkTime& style);

} // namespace kurbo
