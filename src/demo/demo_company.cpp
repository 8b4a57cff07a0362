#include "demo/demo_company.h"

#include "base/failure.h"
#include "demo/demo_cards.h"
#include "demo/demo_settings.h"

#include <algorithm>

using namespace std::chrono;

namespace kurbo {
namespace {

constexpr int mostMonths = 240;

void require(bool good, const QString& complaint) {
    if (!good) throw Complaint(complaint);
}

void check(const DemoOptions& options) {
    const auto within = [](int value, int low, int high) { return low <= value && value <= high; };
    require(within(options.people, 1, mostPeople), QStringLiteral("社員数は1～%1の範囲で指定します。").arg(mostPeople));
    require(within(options.sections, 1, mostSections),
            QStringLiteral("部課数は1～%1の範囲で指定します。").arg(mostSections));
    require(within(options.months, 0, mostMonths), QStringLiteral("月数は0～%1の範囲で指定します。").arg(mostMonths));
    // The equinoxes are known for 1980 to 2099.
    require(within(yearOf(options.until), 2000, 2098), QStringLiteral("日付は2000年～2098年の範囲で指定します。"));
}

Day firstOfMonth(Day day) {
    return day - days{dayOfMonth(day) - 1};
}

StaffSize sizeOf(const DemoOptions& options) {
    const Day thisMonth = firstOfMonth(options.until);
    return {options.people, options.sections, options.until, addMonths(thisMonth, -(options.months / 2)) - days{1}};
}

DemoStaff staffOf(const DemoOptions& options) {
    Dice dice(options.seed);
    return makeStaff(sizeOf(options), dice);
}

QString roleName(const Person& person) {
    switch (person.role) {
    case Role::Clerk:
        return QStringLiteral("勤怠担当");
    case Role::Superior:
        return QStringLiteral("所属長");
    case Role::None:
        return QStringLiteral("アクセス権なし");
    case Role::Ordinary:
        break;
    }
    if (person.shift == Shift::Nights) return QStringLiteral("夜勤");
    return person.sales ? QStringLiteral("営業") : QStringLiteral("一般社員");
}

} // namespace

void makeDemoCompany(Connection& connection, const DemoOptions& options) {
    check(options);
    DemoStaff staff = staffOf(options);
    Dice dice(options.seed + 1);
    const CardSpan span{addMonths(firstOfMonth(options.until), -options.months), options.until};
    const auto calendar = demoCalendar(yearOf(span.first), yearOf(options.until) + 1);
    Transaction transaction(connection);
    writeSettings(connection, options.flexible, staff.sections);
    writeStaff(connection, staff, dice);
    writeCalendar(connection, calendar);
    writeCards(connection, staff.people, staff.sections, calendar, span, options.flexible, dice);
    writeStaffInfo(connection, staff, dice);
    transaction.commit();
}

QList<DemoPerson> demoPeopleToTry(const DemoOptions& options) {
    check(options);
    const DemoStaff staff = staffOf(options);
    QList<DemoPerson> people;
    for (const Person& person : staff.people) {
        const QString role = roleName(person);
        const bool known = std::ranges::count(people, role, &DemoPerson::role) > 0;
        if (known || person.retire) continue;
        const DemoSection& section = staff.sections[person.section];
        people.append({section.code, section.name, person.code, person.name, passwordOf(person), role});
    }
    return people;
}

} // namespace kurbo
