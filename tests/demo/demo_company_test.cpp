#include "demo/demo_company.h"

#include "demo/demo_people.h"
#include "store/file/database_file.h"
#include "store/schema.h"
#include "support/desk.h"
#include "support/table.h"

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

    [[nodiscard]] Rows rows(const QString& statement) { return connection_.rows(statement); }
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
    EXPECT_FALSE(company.has(u"T02_Kurbo WHERE (F_User NOT IN (SELECT F_StaffCode FROM C03_Staff))"_q));
    EXPECT_FALSE(company.has(u"T05_Approved WHERE (F_Staff NOT IN (SELECT F_StaffCode FROM C03_Staff))"_q));
}

TEST(DemoCompany, ShowsEverySituation) {
    Company company(options());
    for (const QStringList& row : rowsOf(R"(
C03_Staff WHERE (F_Retire IS NOT NULL) AND (F_Display = False)
M02_StaffInfo WHERE (F_StaffCode <> 'ADMIN') AND (F_Access IS NULL)
M02_StaffInfo WHERE (F_CloseDay = 20)
T02_Kurbo WHERE (Left(F_Leave, 10) > Left(F_Enter, 10))
T02_Kurbo WHERE (F_DateID < '20261124') AND (F_Leave IS NULL) AND (F_Enter IS NOT NULL)
T02_Kurbo WHERE (F_Enter IS NULL) AND (F_Leave IS NOT NULL)
T02_Kurbo WHERE (F_Paid = '1') AND (F_Leave IS NOT NULL)
T02_Kurbo WHERE (F_Special = '0')
T02_Kurbo WHERE (F_Compens = '0')
T03_GoOut WHERE (F_In IS NULL)
T05_Approved WHERE (F_PersonalApproval = True) AND (F_SuperiorApproval = False)
T05_Approved WHERE (F_Holiday > 0) AND (F_Late > 0)
T05_Approved WHERE (F_LateEnter > 0)
)"))
        EXPECT_TRUE(company.has(row[0])) << row[0];
}

TEST(DemoCompany, CanBeSmallLargeOrNew) {
    const Day newYear = *makeDay(2024, 1, 1);
    for (const DemoOptions& each :
         {DemoOptions{1, 1, 0, 1, newYear, false}, DemoOptions{12, 200, 1, 1, *makeDay(2024, 2, 29), false},
          DemoOptions{50, 2, 1, 4'294'967'295U, *makeDay(2026, 12, 31), true}}) {
        Company company(each);
        EXPECT_EQ(company.count(u"C03_Staff WHERE (F_Order > 0)"_q), each.people);
        EXPECT_TRUE(company.has(u"M02_StaffInfo WHERE (F_Access = 3)"_q));
    }
}

} // namespace
} // namespace kurbo::test
