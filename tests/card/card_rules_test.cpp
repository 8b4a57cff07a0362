#include "card/edit/card_rules.h"

#include "card/sheet.h"
#include "support/table.h"

namespace kurbo::test {
namespace {

constexpr int day = firstCardDay;

// A card of 31 January with both punches, and one of 31 December without.
class CardRulesTest : public ::testing::Test {
  protected:
    CardRulesTest() {
        Card card = emptyCard(*makeDay(2026, 1, 31), 1);
        card.entries[0].storedEnter = at(*makeDay(2026, 1, 31), 8, 52, 17);
        const Card december = emptyCard(*makeDay(2026, 12, 31), 1);
        card.days += december.days;
        card.entries.push_back(december.entries[0]);
        sheet.show(card);
        sheet.grid.setRules(&cells);
        reader.cardShown = true;
    }
    // The columns that may be edited in the row.
    [[nodiscard]] QList<int> open(int row) const {
        QList<int> columns;
        for (int column = 0; column < cardColumns; ++column)
            if (sheet.grid.Editable(row, column)) columns.append(column);
        return columns;
    }

    AccessRights access;
    CardReader reader{access};
    clsWorkTime rules;
    CardSheet sheet;
    CardRules cells{sheet, reader, rules};
};

TEST_F(CardRulesTest, EveryRightOpensItsOwnCells) {
    const QList<int> sums{3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20};
    const std::tuple<Right, Right, QList<int>, QList<int>> cases[] = {
        {Right::WriteMyPlan, Right::WriteOtherPlan, {3}, {}},
        {Right::WriteMyTime, Right::WriteOtherTime, {4, 5}, {}},
        {Right::WriteMyPaid, Right::WriteOtherPaid, {15}, {}},
        {Right::WriteMySpecial, Right::WriteOtherSpecial, {16}, {}},
        {Right::WriteMyCompens, Right::WriteOtherCompens, {17}, {}},
        {Right::WriteMyMonthly, Right::WriteOtherMonthly, {}, sums},
    };
    for (const auto& [my, other, dayCells, sumCells] : cases)
        for (const bool own : {true, false}) {
            access.rights = {};
            access.set(own ? my : other, true);
            reader.blnMyCard = own;
            EXPECT_EQ(open(day), dayCells);
            EXPECT_EQ(open(finalSumRow), sumCells);
            reader.blnMyCard = !own;
            EXPECT_TRUE(open(day).isEmpty() && open(finalSumRow).isEmpty());
        }
    reader.blnMyCard = false;
    rules.pbleFlexTime = true;
    EXPECT_FALSE(sheet.grid.Editable(finalSumRow, 6)) << "a time difference is never typed";
    sheet.blnFileMode = true;
    EXPECT_TRUE(open(finalSumRow).isEmpty());
}

TEST_F(CardRulesTest, JudgesAnEntry) {
    // The row, 4 and 5 being days and 3 the final sums, the column, the text, and a part of what is said against it.
    for (const QStringList& row : rowsOf(R"(
4 | 3  | あいうえおかきくけこさしすせそ  |
4 | 3  | あいうえおかきくけこさしすせそa | 全角15文字
4 | 4  | ０８:48      | 時刻を入力して下さい。/n出社時刻は
4 | 5  | (02/01)06:00 |
4 | 5  | (13/01)06:00 | (01/31)18:12
4 | 15 | 午前         |
4 | 16 | 半日         | リストから選択して下さい。
3 | 3  | ２０         | 数値(半角)
3 | 4  | 170:30       |
3 | 4  | 170.5        | 時間はh:mm形式(半角)
)")) {
        const QString refusal = cells.refusal(row[0].toInt(), row[1].toInt(), row[2]);
        EXPECT_TRUE(refusal.isEmpty() == row[3].isEmpty() && refusal.contains(row[3])) << row[2] << refusal;
    }
    rules.plngCountUnit = 0;
    EXPECT_TRUE(cells.refusal(3, 4, u"170.5"_q).isEmpty());
    EXPECT_TRUE(cells.refusal(3, 4, u"170:30"_q).contains(u"数値(半角)"_q));
}

TEST_F(CardRulesTest, MarksWhatWasEdited) {
    for (const Right right : {Right::WriteMyPlan, Right::WriteMyTime, Right::WriteMyMonthly}) access.set(right, true);
    int told = 0;
    sheet.onEdit = [&told] { ++told; };
    sheet.grid.edit(day, 3, u"出張"_q);
    EXPECT_TRUE(sheet.blnCardChanged && !sheet.blnMonthChanged && !sheet.blnEnterEdited(day));
    sheet.grid.edit(day, 4, u"09:00"_q);
    sheet.grid.edit(day + 1, 5, u"17:30"_q);
    sheet.grid.edit(finalSumRow, 7, u"3:00"_q);
    EXPECT_TRUE(sheet.blnEnterEdited(day) && !sheet.blnLeaveEdited(day) && sheet.blnLeaveEdited(day + 1));
    EXPECT_TRUE(sheet.blnMonthChanged);
    EXPECT_EQ(told, 4);
    sheet.drawn();
    EXPECT_FALSE(sheet.blnCardChanged || sheet.blnEnterEdited(day));
    EXPECT_EQ(sheet.grid.RowStatus(day), GridStatus::None);
}

TEST_F(CardRulesTest, TellsWhatACellTakes) {
    EXPECT_EQ(cells.PaidKindList(), u"|#0;全日|#1;午前|#2;午後"_q);
    rules.plngAmHolidayWork = 0;
    EXPECT_EQ(cells.comboList(day, 15), u"|#0;全日|#2;午後"_q);
    EXPECT_EQ(cells.comboList(finalSumRow, 15) + cells.comboList(day, 14), u""_q);
    EXPECT_EQ(cells.detail(day, 4), u"2026/01/31(土) 出社時刻 : 08:52:17"_q);
}

} // namespace
} // namespace kurbo::test
