#include "demo/demo_company.h"

#include "demo/demo_people.h"
#include "store/file/database_file.h"
#include "store/schema.h"
#include "support/desk.h"

#include <QMap>
#include <QSet>

using namespace std::chrono;

namespace kurbo::test {
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
        const QString path = folder_.filePath(u"demo.mdb"_q);
        createDatabase(path);
        connection_.open(path, databasePassword());
        makeDemoCompany(connection_, options);
    }

    [[nodiscard]] Rows rows(const QString& statement, const Values& values = {}) {
        return connection_.rows(statement, values);
    }
    // The number that a "SELECT Count(...)" gives.
    [[nodiscard]] std::int64_t count(const QString& tail) {
        return connection_.firstValue(u"SELECT Count(*) FROM "_q + tail)->integer();
    }
    [[nodiscard]] bool has(const QString& tail) { return count(tail) > 0; }
    [[nodiscard]] QString contents() {
        QString all;
        for (const QString& table : tableNames())
            for (Rows found = rows(u"SELECT * FROM "_q + table); found.next(); all += u'\n')
                for (int i = 0; i < found.columns(); ++i) all += u'|' + found.value(i).text();
        return all;
    }

  private:
    QTemporaryDir folder_;
    Connection connection_;
};

TEST(DemoCompany, GivesEveryoneAndEverySectionAnotherName) {
    Company company(options(mostPeople, mostSections, 0));
    EXPECT_EQ(company.count(u"(SELECT DISTINCT F_StaffName FROM C03_Staff WHERE (F_Order > 0))"_q), mostPeople);
    EXPECT_EQ(company.count(u"(SELECT DISTINCT F_SectionName FROM C02_Section WHERE (F_Order > 0))"_q), mostSections);
}

TEST(DemoCompany, IsTheSameForTheSameSeed) {
    const QString first = Company(options()).contents();
    EXPECT_EQ(Company(options()).contents(), first);
    EXPECT_NE(Company(options(12, 3, 4, 2)).contents(), first);
}

TEST(DemoCompany, LetsNoStayRunIntoTheNext) {
    for (const bool flexible : {false, true}) {
        DemoOptions large = options(60, 3, 12);
        large.flexible = flexible;
        Company company(large);
        Rows rows =
            company.rows(u"SELECT F_User, F_DateID, F_Enter, F_Leave FROM T02_Kurbo ORDER BY F_User, F_DateID"_q);
        QString user;
        Moment left;
        while (rows.next()) {
            const auto enter = rows.moment(2);
            const auto leave = rows.moment(3);
            const QString where = rows.text(0) + u' ' + rows.text(1);
            if (std::exchange(user, rows.text(0)) != rows.text(0)) left = {};
            EXPECT_TRUE(!enter || *enter > left) << where;
            EXPECT_TRUE(!enter || dateId(dayOf(*enter)) == rows.text(1)) << where;
            EXPECT_TRUE(!enter || !leave || *leave > *enter) << where;
            EXPECT_TRUE(!leave || *leave - Moment{*parseDateId(rows.text(1))} < hours{24 + 7}) << where;
            left = leave.value_or(enter.value_or(left));
        }
    }
}

// Rows that point at nothing, or at somebody else's.
TEST(DemoCompany, LeavesNoRowWithoutItsParentAndNoOutingOutsideOfItsDay) {
    Company company(options(40, 5, 3));
    EXPECT_FALSE(company.has(u"T03_GoOut INNER JOIN T02_Kurbo ON T03_GoOut.F_KurboID = T02_Kurbo.F_KurboID WHERE "
                             "(F_Out <= F_Enter) OR (F_In >= F_Leave) OR (F_In <= F_Out) OR "
                             "((F_Out IS NULL) AND (F_In IS NULL))"_q));
    // A table, a field of it, and the field and table that it refers to.
    for (const char* relation :
         {"T02_Kurbo User StaffCode C03_Staff", "T05_Approved Staff StaffCode C03_Staff",
          "T05_Approved Section SectionCode C02_Section", "M02_StaffInfo Access AccessCode M08_Access",
          "M02_StaffInfo Weekday WeekdayCode M03_WeekdayStyle"}) {
        const QStringList parts = QString::fromLatin1(relation).split(u' ');
        EXPECT_FALSE(
            company.has(u"%1 WHERE (F_%2 NOT IN (SELECT F_%3 FROM %4))"_q.arg(parts[0], parts[1], parts[2], parts[3])))
            << relation;
    }
    EXPECT_EQ(company.count(u"T03_GoOut INNER JOIN T02_Kurbo ON T03_GoOut.F_KurboID = T02_Kurbo.F_KurboID "
                            "WHERE (F_Destination IS NOT NULL) AND (F_Destination NOT IN (SELECT F_DestCode FROM "
                            "T04_Destination WHERE T04_Destination.F_User = T02_Kurbo.F_User))"_q),
              0);
}

TEST(DemoCompany, ShowsEverySituation) {
    for (const std::uint32_t seed : {1U, 2U, 3U}) {
        Company company(options(12, 3, 4, seed));
        for (const QString& situation :
             {u"C03_Staff WHERE (F_Retire IS NOT NULL) AND (F_Display = False)"_q,
              u"M02_StaffInfo WHERE (F_StaffCode <> 'ADMIN') AND (F_Access IS NULL)"_q,
              u"M02_StaffInfo WHERE (F_Access = 3)"_q, u"M02_StaffInfo WHERE (F_CloseDay = 20)"_q,
              u"T02_Kurbo WHERE (F_DateID = '20261124') AND (F_Leave IS NULL) AND (F_Enter IS NOT NULL)"_q,
              u"T02_Kurbo WHERE (Left(F_Leave, 10) > Left(F_Enter, 10))"_q,
              u"T02_Kurbo WHERE (F_DateID < '20261124') AND (F_Leave IS NULL) AND (F_Enter IS NOT NULL)"_q,
              u"T02_Kurbo WHERE (F_Enter IS NULL) AND (F_Leave IS NOT NULL)"_q,
              u"T02_Kurbo WHERE (F_Paid = '1') AND (F_Leave IS NOT NULL)"_q,
              u"T05_Approved WHERE (F_PersonalApproval = True) AND (F_SuperiorApproval = False)"_q})
            EXPECT_TRUE(company.has(situation)) << seed << ' ' << situation;
        for (const char* field :
             {"T02_Kurbo F_Special = '0'", "T02_Kurbo F_Compens = '0'", "T03_GoOut F_In IS NULL",
              "T03_GoOut F_Out IS NULL", "T05_Approved F_SuperiorApproval", "T05_Approved F_PersonalApproval = False",
              "T05_Approved F_Holiday > 0", "T05_Approved F_Late > 0", "T05_Approved F_AbsentDay > 0",
              "T05_Approved F_LateEnter > 0", "T05_Approved F_EarlyLeave > 0"})
            EXPECT_TRUE(company.has(QString::fromLatin1(field).replace(u" F_"_q, u" WHERE F_"_q))) << field;
    }
}

TEST(DemoCompany, StandsAtTheMorningOfToday) {
    Company company(options());
    EXPECT_FALSE(company.has(u"T02_Kurbo WHERE (F_Enter >= #2026/11/25#) OR (F_Leave >= #2026/11/25#)"_q));
    // The closing days 31 and 20 give four whole periods each; the newest is not saved by everybody.
    Rows rows = company.rows(u"SELECT F_Year, F_Month, F_Term FROM T05_Approved ORDER BY F_Year, F_Month"_q);
    QSet<QString> periods;
    while (rows.next()) periods.insert(rows.text(0) + rows.text(1) + u' ' + rows.text(2));
    EXPECT_EQ(periods.size(), 8);
    EXPECT_TRUE(periods.contains(u"202611 2026/10/21-2026/11/20"_q));
}

TEST(DemoCompany, KeepsThePaidLeaveOfTheNewestMonth) {
    Company company(options());
    const QString months = u"T05_Approved INNER JOIN M02_StaffInfo ON T05_Approved.F_Staff = M02_StaffInfo.F_StaffCode "
                           "WHERE (F_Year & F_Month = (SELECT Max(B.F_Year & B.F_Month) FROM T05_Approved AS B WHERE "
                           "B.F_Staff = T05_Approved.F_Staff))"_q;
    EXPECT_EQ(company.count(months + u" AND (T05_Approved.F_PaidTotal = M02_StaffInfo.F_PaidTotal)"_q), 12);
}

TEST(DemoCompany, CanBeSmallLargeOrNew) {
    const Day newYear = *makeDay(2024, 1, 1);
    for (const DemoOptions& each :
         {DemoOptions{1, 1, 0, 1, newYear, false}, DemoOptions{1, 1, 1, 9, newYear, true},
          DemoOptions{12, 200, 1, 1, *makeDay(2024, 2, 29), false}, DemoOptions{12, 1, 2, 1, today, false},
          DemoOptions{50, 2, 1, 4'294'967'295U, *makeDay(2026, 12, 31), true}}) {
        Company company(each);
        EXPECT_EQ(company.count(u"C03_Staff WHERE (F_Order > 0)"_q), each.people);
        EXPECT_TRUE(company.has(u"M02_StaffInfo WHERE (F_Access = 3)"_q));
    }
}

} // namespace
} // namespace kurbo::test
