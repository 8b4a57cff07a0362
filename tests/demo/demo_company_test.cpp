#include "demo/demo_company.h"

#include "base/failure.h"
#include "base/system/code_page.h"
#include "demo/demo_people.h"
#include "store/file/database_file.h"
#include "store/schema.h"

#include <QMap>
#include <QSet>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace std::chrono;

namespace kurbo {
namespace {

// A Wednesday behind a working Tuesday.
const Day today = *makeDay(2026, 11, 25);

DemoOptions options(int people = 12, int sections = 3, int months = 4, std::uint32_t seed = 1) {
    return {people, sections, months, seed, today, false};
}

// A made company, open for questions.
class Company {
  public:
    explicit Company(const DemoOptions& options) {
        const QString path = folder_.filePath(QStringLiteral("demo.mdb"));
        createDatabase(path);
        connection_.open(path, databasePassword());
        makeDemoCompany(connection_, options);
    }

    [[nodiscard]] Rows rows(const QString& statement, const Values& values = {}) {
        return connection_.rows(statement, values);
    }
    // The number that a "SELECT Count(...)" gives.
    [[nodiscard]] std::int64_t count(const QString& tail) {
        return connection_.firstValue(QStringLiteral("SELECT Count(*) FROM ") + tail)->integer();
    }
    [[nodiscard]] bool has(const QString& tail) { return count(tail) > 0; }
    [[nodiscard]] QStringList contents() {
        QStringList lines;
        for (const QString& table : tableNames()) {
            Rows all = rows(QStringLiteral("SELECT * FROM ") + table);
            while (all.next()) {
                QString line = table;
                for (int i = 0; i < all.columns(); ++i) line += u'|' + all.value(i).text();
                lines.append(line);
            }
        }
        return lines;
    }

  private:
    QTemporaryDir folder_;
    Connection connection_;
};

struct Width {
    QString table;
    QString field;
    int most;
};

const QList<Width>& widths() {
    static const QList<Width> list = [] {
        QList<Width> all;
        const auto add = [&](const char* table, const char* fields, int most) {
            for (const QString& field : QString::fromLatin1(fields).split(u' '))
                all.append({QString::fromLatin1(table), QStringLiteral("F_") + field, most});
        };
        add("C01_Corp", "Corp Branch Address1 Address2", 50);
        add("C01_Corp", "Tel Fax Title", 20);
        add("C01_Corp", "President", 30);
        add("C02_Section", "SectionCode", 10);
        add("C02_Section", "SectionName", 30);
        add("C02_Section", "Tel Fax", 20);
        add("C03_Staff", "StaffCode Section", 10);
        add("C03_Staff", "StaffName Kana Tel HPhone", 20);
        add("C03_Staff", "ZipCode", 12);
        add("C03_Staff", "Address1 Address2 EMail", 50);
        add("M02_StaffInfo", "Password", 10);
        add("M03_WeekdayStyle", "WeekdayName", 30);
        add("M04_HolidayStyle", "HolidayName", 30);
        add("M05_AmHolidayStyle", "AmHolidayName", 30);
        add("M06_PmHolidayStyle", "PmHolidayName", 30);
        add("M07_AdjustHours", "AdjustName", 30);
        add("M08_Access", "AccessName", 30);
        add("T01_Calendar", "Holiday", 30);
        add("T02_Kurbo", "Plan", 30);
        add("T04_Destination", "DestName", 30);
        return all;
    }();
    return list;
}

TEST(DemoCompany, FitsAllTextIntoItsFields) {
    DemoOptions flexible = options();
    flexible.flexible = true;
    for (const DemoOptions& each : {options(mostPeople, mostSections, 0), options(), flexible}) {
        Company company(each);
        for (const auto& [table, field, most] : widths()) {
            Rows rows = company.rows(QStringLiteral("SELECT %1 FROM %2 WHERE (%1 IS NOT NULL)").arg(field, table));
            while (rows.next()) {
                EXPECT_LE(byteLength(rows.text(0)), most) << field.toStdString() << ' ' << rows.text(0).toStdString();
                EXPECT_TRUE(toCodePage(rows.text(0)).has_value()) << rows.text(0).toStdString();
            }
        }
    }
}

TEST(DemoCompany, GivesEveryoneAndEverySectionAnotherName) {
    Company company(options(mostPeople, mostSections, 0));
    const auto distinct = [&](const QString& statement) {
        QSet<QString> names;
        for (Rows rows = company.rows(statement); rows.next();) names.insert(rows.text(0));
        return names.size();
    };
    EXPECT_EQ(distinct(QStringLiteral("SELECT F_StaffName FROM C03_Staff WHERE (F_Order > 0)")), mostPeople);
    EXPECT_EQ(distinct(QStringLiteral("SELECT F_SectionName FROM C02_Section WHERE (F_Order > 0)")), mostSections);
}

TEST(DemoCompany, IsTheSameForTheSameSeed) {
    const QStringList first = Company(options()).contents();
    EXPECT_EQ(Company(options()).contents(), first);
    EXPECT_NE(Company(options(12, 3, 4, 2)).contents(), first);
}

TEST(DemoCompany, LetsNoStayRunIntoTheNext) {
    for (const bool flexible : {false, true}) {
        DemoOptions large = options(60, 3, 12);
        large.flexible = flexible;
        Company company(large);
        Rows rows = company.rows(
            QStringLiteral("SELECT F_User, F_DateID, F_Enter, F_Leave FROM T02_Kurbo ORDER BY F_User, F_DateID"));
        QString user;
        Moment left;
        while (rows.next()) {
            const auto enter = rows.moment(2);
            const auto leave = rows.moment(3);
            const std::string where = (rows.text(0) + u' ' + rows.text(1)).toStdString();
            if (std::exchange(user, rows.text(0)) != rows.text(0)) left = {};
            EXPECT_TRUE(!enter || *enter > left) << where;
            EXPECT_TRUE(!enter || dateId(dayOf(*enter)) == rows.text(1)) << where;
            EXPECT_TRUE(!enter || !leave || *leave > *enter) << where;
            EXPECT_TRUE(!leave || *leave - Moment{*parseDateId(rows.text(1))} < hours{24 + 7}) << where;
            left = leave.value_or(enter.value_or(left));
        }
    }
}

TEST(DemoCompany, KeepsOutingsWithinTheDay) {
    Company company(options());
    Rows rows = company.rows(QStringLiteral("SELECT F_Enter, F_Leave, F_Out, F_In FROM T03_GoOut INNER JOIN T02_Kurbo "
                                            "ON T03_GoOut.F_KurboID = T02_Kurbo.F_KurboID"));
    while (rows.next()) {
        const auto out = rows.moment(2);
        const auto in = rows.moment(3);
        EXPECT_TRUE(out || in);
        EXPECT_GT(out.value_or(*rows.moment(1)), *rows.moment(0));
        EXPECT_LT(in.value_or(*rows.moment(0)), *rows.moment(1));
        EXPECT_TRUE(!out || !in || *in > *out);
    }
}

// Rows that point at nothing, or at somebody else's.
TEST(DemoCompany, LeavesNoRowWithoutItsParent) {
    Company company(options(40, 5, 3));
    for (const QString& orphans :
         {QStringLiteral("T02_Kurbo WHERE (F_User NOT IN (SELECT F_StaffCode FROM C03_Staff))"),
          QStringLiteral("T02_Kurbo WHERE (F_DateID NOT IN (SELECT F_DateID FROM T01_Calendar))"),
          QStringLiteral("T03_GoOut WHERE (F_KurboID NOT IN (SELECT F_KurboID FROM T02_Kurbo))"),
          QStringLiteral("T03_GoOut INNER JOIN T02_Kurbo ON T03_GoOut.F_KurboID = T02_Kurbo.F_KurboID "
                         "WHERE (F_Destination IS NOT NULL) AND (F_Destination NOT IN "
                         "(SELECT F_DestCode FROM T04_Destination WHERE T04_Destination.F_User = T02_Kurbo.F_User))"),
          QStringLiteral("T05_Approved WHERE (F_Staff NOT IN (SELECT F_StaffCode FROM C03_Staff))"),
          QStringLiteral("T05_Approved WHERE (F_Section NOT IN (SELECT F_SectionCode FROM C02_Section))"),
          QStringLiteral(
              "C03_Staff WHERE (F_Order > 0) AND (F_Section NOT IN (SELECT F_SectionCode FROM C02_Section))"),
          QStringLiteral(
              "C03_Staff WHERE (F_Order > 0) AND (F_StaffCode NOT IN (SELECT F_StaffCode FROM M02_StaffInfo))"),
          QStringLiteral("M02_StaffInfo WHERE (F_Access NOT IN (SELECT F_AccessCode FROM M08_Access))"),
          QStringLiteral("M02_StaffInfo WHERE (F_Weekday NOT IN (SELECT F_WeekdayCode FROM M03_WeekdayStyle))"),
          QStringLiteral("M02_StaffInfo WHERE (F_AdjustHours NOT IN (SELECT F_AdjustCode FROM M07_AdjustHours))")})
        EXPECT_EQ(company.count(orphans), 0) << orphans.toStdString();
}

TEST(DemoCompany, NumbersCardsWithoutGapsInTheOrderOfDays) {
    Company company(options());
    Rows rows = company.rows(QStringLiteral("SELECT F_KurboID, F_DateID, F_User FROM T02_Kurbo ORDER BY F_KurboID"));
    QString before;
    for (std::int64_t id = 1; rows.next(); ++id) {
        EXPECT_EQ(rows.integer(0), id);
        const QString now = rows.text(1) + rows.text(2);
        EXPECT_LT(before, now);
        before = now;
    }
}

TEST(DemoCompany, HasACalendarOfWholeYears) {
    Company company(options());
    Rows rows = company.rows(QStringLiteral("SELECT F_DateID, F_Date, F_Type FROM T01_Calendar ORDER BY F_DateID"));
    Day day = *makeDay(2026, 1, 1);
    for (; rows.next(); day += days{1}) {
        EXPECT_EQ(rows.text(0), dateId(day));
        EXPECT_EQ(*rows.moment(1), Moment{day});
        EXPECT_EQ(rows.text(2) == u"3", weekday{day} == Sunday);
    }
    EXPECT_EQ(day, *makeDay(2028, 1, 1));
}

TEST(DemoCompany, ShowsEverySituation) {
    for (const std::uint32_t seed : {1U, 2U, 3U}) {
        Company company(options(12, 3, 4, seed));
        for (const QString& situation :
             {QStringLiteral("C03_Staff WHERE (F_Retire IS NOT NULL) AND (F_Display = False)"),
              QStringLiteral("M02_StaffInfo WHERE (F_StaffCode <> 'ADMIN') AND (F_Access IS NULL)"),
              QStringLiteral("M02_StaffInfo WHERE (F_Access = 3)"),
              QStringLiteral("M02_StaffInfo WHERE (F_CloseDay = 20)"),
              QStringLiteral("T02_Kurbo WHERE (F_DateID = '20261124') AND (F_Leave IS NULL) AND (F_Enter IS NOT NULL)"),
              QStringLiteral("T02_Kurbo WHERE (Left(F_Leave, 10) > Left(F_Enter, 10))"),
              QStringLiteral("T02_Kurbo WHERE (F_DateID < '20261124') AND (F_Leave IS NULL) AND (F_Enter IS NOT NULL)"),
              QStringLiteral("T02_Kurbo WHERE (F_Enter IS NULL) AND (F_Leave IS NOT NULL)"),
              QStringLiteral("T02_Kurbo WHERE (F_Paid = '0') AND (F_DateID < '20261125')"),
              QStringLiteral("T02_Kurbo WHERE (F_Paid = '1') AND (F_Leave IS NOT NULL)"),
              QStringLiteral("T02_Kurbo WHERE (F_Paid = '2') AND (F_Leave IS NOT NULL)"),
              QStringLiteral("T02_Kurbo WHERE (F_Special = '0')"),
              QStringLiteral("T02_Kurbo WHERE (F_Compens = '0')"),
              QStringLiteral("T02_Kurbo WHERE (F_Paid = '0') AND (F_DateID > '20261125')"),
              QStringLiteral("T03_GoOut WHERE (F_In IS NULL)"),
              QStringLiteral("T03_GoOut WHERE (F_Out IS NULL)"),
              QStringLiteral("T05_Approved WHERE (F_PersonalApproval = True) AND (F_SuperiorApproval = True)"),
              QStringLiteral("T05_Approved WHERE (F_PersonalApproval = True) AND (F_SuperiorApproval = False)"),
              QStringLiteral("T05_Approved WHERE (F_PersonalApproval = False)"),
              QStringLiteral("T05_Approved WHERE (F_Holiday > 0)"),
              QStringLiteral("T05_Approved WHERE (F_Late > 0)"),
              QStringLiteral("T05_Approved WHERE (F_AbsentDay > 0)"),
              QStringLiteral("T05_Approved WHERE (F_LateEnter > 0)"),
              QStringLiteral("T05_Approved WHERE (F_EarlyLeave > 0)")})
            EXPECT_TRUE(company.has(situation)) << seed << ' ' << situation.toStdString();
    }
}

TEST(DemoCompany, StandsAtTheMorningOfToday) {
    Company company(options());
    EXPECT_FALSE(company.has(QStringLiteral("T02_Kurbo WHERE (F_Enter >= #2026/11/25#)")));
    EXPECT_FALSE(company.has(QStringLiteral("T02_Kurbo WHERE (F_Leave >= #2026/11/25#)")));
    // The closing days 31 and 20 give four whole periods each; the newest is not saved by everybody.
    Rows rows =
        company.rows(QStringLiteral("SELECT F_Year, F_Month, F_Term FROM T05_Approved ORDER BY F_Year, F_Month"));
    QSet<QString> periods;
    while (rows.next()) periods.insert(rows.text(0) + rows.text(1) + u' ' + rows.text(2));
    EXPECT_EQ(periods.size(), 8);
    EXPECT_TRUE(periods.contains(QStringLiteral("202607 2026/07/01-2026/07/31")));
    EXPECT_TRUE(periods.contains(QStringLiteral("202611 2026/10/21-2026/11/20")));
}

TEST(DemoCompany, KeepsThePaidLeaveOfTheNewestMonth) {
    Company company(options());
    Rows rows =
        company.rows(QStringLiteral("SELECT T05_Approved.F_Staff, T05_Approved.F_PaidTotal, M02_StaffInfo.F_PaidTotal "
                                    "FROM T05_Approved INNER JOIN M02_StaffInfo ON T05_Approved.F_Staff = "
                                    "M02_StaffInfo.F_StaffCode ORDER BY F_Staff, F_Year, F_Month"));
    QMap<QString, std::pair<double, double>> newest;
    while (rows.next()) newest[rows.text(0)] = {rows.real(1), rows.real(2)};
    EXPECT_EQ(newest.size(), 12);
    for (const auto& [month, person] : newest) EXPECT_EQ(month, person);
}

TEST(DemoCompany, AnswersForThePeopleToTry) {
    Company company(options());
    const QList<DemoPerson> people = demoPeopleToTry(options());
    QSet<QString> roles;
    for (const DemoPerson& person : people) {
        roles.insert(person.role);
        EXPECT_EQ(company.count(QStringLiteral("C03_Staff INNER JOIN M02_StaffInfo ON C03_Staff.F_StaffCode = "
                                               "M02_StaffInfo.F_StaffCode WHERE (C03_Staff.F_StaffCode = '%1') AND "
                                               "(F_Section = '%2') AND (F_StaffName = '%3') AND (F_Password = '%4')")
                                    .arg(person.code, person.section, person.name, person.password)),
                  1);
    }
    EXPECT_EQ(roles.size(), 6);
    EXPECT_EQ(people.size(), 6);
}

TEST(DemoCompany, CanBeSmallLargeOrNew) {
    const Day newYear = *makeDay(2024, 1, 1);
    for (const DemoOptions& each :
         {DemoOptions{1, 1, 0, 1, newYear, false}, DemoOptions{1, 1, 1, 9, newYear, true},
          DemoOptions{12, 200, 1, 1, *makeDay(2024, 2, 29), false}, DemoOptions{12, 1, 2, 1, today, false},
          DemoOptions{50, 2, 1, 4'294'967'295U, *makeDay(2026, 12, 31), true}}) {
        Company company(each);
        EXPECT_EQ(company.count(QStringLiteral("C03_Staff WHERE (F_Order > 0)")), each.people);
        EXPECT_TRUE(company.has(QStringLiteral("M02_StaffInfo WHERE (F_Access = 3)")));
    }
}

TEST(DemoCompany, RefusesOptionsThatMakeNoCompany) {
    EXPECT_THROW(Company(options(0)), Complaint);
    EXPECT_THROW(Company(options(mostPeople + 1)), Complaint);
    EXPECT_THROW(Company(options(12, 0)), Complaint);
    EXPECT_THROW(Company(options(12, 3, -1)), Complaint);
    EXPECT_THROW(Company(DemoOptions{}), Complaint);
}

} // namespace
} // namespace kurbo
