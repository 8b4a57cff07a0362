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

// The rows of the three kinds of day that have the same ones, by their slots.
constexpr std::array<TimeRow, 7> dayRows(std::array<int, 7> slots) {
    std::array rows{
        TimeRow{.field = u"Work",
                .colour = yellow,
                .words = {.label = u"就業時間"},
                .flexWords = {.label = u"ｺｱﾀｲﾑ", .tip = u"コアタイム", .legend = u"ｺｱ"}},
        TimeRow{.field = u"Flex",
                .colour = green,
                .shown = Gate::Flex,
                .words = {.label = u"ﾌﾚｷｼﾌﾞﾙﾀｲﾑ", .tip = u"フレキシブルタイム", .legend = u"ﾌﾚｷｼﾌﾞﾙ"}},
        TimeRow{.field = u"LegalOver",
                .colour = green,
                .shown = Gate::LegalOver,
                .words = {.label = u"法内残業", .tip = u"法定内残業"}},
        TimeRow{.field = u"Over", .colour = blue, .shown = Gate::Over, .words = {.label = u"普通残業"}},
        TimeRow{.field = u"Late", .colour = red, .shown = Gate::Late, .words = {.label = u"深夜残業"}},
        TimeRow{.field = u"AfterLate", .colour = orange, .shown = Gate::Over, .words = {.label = u"明け残業"}},
        TimeRow{.field = u"Early", .colour = cyan, .shown = Gate::Early, .words = {.label = u"早出勤務"}},
    };
    for (std::size_t i = 0; i < rows.size(); ++i) rows[i].slots = slots[i];
    return rows;
}

constexpr auto weekdayRows = dayRows({3, 4, 1, 3, 3, 1, 1});
constexpr auto amRows = dayRows({2, 2, 1, 3, 3, 1, 2});
constexpr auto pmRows = dayRows({2, 2, 1, 4, 3, 1, 1});

// What is worked after a night is shown with the overtime, and stored with the work of the holiday.
constexpr std::array holidayRows{
    TimeRow{.field = u"Work", .slots = 3, .colour = yellow, .shown = Gate::Holiday, .words = {.label = u"休日勤務"}},
    TimeRow{.field = u"Late", .slots = 3, .colour = red, .shown = Gate::HolidayLate, .words = {.label = u"休日深夜"}},
    TimeRow{.field = u"AfterLate",
            .slots = 1,
            .colour = orange,
            .shown = Gate::Over,
            .stored = Gate::Holiday,
            .words = {.label = u"明け残業"}},
    TimeRow{.field = u"Early", .slots = 1, .colour = cyan, .shown = Gate::Holiday, .words = {.label = u"早出勤務"}},
};

// The limit of early work is stored with the overtime.
constexpr std::array limitRows{
    TimeRow{.field = u"F_LegalOver", .shown = Gate::LegalOver, .words = {.label = u"法内残業"}},
    TimeRow{.field = u"F_Over", .shown = Gate::Over, .words = {.label = u"普通残業"}},
    TimeRow{.field = u"F_Late", .shown = Gate::Late, .words = {.label = u"深夜残業"}},
    TimeRow{.field = u"F_Early", .shown = Gate::Early, .stored = Gate::Over, .words = {.label = u"早出勤務"}},
    TimeRow{.field = u"F_Holiday", .shown = Gate::Holiday, .words = {.label = u"休日出勤"}},
    TimeRow{.field = u"F_HolidayLate", .shown = Gate::HolidayLate, .words = {.label = u"休日深夜"}},
    TimeRow{.field = u"F_LegalHoliday", .shown = Gate::LegalHoliday, .words = {.label = u"法休出勤"}},
    TimeRow{.field = u"F_LegalLate", .shown = Gate::LegalLate, .words = {.label = u"法休深夜"}},
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
             .procedures = {.show = u"ShowWeekday",
                            .check = u"CheckWeekday",
                            .update = u"UpdateWeekday",
                            .remove = u"DeleteWeekday"},
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
             .procedures = {.show = u"ShowHoliday",
                            .check = u"CheckHoliday",
                            .update = u"UpdateHoliday",
                            .remove = u"DeleteHoliday"},
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
             .procedures = {.show = u"ShowAmHoliday",
                            .check = u"CheckAmHoliday",
                            .update = u"UpdateAmHoliday",
                            .remove = u"DeleteAmHoliday"},
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
             .procedures = {.show = u"ShowPmHoliday",
                            .check = u"CheckPmHoliday",
                            .update = u"UpdatePmHoliday",
                            .remove = u"DeletePmHoliday"},
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
             .procedures =
                 {.show = u"ShowAdjust", .check = u"CheckAdjust", .update = u"UpdateAdjust", .remove = u"DeleteAdjust"},
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
