#include "settings/work_time/time_pages.h"

namespace kurbo {
namespace {

constexpr GridColour yellow{.red = 255, .green = 255, .blue = 128};
constexpr GridColour green{.red = 128, .green = 255, .blue = 128};
constexpr GridColour blue{.red = 128, .green = 128, .blue = 255};
constexpr GridColour red{.red = 255, .green = 128, .blue = 128};
constexpr GridColour orange{.red = 255, .green = 192, .blue = 128};
constexpr GridColour cyan{.red = 128, .green = 255, .blue = 255};

using Gate = TimeGate;

constexpr TimeRow same(const char16_t* field, int slots, GridColour colour, Gate gate, TimeWords words) {
    return {.field = field, .slots = slots, .colour = colour, .shown = gate, .stored = gate, .words = words};
}

// The rows of the three kinds of day that have the same ones, by their slots.
constexpr std::array<TimeRow, 7> dayRows(std::array<int, 7> slots) {
    std::array rows{
        same(u"Work", 0, yellow, Gate::Always, {.label = u"就業時間", .tip = u"就業時間", .legend = u"就業時間"}),
        same(u"Flex", 0, green, Gate::Flex,
             {.label = u"ﾌﾚｷｼﾌﾞﾙﾀｲﾑ", .tip = u"フレキシブルタイム", .legend = u"ﾌﾚｷｼﾌﾞﾙ"}),
        same(u"LegalOver", 0, green, Gate::LegalOver,
             {.label = u"法内残業", .tip = u"法定内残業", .legend = u"法内残業"}),
        same(u"Over", 0, blue, Gate::Over, {.label = u"普通残業", .tip = u"普通残業", .legend = u"普通残業"}),
        same(u"Late", 0, red, Gate::Late, {.label = u"深夜残業", .tip = u"深夜残業", .legend = u"深夜残業"}),
        same(u"AfterLate", 0, orange, Gate::Over, {.label = u"明け残業", .tip = u"明け残業", .legend = u"明け残業"}),
        same(u"Early", 0, cyan, Gate::Early, {.label = u"早出勤務", .tip = u"早出勤務", .legend = u"早出勤務"}),
    };
    for (std::size_t i = 0; i < rows.size(); ++i) rows[i].slots = slots[i];
    rows[0].flexWords = {.label = u"ｺｱﾀｲﾑ", .tip = u"コアタイム", .legend = u"ｺｱ"};
    return rows;
}

constexpr auto weekdayRows = dayRows({3, 4, 1, 3, 3, 1, 1});
constexpr auto amRows = dayRows({2, 2, 1, 3, 3, 1, 2});
constexpr auto pmRows = dayRows({2, 2, 1, 4, 3, 1, 1});

// What is worked after a night is shown with the overtime, and stored with the work of the holiday.
constexpr TimeRow holidayAfterLate{
    .field = u"AfterLate",
    .slots = 1,
    .colour = orange,
    .shown = Gate::Over,
    .stored = Gate::Holiday,
    .words = {.label = u"明け残業", .tip = u"明け残業", .legend = u"明け残業"},
};

constexpr std::array holidayRows{
    same(u"Work", 3, yellow, Gate::Holiday, {.label = u"休日勤務", .tip = u"休日勤務", .legend = u"休日勤務"}),
    same(u"Late", 3, red, Gate::HolidayLate, {.label = u"休日深夜", .tip = u"休日深夜", .legend = u"休日深夜"}),
    holidayAfterLate,
    same(u"Early", 1, cyan, Gate::Holiday, {.label = u"早出勤務", .tip = u"早出勤務", .legend = u"早出勤務"}),
};

constexpr TimeRow limit(const char16_t* field, const char16_t* label, Gate shown, Gate stored) {
    return {.field = field, .slots = 0, .colour = {}, .shown = shown, .stored = stored, .words = {.label = label}};
}

// The limit of early work is stored with the overtime.
constexpr std::array limitRows{
    limit(u"F_LegalOver", u"法内残業", Gate::LegalOver, Gate::LegalOver),
    limit(u"F_Over", u"普通残業", Gate::Over, Gate::Over),
    limit(u"F_Late", u"深夜残業", Gate::Late, Gate::Late),
    limit(u"F_Early", u"早出勤務", Gate::Early, Gate::Over),
    limit(u"F_Holiday", u"休日出勤", Gate::Holiday, Gate::Holiday),
    limit(u"F_HolidayLate", u"休日深夜", Gate::HolidayLate, Gate::HolidayLate),
    limit(u"F_LegalHoliday", u"法休出勤", Gate::LegalHoliday, Gate::LegalHoliday),
    limit(u"F_LegalLate", u"法休深夜", Gate::LegalLate, Gate::LegalLate),
};

constexpr std::array<TimePage, timePageCount> pages{
    TimePage{.name = u"Weekday",
             .word = u"平日勤務",
             .subject = u"平日勤務時間",
             .table = u"M03_WeekdayStyle",
             .codeField = u"F_WeekdayCode",
             .nameField = u"F_WeekdayName",
             .reserved = u"新しい勤務時間",
             .staffField = u"F_Weekday",
             .removalFailure = u"平日勤務時間設定の削除に失敗しました。",
             .procedures = {u"ShowWeekday", u"CheckWeekday", u"UpdateWeekday", u"DeleteWeekday"},
             .flex = &clsWorkTime::pbleFlexTime,
             .halfHoliday = nullptr,
             .legend = u"lblW",
             .firstRow = 2,
             .rows = weekdayRows,
             .asksOnLeaving = true},
    TimePage{.name = u"Holiday",
             .word = u"休日勤務",
             .subject = u"休日勤務時間",
             .table = u"M04_HolidayStyle",
             .codeField = u"F_HolidayCode",
             .nameField = u"F_HolidayName",
             .reserved = u"新しい勤務時間",
             .staffField = u"F_Holiday",
             .removalFailure = u"休日勤務時間設定の削除に失敗しました。",
             .procedures = {u"ShowHoliday", u"CheckHoliday", u"UpdateHoliday", u"DeleteHoliday"},
             .flex = nullptr,
             .halfHoliday = nullptr,
             .legend = u"lblH",
             .firstRow = 2,
             .rows = holidayRows,
             .asksOnLeaving = true},
    TimePage{.name = u"AmHoliday",
             .word = u"午前休日勤務",
             .subject = u"午前休日勤務時間",
             .table = u"M05_AmHolidayStyle",
             .codeField = u"F_AmHolidayCode",
             .nameField = u"F_AmHolidayName",
             .reserved = u"新しい勤務時間",
             .staffField = u"F_AmHoliday",
             .removalFailure = u"午前休日勤務時間設定の削除に失敗しました。",
             .procedures = {u"ShowAmHoliday", u"CheckAmHoliday", u"UpdateAmHoliday", u"DeleteAmHoliday"},
             .flex = &clsWorkTime::pbleAmFlexTime,
             .halfHoliday = &clsWorkTime::plngAmHolidayWork,
             .legend = u"lblAH",
             .firstRow = 2,
             .rows = amRows,
             .asksOnLeaving = true},
    TimePage{.name = u"PmHoliday",
             .word = u"午後休日勤務",
             .subject = u"午後休日勤務時間",
             .table = u"M06_PmHolidayStyle",
             .codeField = u"F_PmHolidayCode",
             .nameField = u"F_PmHolidayName",
             .reserved = u"新しい勤務時間",
             .staffField = u"F_PmHoliday",
             .removalFailure = u"午後休日勤務時間設定の削除に失敗しました。",
             .procedures = {u"ShowPmHoliday", u"CheckPmHoliday", u"UpdatePmHoliday", u"DeletePmHoliday"},
             .flex = &clsWorkTime::pblePmFlexTime,
             .halfHoliday = &clsWorkTime::plngPmHolidayWork,
             .legend = u"lblPH",
             .firstRow = 2,
             .rows = pmRows,
             .asksOnLeaving = true},
    // A limit that can't be deleted is told in the words of the page before.
    TimePage{.name = u"Adjust",
             .word = u"時間調整",
             .subject = u"時間調整",
             .table = u"M07_AdjustHours",
             .codeField = u"F_AdjustCode",
             .nameField = u"F_AdjustName",
             .reserved = u"新しい時間調整",
             .staffField = u"F_AdjustHours",
             .removalFailure = u"午後休日勤務時間設定の削除に失敗しました。",
             .procedures = {u"ShowAdjust", u"CheckAdjust", u"UpdateAdjust", u"DeleteAdjust"},
             .flex = &clsWorkTime::pbleFlexTime,
             .halfHoliday = nullptr,
             .legend = nullptr,
             .firstRow = 1,
             .rows = limitRows,
             .asksOnLeaving = false},
};

bool isFlexible(const TimePage& page, const clsWorkTime& style) {
    return page.flex && style.*page.flex;
}

} // namespace

std::span<const TimePage, timePageCount> timePages() {
    return pages;
}

bool isOpen(TimeGate gate, const TimePage& page, const clsWorkTime& style) {
    switch (gate) {
    case Gate::Always:
        return true;
    case Gate::Flex:
        return isFlexible(page, style);
    case Gate::LegalOver:
        return !isFlexible(page, style) && style.pbleEnableLegalOver;
    case Gate::Over:
        return style.pbleEnableOver;
    case Gate::Late:
        return style.pbleEnableLate;
    case Gate::Early:
        return style.pbleEnableEarly;
    case Gate::Holiday:
        return style.pbleEnableHoliday;
    case Gate::HolidayLate:
        return style.pbleEnableHolidayLate;
    case Gate::LegalHoliday:
        return style.pbleEnableLegalHoliday;
    case Gate::LegalLate:
        return style.pbleEnableLegalLate;
    }
    return false;
}

bool exists(const TimePage& page, const clsWorkTime& style) {
    return !page.halfHoliday || style.*page.halfHoliday != 0;
}

const TimeWords& wordsOf(const TimeRow& row, const TimePage& page, const clsWorkTime& style) {
    return row.flexWords.label && isFlexible(page, style) ? row.flexWords : row.words;
}

} // namespace kurbo
