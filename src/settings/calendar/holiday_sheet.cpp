#include "settings/calendar/holiday_sheet.h"

#include "base/day_arithmetic.h"
#include "base/failure.h"

#include <algorithm>
#include <array>

namespace kurbo {
namespace {

constexpr QStringView period = u"6";

QString weekdayList() {
    return QStringLiteral("|#1;日曜日|#2;月曜日|#3;火曜日|#4;水曜日|#5;木曜日|#6;金曜日|#7;土曜日");
}

QString methodList() {
    return QStringLiteral("|#0;毎週|#1;第１|#2;第２|#3;第３|#4;第４|#5;第５|#6;期間");
}

std::optional<Day> dayIn(int year, const QString& monthAndDay) {
    return parseSlashDate(QString::number(year) + u'/' + monthAndDay);
}

bool isWeekdayRule(const QString& method) {
    return method >= u"0" && method <= u"5";
}

// Sets the days that the rule meets; tells the calendar once.
template <typename Meets>
void setDays(CalendarSheet& calendar, const HolidayMark& mark, const Meets& meets) {
    bool met = false;
    for (int row = 1; row < calendar.grid.Rows(); ++row) {
        const auto day = calendar.day(row);
        if (!day || !meets(*day)) continue;
        calendar.grid.TextMatrix(row, static_cast<int>(CalendarColumn::Name), mark.name);
        calendar.grid.TextMatrix(row, static_cast<int>(CalendarColumn::Kind), mark.kind);
        met = true;
    }
    if (met) calendar.touch();
}

void checkDay(const HolidaySheet& sheet, int row, HolidayColumn column, const QString& name) {
    if (!sheet.day(row, column))
        throw Complaint(QString::number(row) + QStringLiteral("行目で%1が正しく入力されていません。").arg(name));
}

// A pasted text that is no code of its list means no day.
void writeWeekdayRule(const HolidaySheet& sheet, int row, CalendarSheet& calendar, const HolidayMark& mark) {
    bool isNumber = false;
    const int nth = sheet.text(row, HolidayColumn::Method).toInt(&isNumber);
    const int weekday = sheet.text(row, HolidayColumn::Weekday).toInt();
    if (isNumber && weekday >= 1 && weekday <= 7) WriteWeekday(calendar, nth, weekday, mark);
}

// What belongs to each column behind the row's number.
struct Entry {
    HolidayColumn column;
    Twips width;
    const char16_t* tip;
};

constexpr std::array entries{
    Entry{.column = HolidayColumn::Method,
          .width = Twips(900),
          .tip = u"休日の指定方法を選択します(詳細はF1ｷｰを押してﾍﾙﾌﾟを参照して下さい)"},
    Entry{.column = HolidayColumn::Weekday,
          .width = Twips(900),
          .tip = u"休日を設定する曜日を選択します(詳細はF1ｷｰを押してﾍﾙﾌﾟを参照して下さい)"},
    Entry{.column = HolidayColumn::From,
          .width = Twips(900),
          .tip = u"休日を設定する期間の開始日(mm/dd)を入力します(詳細はF1ｷｰを押してﾍﾙﾌﾟを参照して下さい)"},
    Entry{.column = HolidayColumn::To,
          .width = Twips(900),
          .tip = u"休日を設定する期間の終了日(mm/dd)を入力します(詳細はF1ｷｰを押してﾍﾙﾌﾟを参照して下さい)"},
    Entry{.column = HolidayColumn::Name, .width = Twips(2800), .tip = u"休日名称を入力します(例：夏季休暇)"},
    Entry{.column = HolidayColumn::Kind,
          .width = Twips(900),
          .tip = u"休日種別を選択します(全日休日, 午前休日, 午後休日, 法定休日)"},
};

} // namespace

std::optional<Day> HolidaySheet::day(int row, HolidayColumn column) const {
    return dayIn(year, text(row, column));
}

void SetupGrid(HolidaySheet& sheet, const CalendarSheet& calendar) {
    GridModel& grid = sheet.grid;
    const Undrawn undrawn(grid);
    sheet.year = calendar.year;
    grid.reset({.rows = 1 + holidayRules, .columns = holidayColumns});
    grid.FormatString(QStringLiteral("|^指定方法|^曜日|^開始日|^終了日|^休日名称|^休日種別"));
    grid.ColWidth(static_cast<int>(HolidayColumn::No), Twips(500));
    grid.ColAlignment(static_cast<int>(HolidayColumn::No), GridAlign::Centre);
    for (const Entry& entry : entries) grid.ColWidth(static_cast<int>(entry.column), entry.width);
    grid.ColAlignment(static_cast<int>(HolidayColumn::Name), GridAlign::Left);
    grid.ColComboList(static_cast<int>(HolidayColumn::Method), methodList());
    grid.ColComboList(static_cast<int>(HolidayColumn::Weekday), weekdayList());
    grid.ColComboList(static_cast<int>(HolidayColumn::Kind), calendar.kinds.source());
    for (const auto column : {HolidayColumn::From, HolidayColumn::To})
        grid.ColEditMask(static_cast<int>(column), QStringLiteral("00/00"));
    for (int row = 1; row <= holidayRules; ++row)
        grid.TextMatrix(row, static_cast<int>(HolidayColumn::No), QString::number(row));
}

void fillHolidays(HolidaySheet& sheet, const QList<HolidayLine>& holidays) {
    int row = 1;
    for (const HolidayLine& holiday : holidays) {
        const auto date = holidayDate(holiday.date, sheet.year);
        if (!date) continue;
        while (row <= holidayRules && !sheet.text(row, HolidayColumn::Method).isEmpty()) ++row;
        const auto put = [&](HolidayColumn column, const QString& text) {
            sheet.grid.TextMatrix(row, static_cast<int>(column), text);
        };
        put(HolidayColumn::Method, period.toString());
        put(HolidayColumn::From, *date);
        put(HolidayColumn::To, *date);
        put(HolidayColumn::Name, holiday.name);
        put(HolidayColumn::Kind, holiday.kind);
    }
}

void checkRules(const HolidaySheet& sheet) {
    for (int row = 1; row <= holidayRules; ++row) {
        const QString method = sheet.text(row, HolidayColumn::Method);
        if (isWeekdayRule(method) && sheet.text(row, HolidayColumn::Weekday).isEmpty())
            throw Complaint(QString::number(row) + QStringLiteral("行目で曜日が選択されていません。"));
        if (method != period) continue;
        checkDay(sheet, row, HolidayColumn::From, QStringLiteral("開始日付"));
        checkDay(sheet, row, HolidayColumn::To, QStringLiteral("終了日付"));
    }
}

void writeRules(const HolidaySheet& sheet, CalendarSheet& calendar) {
    const Undrawn undrawn(calendar.grid);
    for (int row = 1; row <= holidayRules; ++row) {
        const QString method = sheet.text(row, HolidayColumn::Method);
        const HolidayMark mark{sheet.text(row, HolidayColumn::Name), sheet.text(row, HolidayColumn::Kind)};
        if (isWeekdayRule(method))
            writeWeekdayRule(sheet, row, calendar, mark);
        else if (method == period)
            WritePeriod(calendar, sheet.day(row, HolidayColumn::From).value(),
                        sheet.day(row, HolidayColumn::To).value(), mark);
    }
}

void WriteWeekday(CalendarSheet& calendar, int nth, int weekday, const HolidayMark& mark) {
    const auto isWeekday = [weekday](Day day) {
        return static_cast<int>(std::chrono::weekday{day}.c_encoding()) + 1 == weekday;
    };
    setDays(calendar, mark, [&](Day day) { return nth == 0 ? isWeekday(day) : NthWeekday(day, nth, weekday) == day; });
}

void WritePeriod(CalendarSheet& calendar, Day start, Day end, const HolidayMark& mark) {
    setDays(calendar, mark, [&](Day day) { return start <= day && day <= end; });
}

bool HolidayCells::mayEdit(int row, int column) const {
    return row >= 1 && column > static_cast<int>(HolidayColumn::No) && column < holidayColumns;
}

QString HolidayCells::refusal(int /*row*/, int column, const QString& text) const {
    switch (static_cast<HolidayColumn>(column)) {
    case HolidayColumn::Method:
    case HolidayColumn::Weekday:
    case HolidayColumn::Kind:
        if (!sheet_.grid.ColComboList(column).hasText(text))
            return QStringLiteral("不正な入力です。リストから選択して下さい。");
        break;
    case HolidayColumn::From:
    case HolidayColumn::To:
        if (!dayIn(sheet_.year, text)) return QStringLiteral("不正な入力です。日付をmm:dd形式で入力して下さい。");
        break;
    case HolidayColumn::Name:
        if (!isHolidayName(text))
            return QStringLiteral("不正な入力です。休日名称は全角15文字(半角30文字)以内で入力します。");
        break;
    default:
        break;
    }
    return {};
}

QString HolidayCells::tip(int row, int column) const {
    const auto found = std::ranges::find(entries, static_cast<HolidayColumn>(column), &Entry::column);
    return row < 1 || found == entries.end() ? QString() : QString::fromUtf16(found->tip);
}

bool HolidayCells::isJapanese(int column) const {
    return column != static_cast<int>(HolidayColumn::From) && column != static_cast<int>(HolidayColumn::To);
}

} // namespace kurbo
