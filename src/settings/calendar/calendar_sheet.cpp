#include "settings/calendar/calendar_sheet.h"

#include "base/failure.h"
#include "base/system/code_page.h"

using namespace std::chrono;

namespace kurbo {
namespace {

constexpr GridColour red{.red = 255, .green = 0, .blue = 0};
constexpr GridColour blue{.red = 0, .green = 0, .blue = 255};

void describeColumns(GridModel& grid, const QString& kinds) {
    const auto width = [&grid](CalendarColumn column, int twips) {
        grid.ColWidth(static_cast<int>(column), Twips(twips));
    };
    width(CalendarColumn::No, 500);
    width(CalendarColumn::Date, 1500);
    width(CalendarColumn::Name, 4500);
    width(CalendarColumn::Kind, 1000);
    grid.FormatString(QStringLiteral("|^日付|^日付名称|^休日種別"));
    grid.ColAlignment(static_cast<int>(CalendarColumn::No), GridAlign::Centre);
    grid.ColAlignment(static_cast<int>(CalendarColumn::Name), GridAlign::Left);
    grid.ColFormat(static_cast<int>(CalendarColumn::Date), QStringLiteral("yyyy/mm/dd(aaa)"));
    grid.ColComboList(static_cast<int>(CalendarColumn::Kind), kinds);
    grid.ColHidden(static_cast<int>(CalendarColumn::Id), true);
}

std::optional<GridColour> colourOf(Day day) {
    if (weekday{day} == Sunday) return red;
    return weekday{day} == Saturday ? std::optional(blue) : std::nullopt;
}

} // namespace

QString holidayKinds(const clsWorkTime& style) {
    QString list = QStringLiteral("|#0;全日");
    if (style.plngAmHolidayWork > 0) list += QStringLiteral("|#1;午前");
    if (style.plngPmHolidayWork > 0) list += QStringLiteral("|#2;午後");
    if (style.pbleEnableLegalHoliday) list += QStringLiteral("|#3;法定休日");
    return list;
}

void drawCalendar(CalendarSheet& sheet, int year, const QList<CalendarRow>& days) {
    GridModel& grid = sheet.grid;
    const Undrawn undrawn(grid);
    sheet.year = year;
    grid.reset({.rows = 1 + static_cast<int>(days.size()), .columns = calendarColumns});
    describeColumns(grid, sheet.kinds.source());
    int row = 1;
    for (const CalendarRow& day : days) {
        grid.fillRow(row, {QString::number(row), slashDate(day.day), day.name, day.kind, day.id});
        grid.RowForeColor(row++, colourOf(day.day));
    }
}

bool isHolidayName(const QString& text) {
    constexpr int mostBytes = 30;
    return byteLength(text) <= mostBytes;
}

void checkCalendar(const CalendarSheet& sheet) {
    for (int row = 1; row < sheet.grid.Rows(); ++row) {
        const QString date = sheet.grid.CellText(row, static_cast<int>(CalendarColumn::Date));
        const QString kind = sheet.grid.CellText(row, static_cast<int>(CalendarColumn::Kind));
        if (!isHolidayName(sheet.text(row, CalendarColumn::Name)))
            throw Complaint(lines(date + QStringLiteral("の日付名称が不正です。"),
                                  QStringLiteral("全角15文字(半角30文字)以内で入力します。")));
        if (!kind.isEmpty() && !sheet.kinds.hasText(kind))
            throw Complaint(lines(date + QStringLiteral("の休日種別が不正です。"),
                                  QStringLiteral("休日種別はリストから選択して下さい。")));
    }
}

bool CalendarRules::mayEdit(int row, int column) const {
    return row >= 1 &&
           (column == static_cast<int>(CalendarColumn::Name) || column == static_cast<int>(CalendarColumn::Kind));
}

QString CalendarRules::refusal(int /*row*/, int column, const QString& text) const {
    if (column == static_cast<int>(CalendarColumn::Name) && !isHolidayName(text))
        return QStringLiteral("不正な入力です。日付名称は全角15文字(半角30文字)以内で入力します。");
    if (column == static_cast<int>(CalendarColumn::Kind) && !sheet_.kinds.hasText(text))
        return QStringLiteral("不正な入力です。リストから選択して下さい。");
    return {};
}

void CalendarRules::edited(int /*row*/, int /*column*/) {
    sheet_.touch();
}

QString CalendarRules::tip(int row, int column) const {
    if (row < 1) return {};
    if (column == static_cast<int>(CalendarColumn::Name)) return QStringLiteral("日付の名称を入力します(例：夏季休暇)");
    if (column == static_cast<int>(CalendarColumn::Kind))
        return QStringLiteral("休日の種別を選択します(全日休日, 午前休日, 午後休日)");
    return {};
}

bool CalendarRules::isJapanese(int column) const {
    return mayEdit(1, column);
}

} // namespace kurbo
