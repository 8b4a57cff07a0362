#include "settings/calendar/calendar.h"

#include "month/loaders.h"
#include "settings/calendar/calendar_store.h"
#include "settings/settings_steps.h"
#include "store/readers.h"

namespace kurbo {
namespace {

constexpr QStringView form = u"frmCalendar";
// Years before and after this one that may be made.
constexpr int mostYears = 2;

Day firstOf(int year) {
    return makeDay(year, 1, 1).value();
}

Day lastOf(int year) {
    return makeDay(year, 12, 31).value();
}

} // namespace

void Calendar::load() {
    Connection& connection = client_.HomeConnection;
    clsWorkTime style;
    readCompanyStyle(connection, style);
    sheet.kinds = GridList(holidayKinds(style));
    const int thisYear = yearOf(client_.context.clock.today());
    const auto first = firstCalendarDay(connection);
    if (!first) CreateCalendar(client_.context.progress, connection, firstOf(thisYear), lastOf(thisYear));
    const bool hasThisYear = !first || calendarRows(connection, firstOf(thisYear), lastOf(thisYear)) > 0;
    const int year = hasThisYear ? thisYear : yearOf(*first);
    offerMissingDays(year);
    ShowCalendar(connection, sheet, year);
}

void Calendar::offerMissingDays(int year) {
    Connection& connection = client_.HomeConnection;
    const auto all = static_cast<int>((lastOf(year) - firstOf(year)).count()) + 1;
    const int missing = all - calendarRows(connection, firstOf(year), lastOf(year));
    if (missing <= 0 || offered_.contains(year)) return;
    offered_.insert(year);
    const QString question =
        lines(QStringLiteral("%1年のカレンダーには、作成されていない日が%2日あります。").arg(year).arg(missing),
              QStringLiteral("データ移動で移した日も含まれます。作成した日は勤務日になります。"), QString(),
              QStringLiteral("作成してよろしいですか？"));
    if (client_.context.prompts.agrees(question, Answer::Cancel))
        CreateCalendar(client_.context.progress, connection, firstOf(year), lastOf(year));
}

bool Calendar::mayMake(int year, bool later) const {
    Prompts& prompts = client_.context.prompts;
    const int ahead = year - yearOf(client_.context.clock.today());
    if (later && ahead > mostYears) {
        prompts.exclaim(QStringLiteral("これ以上先のカレンダーは作成できません。"));
        return false;
    }
    if (!later && ahead < -mostYears) {
        prompts.exclaim(QStringLiteral("これ以上前のカレンダーは作成できません。"));
        return false;
    }
    return prompts.agrees(lines(QString::number(year) + QStringLiteral("年のカレンダーは作成されていません。"),
                                QString(), QStringLiteral("作成してよろしいですか？")));
}

bool Calendar::moveYear(int years, bool changed) {
    const bool later = years > 0;
    return guarded(client_.context, form, later ? u"udcYear_UpClick" : u"udcYear_DownClick", false, [&] {
        if (!mayDiscard(client_.context.prompts, changed, QStringLiteral("カレンダー"))) return false;
        Connection& connection = client_.HomeConnection;
        const int year = sheet.year + years;
        if (calendarRows(connection, firstOf(year), lastOf(year)) == 0) {
            if (!mayMake(year, later)) return false;
            CreateCalendar(client_.context.progress, connection, firstOf(year), lastOf(year));
        }
        offerMissingDays(year);
        ShowCalendar(connection, sheet, year);
        return true;
    });
}

void Calendar::showAgain() {
    guarded(client_.context, form, u"ShowCalendar",
            [this] { ShowCalendar(client_.HomeConnection, sheet, sheet.year); });
}

} // namespace kurbo
