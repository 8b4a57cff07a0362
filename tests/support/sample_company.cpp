#include "support/sample_company.h"

#include "store/file/database_file.h"

namespace kurbo::test {
namespace {

void addPerson(Connection& connection, const QString& code, const QString& name, const Value& access, bool shown) {
    static int order = 0;
    connection.execute(u"INSERT INTO C03_Staff (F_StaffCode, F_StaffName, F_Section, F_Order, F_Display) "
                       "VALUES (?, ?, 'S01', ?, ?)"_q,
                       {code, name, ++order, Value::yesNo(shown)});
    connection.execute(u"INSERT INTO M02_StaffInfo (F_StaffCode, F_Password, F_CloseDay, F_PaidTotal, F_EnterDelay, "
                       "F_LeaveGain, F_Weekday, F_Holiday, F_AdjustHours, F_Access) "
                       "VALUES (?, 'kurbo1', 31, 20, ?, ?, 1, 1, 1, ?)"_q,
                       {code, code == u"1001" ? 30 : 0, code == u"1001" ? 60 : 0, access});
}

void addRules(Connection& connection) {
    connection.execute(u"INSERT INTO C01_Corp (F_Corp) VALUES ('見本商事')"_q);
    connection.execute(u"INSERT INTO C02_Section (F_SectionCode, F_SectionName, F_DB, F_Order, F_Display) "
                       "VALUES ('S01', '総務部', ?, 1, True)"_q,
                       {currentDatabase()});
    connection.execute(
        u"INSERT INTO M01_CorpInfo (F_WorkStyle, F_AmHolidayWork, F_PmHolidayWork, F_RoundMethod, F_RoundEnter, F_RoundLeave, F_RoundHour, F_RoundUnit, F_CountUnit) VALUES (0, 1, 1, 0, 1, 0, 0, 30, 1)"_q);
    connection.execute(u"INSERT INTO M03_WeekdayStyle (F_WeekdayCode, F_WeekdayName, F_StartWork0, F_EndWork0) "
                       "VALUES (1, '日勤', '09:00', '17:30')"_q);
    connection.execute(u"INSERT INTO M07_AdjustHours (F_AdjustCode, F_AdjustName, F_Over) VALUES (1, '通常', 2700)"_q);
    connection.execute(u"INSERT INTO M08_Access (F_AccessCode, F_AccessName, F_Section, F_ReadMyKurbo, F_WriteMyPlan, "
                       "F_Order) VALUES (1, '一般', 'MySection', True, True, 1)"_q);
    connection.execute(u"INSERT INTO M08_Access (F_AccessCode, F_AccessName, F_Section, F_ReadMyKurbo, "
                       "F_ReadOtherKurbo, F_WriteApproval, F_Order) "
                       "VALUES (2, '所属長', 'MySection', True, True, True, 1)"_q);
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
    addPerson(connection, u"1001"_q, u"山田太郎"_q, 1, true);
    addPerson(connection, u"1002"_q, u"鈴木花子"_q, 2, true);
    addPerson(connection, u"1003"_q, u"佐藤次郎"_q, {}, true);
    addPerson(connection, u"1004"_q, u"高橋三郎"_q, 1, false);
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
    const QString names = QString::fromLatin1(fields).replace(u", "_q, u", F_"_q);
    connection.execute(u"INSERT INTO %1 (F_%2) VALUES (%3)"_q.arg(QString::fromLatin1(table), names, values));
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
