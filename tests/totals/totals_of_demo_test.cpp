#include "card/demo_site.h"
#include "totals/total_lines.h"
#include "totals/total_sheet.h"

#include <set>

using namespace std::chrono_literals;
using std::chrono::year_month;

namespace kurbo::test {
namespace {

// A demo company, of which the totals of every section are compared with the cards of its people.
struct DemoCase {
    bool flexible;
    int roundMethod;
};

class TotalsOfDemo : public DemoSite, public ::testing::WithParamInterface<DemoCase> {
  protected:
    TotalsOfDemo() : DemoSite(GetParam().flexible) {
        connection.execute(
            u"UPDATE M01_CorpInfo SET F_RoundMethod = ?, F_RoundHour = 1, F_RoundEnter = 1, F_RoundLeave = 0"_q,
            {GetParam().roundMethod});
    }

    // A line shows what the card of its month shows: the record where there is one, else what the days add up to.
    void compareWithCard(const TotalLine& line) {
        const TotalRow& row = *line.row;
        const auto own = monthOf(row.staff, row.month);
        ASSERT_TRUE(own);
        EXPECT_EQ(row.saved, own->saved);
        QStringList expected = own->summary[row.saved ? 2 : 1].mid(3, 18);
        QString difference;
        // The card shows the difference in the place of legal overtime, which flexible work doesn't have.
        if (GetParam().flexible && !row.saved) difference = std::exchange(expected[3], u"0:00"_q);
        EXPECT_EQ(line.cells.mid(3, 18), expected) << row.staff << " " << line.cells[2];
        EXPECT_EQ(line.cells[26], difference) << row.staff << " " << line.cells[2];
        EXPECT_TRUE(row.personalApproval == own->personalApproval && row.superiorApproval == own->superiorApproval);
    }

    void compareSection(const QString& section, std::set<std::pair<QString, year_month>>& seen) {
        // From before the first card, and into months that are still to come.
        const auto totals = calculateTotals(desk.context, connection, {section, {}, 2025y / 12, 2026y / 8, true});
        ASSERT_TRUE(totals);
        for (const TotalLine& line : totalLines(*totals)) {
            if (!line.row) continue;
            compareWithCard(line);
            seen.emplace(line.row->staff, line.row->month);
        }
    }
    std::optional<Totals> totals(const QString& section, const QString& staff = {}) {
        return calculateTotals(desk.context, connection, {section, staff, 2026y / 1, 2026y / 6, true});
    }
    static void expectEqual(const TotalRow& one, const TotalRow& other) {
        EXPECT_TRUE(one.figures == other.figures && one.difference == other.difference) << one.staff;
    }
};

INSTANTIATE_TEST_SUITE_P(Companies, TotalsOfDemo,
                         ::testing::Values(DemoCase{false, 0}, DemoCase{false, 1}, DemoCase{true, 0},
                                           DemoCase{true, 1}));

} // namespace

TEST_P(TotalsOfDemo, EqualTheCardsOfAllPeopleMonthByMonth) {
    std::set<std::pair<QString, year_month>> seen;
    Rows sections = connection.rows(u"SELECT F_SectionCode FROM C02_Section"_q);
    while (sections.next()) compareSection(sections.text(0), seen);
    const auto people = connection.firstValue(u"SELECT Count(*) FROM C03_Staff WHERE (F_Display = True)"_q);
    EXPECT_EQ(std::ssize(seen), people->integer() * 9);
    // Without its record each month is calculated, and so is one between two records.
    for (const char16_t* without : {u"WHERE (F_Month = '04')", u""}) {
        connection.execute(u"DELETE FROM T05_Approved "_q + QString::fromUtf16(without));
        Rows again = connection.rows(u"SELECT F_SectionCode FROM C02_Section"_q);
        while (again.next()) compareSection(again.text(0), seen);
    }
}

// The codes are equal without regard to case.
TEST_P(TotalsOfDemo, OfOnePersonAreThoseOfTheSection) {
    const auto before = totals(u"S03"_q);
    connection.execute(u"UPDATE C03_Staff SET F_StaffCode = 'a9' WHERE (F_StaffCode = '1010')"_q);
    connection.execute(u"UPDATE M02_StaffInfo SET F_StaffCode = 'A9' WHERE (F_StaffCode = '1010')"_q);
    connection.execute(u"UPDATE T02_Kurbo SET F_User = 'A9' WHERE (F_User = '1010')"_q);
    connection.execute(u"UPDATE T05_Approved SET F_Staff = 'A9' WHERE (F_Staff = '1010')"_q);
    const auto section = totals(u"S03"_q);
    const auto person = totals({}, u"a9"_q);
    ASSERT_TRUE(before && section && person && before->rows.size() == section->rows.size());
    std::size_t own = 0;
    for (std::size_t i = 0; i < section->rows.size(); ++i) {
        expectEqual(section->rows[i], before->rows[i]);
        if (before->rows[i].staff == u"1010") expectEqual(person->rows.at(own++), before->rows[i]);
    }
    EXPECT_EQ(own, 6U);
}

TEST_P(TotalsOfDemo, AreReadByDayAsByPerson) {
    connection.execute(u"DELETE FROM T05_Approved WHERE (F_Month <> '03')"_q);
    const auto byDay = totals(u"S03"_q);
    // Among many people those of the section are few.
    for (int i = 0; i < 100; ++i)
        connection.execute(u"INSERT INTO C03_Staff (F_StaffCode, F_StaffName) VALUES (?, 'x')"_q, {u"x%1"_q.arg(i)});
    const auto byPerson = totals(u"S03"_q);
    ASSERT_TRUE(byDay && byPerson && byDay->rows.size() == byPerson->rows.size() && byDay->rows.size() > 6);
    for (std::size_t i = 0; i < byDay->rows.size(); ++i) expectEqual(byDay->rows[i], byPerson->rows[i]);
}

} // namespace kurbo::test
