#include "base/public_holidays.h"

#include "base/csv_line.h"
#include "base/system/code_page.h"

#include <algorithm>

using namespace std::chrono;

namespace kurbo {
namespace {

Day on(int year, unsigned month, unsigned day) {
    return local_days{std::chrono::year{year} / std::chrono::month{month} / std::chrono::day{day}};
}

PublicHoliday onMonday(int year, unsigned month, int number, const QString& name) {
    const auto nth = Monday[static_cast<unsigned>(number)];
    return {local_days{std::chrono::year{year} / std::chrono::month{month} / nth}, name, number};
}

unsigned equinox(int year, int base) {
    const int since = year - 1980;
    return static_cast<unsigned>((base + 242'194 * since) / 1'000'000 - since / 4);
}

QList<PublicHoliday> namedHolidays(int year) {
    return {{on(year, 1, 1), QStringLiteral("元日")},
            onMonday(year, 1, 2, QStringLiteral("成人の日")),
            {on(year, 2, 11), QStringLiteral("建国記念の日")},
            {on(year, 2, 23), QStringLiteral("天皇誕生日")},
            {on(year, 3, equinox(year, 20'843'100)), QStringLiteral("春分の日")},
            {on(year, 4, 29), QStringLiteral("昭和の日")},
            {on(year, 5, 3), QStringLiteral("憲法記念日")},
            {on(year, 5, 4), QStringLiteral("みどりの日")},
            {on(year, 5, 5), QStringLiteral("こどもの日")},
            onMonday(year, 7, 3, QStringLiteral("海の日")),
            {on(year, 8, 11), QStringLiteral("山の日")},
            onMonday(year, 9, 3, QStringLiteral("敬老の日")),
            {on(year, 9, equinox(year, 23'248'800)), QStringLiteral("秋分の日")},
            onMonday(year, 10, 2, QStringLiteral("スポーツの日")),
            {on(year, 11, 3), QStringLiteral("文化の日")},
            {on(year, 11, 23), QStringLiteral("勤労感謝の日")}};
}

} // namespace

QList<PublicHoliday> publicHolidays(int year) {
    const QList<PublicHoliday> named = namedHolidays(year);
    const auto isNamed = [&](Day day) { return std::ranges::count(named, day, &PublicHoliday::day) > 0; };
    QList<PublicHoliday> all = named;
    for (const PublicHoliday& holiday : named) {
        if (weekday{holiday.day} == Sunday) {
            Day substitute = holiday.day + days{1};
            while (isNamed(substitute)) substitute += days{1};
            all.append({substitute, QStringLiteral("振替休日")});
        }
        if (!isNamed(holiday.day + days{1}) && isNamed(holiday.day + days{2}))
            all.append({holiday.day + days{1}, QStringLiteral("国民の休日")});
    }
    std::ranges::sort(all, {}, &PublicHoliday::day);
    return all;
}

QByteArray holidayFileOf(int year) {
    QString text =
        csvQuoted(
            QStringLiteral("%1年の祝日を休日設定に追加します(他の年には、その年のファイルが必要です)。").arg(year)) +
        QStringLiteral("\r\n");
    for (const PublicHoliday& holiday : publicHolidays(year)) {
        const QString fixed = slashDate(holiday.day).mid(5);
        const QString date =
            holiday.monday == 0 ? fixed : fixed.left(3) + QString::number(holiday.monday) + QStringLiteral("/2");
        text += csvQuoted(date) + u',' + csvQuoted(holiday.name) + QStringLiteral(",0\r\n");
    }
    return toCodePage(text).value();
}

} // namespace kurbo
