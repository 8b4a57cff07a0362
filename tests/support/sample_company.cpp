#include "support/sample_company.h"

#include "store/file/database_file.h"

namespace kurbo::test {
namespace {

// A row of a table: names of fields without their "F_", and values, each parted by commas.
void add(Connection& connection, const char* table, const char* fields, const QString& values) {
    const QString names = QString::fromLatin1(fields).replace(u", "_q, u", F_"_q);
    connection.execute(u"INSERT INTO %1 (F_%2) VALUES (%3)"_q.arg(QString::fromLatin1(table), names, values));
}

void addRules(Connection& connection) {
    add(connection, "C01_Corp", "Corp", u"'見本商事'"_q);
    add(connection, "C02_Section", "SectionCode, SectionName, DB, Order, Display",
        u"'S01', '総務部', '%1', 1, True"_q.arg(currentDatabase()));
    add(connection, "M01_CorpInfo",
        "WorkStyle, AmHolidayWork, PmHolidayWork, RoundMethod, RoundEnter, RoundLeave, RoundHour, RoundUnit, CountUnit",
        u"0, 1, 1, 0, 1, 0, 0, 30, 1"_q);
    add(connection, "M03_WeekdayStyle", "WeekdayCode, WeekdayName, StartWork0, EndWork0",
        u"1, '日勤', '09:00', '17:30'"_q);
    add(connection, "M07_AdjustHours", "AdjustCode, AdjustName, Over", u"1, '通常', 2700"_q);
    add(connection, "M08_Access", "AccessCode, AccessName, Section, ReadMyKurbo, WriteMyPlan, Order",
        u"1, '一般', 'MySection', True, True, 1"_q);
    add(connection, "M08_Access", "AccessCode, AccessName, Section, ReadMyKurbo, ReadOtherKurbo, WriteApproval, Order",
        u"2, '所属長', 'MySection', True, True, True, 1"_q);
}

void addPerson(Connection& connection, const QString& code, const QString& name, const QString& access, bool shown) {
    static int order = 0;
    add(connection, "C03_Staff", "StaffCode, StaffName, Section, Order, Display",
        u"'%1', '%2', 'S01', %3, %4"_q.arg(code, name).arg(++order).arg(shown ? -1 : 0));
    add(connection, "M02_StaffInfo",
        "StaffCode, Password, CloseDay, PaidTotal, EnterDelay, LeaveGain, Weekday, Holiday, AdjustHours, Access",
        u"'%1', 'kurbo1', 31, 20, %2, 1, 1, 1, %3"_q.arg(code, code == u"1001" ? u"30, 60"_q : u"0, 0"_q, access));
}

void addCalendar(Connection& connection) {
    for (Day day = *makeDay(2026, 1, 1); yearOf(day) == 2026; day += std::chrono::days(1))
        connection.execute(u"INSERT INTO T01_Calendar (F_DateID, F_Date, F_Holiday) VALUES (?, ?, ?)"_q,
                           {dateId(day), day, dateId(day) == u"20260429" ? Value(u"昭和の日"_q) : Value()});
}

} // namespace

void makeSampleCompany(const QString& path) {
    createDatabase(path);
    Connection connection;
    connection.open(path, databasePassword());
    Transaction transaction(connection);
    addRules(connection);
    addCalendar(connection);
    addPerson(connection, u"1001"_q, u"山田太郎"_q, u"1"_q, true);
    addPerson(connection, u"1002"_q, u"鈴木花子"_q, u"2"_q, true);
    addPerson(connection, u"1003"_q, u"佐藤次郎"_q, u"Null"_q, true);
    addPerson(connection, u"1004"_q, u"高橋三郎"_q, u"1"_q, false);
    transaction.commit();
}

SampleCompany::SampleCompany() {
    makeSampleCompany(path);
    connection.open(path, databasePassword());
    client.DbPath = path;
}

void SampleCompany::addCard(int id, Day day, const QString& enter, const QString& leave, const QString& paid,
                            const QString& staff) {
    const auto time = [day](const QString& clock) {
        if (clock.isEmpty()) return Value();
        return Value(at(day, clock.left(2).toInt(), clock.right(2).toInt()));
    };
    connection.execute(u"INSERT INTO T02_Kurbo (F_KurboID, F_DateID, F_User, F_Enter, F_Leave, F_Paid) "
                       "VALUES (?, ?, ?, ?, ?, ?)"_q,
                       {id, dateId(day), staff, time(enter), time(leave), Value::textOrNull(paid)});
}

void SampleCompany::insert(const char* table, const char* fields, const QString& values) {
    add(connection, table, fields, values);
}

QString SampleCompany::asked(const QString& statement) {
    const auto value = connection.firstValue(statement);
    if (!value) return {};
    return value->isNull() ? u"-"_q : value->text();
}

int SampleCompany::count(const QString& table) {
    return asked(u"SELECT Count(*) FROM "_q + table).toInt();
}

} // namespace kurbo::test
