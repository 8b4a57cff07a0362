#include "demo/demo_people.h"

#include "store/file/database_file.h"

#include <algorithm>

using namespace std::chrono;

namespace kurbo {
namespace {

struct Address {
    QStringView zipCode;
    QStringView prefecture;
    QStringView street;
};

constexpr std::array addresses{
    Address{.zipCode = u"101-0021", .prefecture = u"東京都", .street = u"千代田区外神田"},
    Address{.zipCode = u"141-0022", .prefecture = u"東京都", .street = u"品川区東五反田"},
    Address{.zipCode = u"171-0022", .prefecture = u"東京都", .street = u"豊島区南池袋"},
    Address{.zipCode = u"180-0004", .prefecture = u"東京都", .street = u"武蔵野市吉祥寺本町"},
    Address{.zipCode = u"192-0081", .prefecture = u"東京都", .street = u"八王子市横山町"},
    Address{.zipCode = u"220-0004", .prefecture = u"神奈川県", .street = u"横浜市西区北幸"},
    Address{.zipCode = u"210-0006", .prefecture = u"神奈川県", .street = u"川崎市川崎区砂子"},
    Address{.zipCode = u"252-0231", .prefecture = u"神奈川県", .street = u"相模原市中央区相模原"},
    Address{.zipCode = u"330-0854", .prefecture = u"埼玉県", .street = u"さいたま市大宮区桜木町"},
    Address{.zipCode = u"332-0017", .prefecture = u"埼玉県", .street = u"川口市栄町"},
    Address{.zipCode = u"273-0005", .prefecture = u"千葉県", .street = u"船橋市本町"},
    Address{.zipCode = u"272-0021", .prefecture = u"千葉県", .street = u"市川市八幡"},
};

// The third of three departments works in shifts; in a smaller company the last one does.
std::size_t factoryOf(std::size_t sections) {
    return std::min<std::size_t>(sections, 3) - 1;
}

int roomAt(const StaffSize& size, std::size_t section) {
    const auto first = [&](std::size_t number) {
        return (static_cast<int>(number) * size.people + size.sections - 1) / size.sections;
    };
    return first(section + 1) - first(section);
}

Role roleAt(std::size_t section, int position, int room) {
    if (section == 0 && position == std::min(1, room - 1)) return Role::Clerk;
    return position == 0 ? Role::Superior : Role::Ordinary;
}

bool worksAtNight(std::size_t section, int position, int room, std::size_t factory) {
    if (section != factory) return false;
    const int first = section == 0 ? 2 : 1;
    const int count = std::min(std::max(2, room / 6), room - first - 1);
    return position >= first && position < first + count;
}

// Everyone joined on the first of April, from school or some years later.
void giveAge(Person& person, Day until, Dice& dice) {
    const int birthYear = yearOf(until) - dice.between(24, 59);
    const int birthMonth = dice.between(1, 12);
    person.birth = *makeDay(birthYear, birthMonth, dice.between(1, 28));
    const int joinAge = dice.between(19, 24);
    const int otherYears = dice.oneIn(3) ? 6 : 0;
    person.join = *makeDay(std::min(birthYear + joinAge + otherYears, yearOf(until) - 1), 4, 1);
}

Person makePerson(const StaffSize& size, int number, int nameNumber, Dice& dice) {
    const PersonName name = personName(nameNumber);
    Person person;
    person.code = QString::number(1001 + number);
    person.name = name.text;
    person.kana = name.kana;
    person.woman = name.woman;
    person.section = static_cast<std::size_t>(std::int64_t{number} * size.sections / size.people);
    giveAge(person, size.until, dice);
    person.zeal = dice.below(4);
    person.zeal = std::min(person.zeal, dice.below(5)); // few work long
    person.paidHalves = dice.between(20, 40);
    return person;
}

void giveDuties(DemoStaff& staff, const StaffSize& size) {
    std::vector<int> counts(staff.sections.size());
    const std::size_t factory = factoryOf(counts.size());
    for (Person& person : staff.people) {
        const int position = counts[person.section]++;
        const int room = roomAt(size, person.section);
        person.role = roleAt(person.section, position, room);
        if (worksAtNight(person.section, position, room, factory)) person.shift = Shift::Nights;
        person.sales = staff.sections[person.section].name.contains(QStringLiteral("営業"));
        if (person.section == factory && staff.sections.size() > 1) person.closeDay = 20;
    }
}

Person* lastOrdinary(DemoStaff& staff, std::size_t section) {
    const auto last = std::find_if(staff.people.rbegin(), staff.people.rend(), [&](const Person& person) {
        return person.section == section && person.role == Role::Ordinary;
    });
    return last == staff.people.rend() ? nullptr : &*last;
}

// One still waits for a right, and one has left the company.
void giveFates(DemoStaff& staff, const StaffSize& size) {
    Person* const newcomer = size.people >= 12 ? lastOrdinary(staff, 0) : nullptr;
    if (newcomer) newcomer->role = Role::None;
    Person* const retired = size.people >= 10 ? lastOrdinary(staff, staff.sections.size() > 1 ? 1 : 0) : nullptr;
    if (!retired) return;
    retired->join = std::min(retired->join, *makeDay(yearOf(size.retirement) - 1, 4, 1));
    retired->retire = size.retirement;
}

void writeCompany(Connection& connection) {
    connection.execute(
        QStringLiteral("INSERT INTO C01_Corp (F_Corp, F_Branch, F_ZipCode, F_Pref, F_Address1, F_Address2, F_Tel, "
                       "F_Fax, F_Title, F_President) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
        {QStringLiteral("クルボ精機株式会社"), QStringLiteral("本社"), QStringLiteral("101-0021"),
         QStringLiteral("東京都"), QStringLiteral("千代田区外神田1-2-3"), QStringLiteral("クルボビル5F"),
         QStringLiteral("03-0000-1000"), QStringLiteral("03-0000-1999"), QStringLiteral("代表取締役社長"),
         QStringLiteral("久留　信一")});
}

void writeSections(Connection& connection, const std::vector<DemoSection>& sections) {
    int order = 0;
    for (const DemoSection& section : sections) {
        ++order;
        connection.execute(
            QStringLiteral("INSERT INTO C02_Section (F_SectionCode, F_SectionName, F_Tel, F_Fax, F_DB, F_Order, "
                           "F_Display) VALUES (?, ?, ?, ?, ?, ?, ?)"),
            {section.code, section.name, QStringLiteral("03-0000-%1").arg(2000 + order),
             QStringLiteral("03-0000-%1").arg(3000 + order), currentDatabase(), order, Value::yesNo(true)});
    }
}

void writePerson(Connection& connection, const Person& person, const QString& section, int order, Dice& dice) {
    const Address& home = addresses[static_cast<std::size_t>(dice.below(static_cast<int>(addresses.size())))];
    const QString number =
        QStringLiteral("%1-%2-%3").arg(dice.between(1, 5)).arg(dice.between(1, 20)).arg(dice.between(1, 15));
    const Value rooms = dice.oneIn(2)
                            ? Value(QStringLiteral("コーポ%1号室").arg(dice.between(1, 5) * 100 + dice.between(1, 8)))
                            : Value();
    connection.execute(
        QStringLiteral("INSERT INTO C03_Staff (F_StaffCode, F_StaffName, F_Kana, F_Section, F_ZipCode, F_Pref, "
                       "F_Address1, F_Address2, F_Tel, F_HPhone, F_EMail, F_Birth, F_Sex, F_Join, F_Retire, F_Order, "
                       "F_Display) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
        {person.code, person.name, person.kana, section, home.zipCode.toString(), home.prefecture.toString(),
         home.street.toString() + number, rooms, QStringLiteral("03-0000-%1").arg(person.code),
         QStringLiteral("090-0000-%1").arg(person.code), QStringLiteral("s%1@kurbo.example").arg(person.code),
         person.birth, person.woman ? 1 : 0, person.join, person.retire ? Value(*person.retire) : Value(), order,
         Value::yesNo(!person.retire)});
}

// Who has a long way from the gate to the desk, in seconds.
Value walkingTime(Dice& dice) {
    return dice.oneIn(5) ? Value(30 * dice.between(2, 6)) : Value();
}

} // namespace

DemoStaff makeStaff(const StaffSize& size, Dice& dice) {
    DemoStaff staff;
    for (int i = 0; i < size.sections; ++i)
        staff.sections.push_back({QStringLiteral("S%1").arg(i + 1, 2, 10, QChar(u'0')), sectionName(i)});
    const int firstName = dice.below(nameCount);
    for (int i = 0; i < size.people; ++i) staff.people.push_back(makePerson(size, i, firstName + i, dice));
    giveDuties(staff, size);
    giveFates(staff, size);
    return staff;
}

QString passwordOf(const Person& person) {
    return QStringLiteral("kurbo") + person.code;
}

void writeStaff(Connection& connection, const DemoStaff& staff, Dice& dice) {
    writeCompany(connection);
    writeSections(connection, staff.sections);
    int order = 0;
    for (const Person& person : staff.people)
        writePerson(connection, person, staff.sections[person.section].code, ++order, dice);
}

void writeStaffInfo(Connection& connection, const DemoStaff& staff, Dice& dice) {
    for (const Person& person : staff.people) {
        const int style = person.shift == Shift::Nights ? 2 : 1;
        const Value right = person.role == Role::None ? Value() : Value(static_cast<int>(person.role));
        connection.execute(
            QStringLiteral("INSERT INTO M02_StaffInfo (F_StaffCode, F_Password, F_CloseDay, F_PaidTotal, F_EnterDelay, "
                           "F_LeaveGain, F_Weekday, F_Holiday, F_AmHoliday, F_PmHoliday, F_AdjustHours, F_Access) "
                           "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
            {person.code, passwordOf(person), person.closeDay, person.paidHalves / 2.0, walkingTime(dice),
             walkingTime(dice), style, style, style, style, static_cast<int>(person.adjust()), right});
    }
}

} // namespace kurbo
