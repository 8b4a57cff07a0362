#include "card/rptKurbo.h"

#include "card/sheet.h"
#include "paper/paper_texts.h"

namespace kurbo::test {
namespace {

class RptKurbo : public ::testing::Test {
  protected:
    RptKurbo() {
        drawDays(sheet, *makeDay(2026, 4, 1), 30);
        const QStringList headings =
            u"日付 休日 予定（メモ） 出社時刻 退社時刻 時間差 普通残業 深夜残業 早出勤務 休日出勤 "
            "休日深夜 法休出勤 法休深夜 欠勤時間 有給 特休 代休 欠勤 遅刻 早退"_q.split(u' ');
        for (int i = 0; i < headings.size(); ++i) sheet.grid.TextMatrix(0, i + 1, headings[i]);
        for (int column = 3; column <= 20; ++column) {
            sheet.grid.TextMatrix(daySumRow, column, u"S%1"_q.arg(column));
            sheet.grid.TextMatrix(finalSumRow, column, u"F%1"_q.arg(column));
        }
    }
    [[nodiscard]] rptKurbo report() const {
        return {sheet.grid,
                {u"2026/04/01"_q, u"2026/04/30"_q, {u"S01"_q, u"総務部"_q}, {u"1001"_q, u"佐藤　一郎"_q}},
                *makeDay(2026, 5, 7)};
    }

    CardSheet sheet;
};

TEST_F(RptKurbo, AMonthStandsOnOnePage) {
    type(sheet, 0, CardColumn::Plan, u"大阪"_q);
    type(sheet, 0, CardColumn::Enter, u"09:00"_q);
    type(sheet, 0, CardColumn::LegalOver, u"+1:30"_q);
    type(sheet, 0, CardColumn::Absent, u"1234:56"_q);
    const rptKurbo month = report();
    ASSERT_EQ(month.pageCount(), 1);
    const PaperPage page = month.page(0);
    const QStringList lines = linesOf(page);
    EXPECT_TRUE(lines.contains(u"2026/04/01～2026/04/30    部課：総務部 (S01)    氏名：佐藤　一郎 (1001)"_q));
    EXPECT_EQ(lines.filter(u"日付|予定（メモ）|出社時刻|退社時刻|時間差|普通残業"_q).size(), 1);
    EXPECT_TRUE(lines.contains(u"26/04/01(水)|大阪|09:00|+1:30|1234:5"_q)) << "edits, cut to the field";
    QStringList sums;
    for (const QChar kind : {u'S', u'F'}) {
        QStringList cells;
        for (int column = 3; column <= 20; ++column) cells.append(kind + QString::number(column));
        sums.append(cells.join(u'|'));
    }
    EXPECT_EQ(lines.mid(lines.size() - 3, 2), sums) << "below the days";
    for (const QString& text : {u"本人"_q, u"所属長"_q, u"1 / 1"_q, u"印刷日：2026/05/07"_q}) itemOf(page, text);
    expectClean(month);
}

TEST_F(RptKurbo, DatesLookLikeTheirDays) {
    const QStringList types{{}, u"0"_q, u"1"_q, u"2"_q, u"3"_q};
    for (int day = 0; day < types.size(); ++day) type(sheet, day, CardColumn::Holiday, types[day]);
    const PaperPage page = report().page(0);
    constexpr GridColour black, red{255, 0, 0}, blue{0, 0, 255};
    const std::array colours{black, red, blue, blue, red};
    for (int day = 0; day < types.size(); ++day) {
        const PaperItem date = itemOf(page, cardText(sheet.grid, firstCardDay + day, CardColumn::Date));
        EXPECT_TRUE(date.bold == (day > 0) && date.fore == colours[static_cast<std::size_t>(day)]) << day;
    }
}

TEST_F(RptKurbo, HiddenColumnsLeaveNoGapInAnyLine) {
    for (const CardColumn column : {CardColumn::LegalOver, CardColumn::Late, CardColumn::Paid, CardColumn::EarlyLeave})
        sheet.grid.ColHidden(static_cast<int>(column), true);
    type(sheet, 4, CardColumn::Over, u"0:45"_q);
    type(sheet, 4, CardColumn::Early, u"0:30"_q);
    const rptKurbo month = report();
    const PaperPage page = month.page(0);
    EXPECT_FALSE(linesOf(page).join(u'|').contains(u"時間差"_q) || linesOf(page).join(u'|').contains(u"S15"_q));
    for (const QString& over : {u"普通残業"_q, u"0:45"_q, u"S7"_q, u"F7"_q})
        EXPECT_EQ(itemOf(page, over).left, itemOf(page, u"退社時刻"_q).right()) << over;
    for (const QString& early : {u"早出勤務"_q, u"0:30"_q, u"S9"_q, u"F9"_q})
        EXPECT_EQ(itemOf(page, early).left, itemOf(page, u"普通残業"_q).right()) << early;
    EXPECT_EQ(itemOf(page, u"特休"_q).left, itemOf(page, u"欠勤時間"_q).right());
    expectClean(month);
}

} // namespace
} // namespace kurbo::test
