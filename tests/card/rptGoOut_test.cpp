#include "card/outings/rptGoOut.h"

#include "paper/paper_texts.h"
#include "support/sample_company.h"

namespace kurbo::test {
namespace {

class RptGoOut : public SampleCompany {
  protected:
    RptGoOut() {
        addCard(1, *makeDay(2026, 4, 1), u"08:52"_q, u"18:05"_q);
        addCard(2, *makeDay(2026, 4, 30), u"09:00"_q, u"18:00"_q);
        addCard(3, *makeDay(2026, 5, 1), u"09:00"_q, u"18:00"_q);
        addCard(4, *makeDay(2026, 4, 1), u"09:00"_q, u"18:00"_q, {}, u"1002"_q);
        insert("T04_Destination", "DestCode, DestName, User", u"1, '倉庫', '1001'"_q);
        for (const auto& [key, order] : {std::pair{2, 5}, {1, 2}, {1, 1}, {3, 1}, {4, 1}})
            connection.execute(u"INSERT INTO T03_GoOut (F_KurboID, F_Order, F_Out, F_Destination, F_Expense) "
                               "VALUES (?, ?, #2026/04/01 10:05:31#, 1, ?)"_q,
                               {key, order, order == 2 ? Value() : Value(key * 1000 + order)});
        connection.execute(u"UPDATE T03_GoOut SET F_In = #2026/04/01 11:20:00# WHERE (F_Order = 2)"_q);
    }
    [[nodiscard]] std::unique_ptr<rptGoOut> april() {
        return makeGoOutReport(desk.context, connection, {u"S01"_q, u"総務部"_q}, {u"1001"_q, u"佐藤一郎"_q},
                               {*makeDay(2026, 4, 1), *makeDay(2026, 4, 30)});
    }
};

TEST_F(RptGoOut, ListsAPersonsOutingsOfThePeriod) {
    const auto report = april();
    ASSERT_TRUE(report);
    EXPECT_EQ(linesOf(report->page(0)),
              QStringList({u"外出出張明細"_q, u"部課：総務部 (S01)    氏名：佐藤一郎 (1001)"_q,
                           u"2026年 04月 01日～2026年 04月 30日"_q, u"日付|外出時刻|帰社時刻|外出先|交通費"_q,
                           u"2026/04/01(水)|10:05|倉庫|¥1,001"_q, u"2026/04/01(水)|10:05|11:20|倉庫"_q,
                           u"2026/04/30(木)|10:05|倉庫|¥2,005"_q, u"合計|¥3,006"_q, u"印刷日：2026/04/15"_q}));
    expectClean(*report);
}

TEST_F(RptGoOut, OutingsWithoutAPlaceAreCounted) {
    insert("T03_GoOut", "KurboID, Order, Expense", u"1, 3, 500"_q);
    insert("T03_GoOut", "KurboID, Order, Expense", u"2, 6, Null"_q);
    const QStringList shown = linesOf(april()->page(0));
    EXPECT_EQ(
        shown.mid(shown.size() - 3, 2).join(u'|'),
        u"合計|¥3,006|外出先の登録が無い外出が2件あります（交通費 ¥500）。上の一覧と合計には含まれていません。"_q);
}

} // namespace
} // namespace kurbo::test
