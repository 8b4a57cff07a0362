#include "totals/rptTotal.h"

#include "paper/paper_texts.h"
#include "totals/total_sheet.h"

namespace kurbo::test {
namespace {

Totals totalsOf(const QStringList& names, unsigned months, bool byStaff) {
    Totals totals;
    totals.byStaff = byStaff;
    const auto people = static_cast<unsigned>(names.size());
    for (unsigned i = 0; i < people * months; ++i) {
        const unsigned person = byStaff ? i / months : i % people;
        const unsigned month = 1 + (byStaff ? i % months : i / people);
        TotalRow row;
        row.staff = QString::number(1001 + person);
        row.name = names[person];
        row.month = std::chrono::year(2026) / std::chrono::month(month);
        row.figures.fill(60min);
        row.figures[2] = DayHundredths(static_cast<int>(month) * 100);
        totals.rows.push_back(row);
    }
    return totals;
}

class RptTotal : public ::testing::Test {
  protected:
    void fill(const QStringList& names, unsigned months, bool byStaff) { sheet.show(totalsOf(names, months, byStaff)); }
    [[nodiscard]] rptTotal report(const CodeName& staff = {}) const {
        return {sheet, {u"2026/01"_q, u"2026/12"_q, {u"S01"_q, u"総務部"_q}, staff}, *makeDay(2026, 5, 7)};
    }
    // Of each line between headings and footer the first four texts.
    static QStringList begins(const rptTotal& report, int page) {
        QStringList lines = linesOf(report.page(page)).mid(3);
        lines.removeLast();
        for (QString& line : lines) line = line.section(u'|', 0, 3);
        return lines;
    }

    TotalSheet sheet;
};

TEST_F(RptTotal, GroupsAreMonthsOrPeople) {
    const QString month = u"|60|1:00|1.0"_q;
    fill({u"佐藤"_q, u"鈴木"_q}, 1, true);
    EXPECT_EQ(begins(report(), 0),
              QStringList({u"佐藤"_q, u"2026年 01月"_q + month, u"小計"_q + month, u"鈴木"_q, u"2026年 01月"_q + month,
                           u"小計"_q + month, u"合計"_q, u"120|2:00|2.0|2:00"_q}));
    fill({u"佐藤"_q, u"鈴木"_q}, 1, false);
    EXPECT_EQ(begins(report(), 0), QStringList({u"2026年 01月"_q, u"佐藤"_q + month, u"鈴木"_q + month,
                                                u"小計|120|2:00|2.0"_q, u"合計"_q, u"120|2:00|2.0|2:00"_q}));
    const PaperPage page = report({u"1001"_q, u"佐藤"_q}).page(0);
    EXPECT_EQ(linesOf(page).mid(0, 2), QStringList({u"月次集計"_q, u"2026/01～2026/12    部課：総務部 (S01)"
                                                                   "    氏名：佐藤 (1001)"_q}));
    EXPECT_TRUE(itemOf(page, u"小計"_q).bold);
    fill({u"一二三四五六七八九十"_q, u"一二三四五六七八九十"_q}, 1, true);
    EXPECT_EQ(begins(report(), 0).filter(u"十"_q),
              QStringList({u"一二三四五六七八九十 (1001)"_q, u"一二三四五六七八九十 (1002)"_q}));
}

TEST_F(RptTotal, AYearOfASectionGoesOverPages) {
    QStringList names;
    for (int i = 0; i < 20; ++i) names.append(u"社員%1"_q.arg(i));
    for (const bool byStaff : {true, false}) {
        fill(names, 12, byStaff);
        const rptTotal year = report();
        EXPECT_GT(year.pageCount(), 6);
        for (int page = 0; page < year.pageCount(); ++page) {
            const QStringList lines = begins(year, page);
            EXPECT_FALSE(lines.first().contains(u'|')) << "under a group's heading: " << lines.first();
            EXPECT_TRUE(lines.last().contains(u'|')) << "no heading alone: " << lines.last();
            EXPECT_FALSE(lines.value(1).startsWith(u"小計"_q)) << "no sum alone";
        }
        EXPECT_EQ(begins(year, year.pageCount() - 1).last(), u"14400|240:00|1560.0|240:00"_q);
        expectClean(year);
    }
}

} // namespace
} // namespace kurbo::test
