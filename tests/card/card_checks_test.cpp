#include "card/edit/card_checks.h"

#include "card/sheet.h"
#include "support/table.h"
#include "support/told_prompts.h"

namespace kurbo::test {
namespace {

class CardChecks : public ::testing::Test {
  protected:
    CardChecks() { drawDays(sheet, *makeDay(2026, 4, 10), 5); }

    // What the check says: one text, or nothing where all is well.
    template <typename Check>
    QString told(Check check) {
        ToldPrompts prompts;
        const bool passed = check(Context{prompts, desk.clock, desk.paths, desk.progress});
        EXPECT_EQ(prompts.messages.size(), passed ? 0 : 1);
        if (passed) return {};
        EXPECT_EQ(prompts.messages.last().icon, Icon::Exclamation);
        return prompts.messages.last().text;
    }
    QString monthly(const clsWorkTime& rules) {
        return told([&](const Context& context) { return CheckMonthly(context, sheet, rules); });
    }
    QString dayly(const QString& start = u"2026/04/10"_q, const QString& end = u"2026/04/14"_q) {
        return told([&](const Context& context) { return CheckDayly(context, sheet, start, end); });
    }

    Desk desk;
    CardSheet sheet;
};

const QString enterLines = u"の出社時刻が不正です。\r\n出社時刻はhh:mm形式(半角)で入力します。\r\n"
                           "例：8時48分に出社した場合は下記の様に入力します。\r\n    08:48"_q;
const QString leaveLines = u"の退社時刻が不正です。\r\n退社時刻はhh:mm形式(半角)で入力します。\r\n"
                           "例：18時12分に退社した場合は下記の様に入力します。\r\n    18:12\r\n\r\n"
                           "勤務が翌日にまたがった場合の退社時刻には出社日の退社時刻\r\n"
                           "欄に(mm/dd)hh:mm形式(半角)で退社日付を加えて入力します。\r\n"
                           "例：1月30日からの勤務で翌1月31日の18:12に退社した場合は\r\n"
                           "1月30日の退社時刻欄に下記の様に入力します。\r\n    (01/31)18:12"_q;
const QString planLine = u"の予定が不正です。予定は全角15文字(半角30文字)以内で入力します。"_q;
const QString orderLines = u"の出退社時刻が不正です。\r\n退社時刻は出社時刻以降に設定して下さい。"_q;

} // namespace

TEST_F(CardChecks, EachChangedDay) {
    const QMap<QString, QString> refusals{
        {u"plan"_q, planLine}, {u"enter"_q, enterLines}, {u"leave"_q, leaveLines}, {u"order"_q, orderLines}};
    // Plan, enter and leave, a column of leaves and what stands there, and what is wrong.
    for (const QStringList& row : rowsOf(R"(
予予予予予予予予予予予予予予予   | 08:48 | 08:48        | 15 | 午前 |
aaaaaaaaaaaaaaaaaaaaaaaaaaaaaa   |       | 18:12        | 16 | 全日 |
                                 | 22:00 | (04/13)05:00 | 17 | 午後 |
予予予予予予予予予予予予予予予予 | x     |              | 15 |      | plan
                                 | 8:48  | x            | 15 |      | enter
                                 | 08:48 | 08:47        | 15 | x    | order
                                 | 08:48 | 1８:12       | 15 |      | leave
                                 |       | (04/31)18:12 | 15 |      | leave
                                 |       |              | 15 | 終日 | の有給休暇が不正です。/nリストから選択して下さい。
                                 |       |              | 16 | 0    | の特別休暇が不正です。/nリストから選択して下さい。
                                 |       |              | 17 | PM   | の代休が不正です。/nリストから選択して下さい。
)")) {
        drawDays(sheet, *makeDay(2026, 4, 10), 5);
        type(sheet, 2, CardColumn::Plan, row[0]);
        type(sheet, 2, CardColumn::Enter, row[1]);
        type(sheet, 2, CardColumn::Leave, row[2]);
        type(sheet, 2, static_cast<CardColumn>(row[3].toInt()), row[4]);
        EXPECT_EQ(dayly(), row[5].isEmpty() ? QString() : u"26/04/12(日)"_q + refusals.value(row[5], row[5]));
    }
    sheet.grid.RowStatus(firstCardDay + 2, GridStatus::Updated);
    type(sheet, 3, CardColumn::Plan, u"会議"_q);
    EXPECT_EQ(dayly(), QString()) << "rows that the person did not change are not checked";
}

TEST_F(CardChecks, FileModeAndPeriod) {
    const QString noDates = u"期間が不正です。開始日付と終了日付を西暦年でyyyy/mm/dd形式(半角)で入力して下さい。"_q;
    EXPECT_EQ(dayly(u"2026/04/31"_q), noDates);
    EXPECT_EQ(dayly(u"2026/04/10"_q, u"    /  /  "_q), noDates);
    EXPECT_EQ(dayly(u"2026/04/15"_q), u"開始日付が終了日付以降に設定されています。"_q);
    EXPECT_EQ(dayly(u"2026/04/14"_q), QString());
    sheet.blnFileMode = true;
    EXPECT_EQ(dayly(u"x"_q), u"タイムカードファイルを呼出した状態で更新はできません。"_q);
    EXPECT_EQ(monthly({}), u"タイムカードファイルを呼出した状態で月次更新はできません。"_q);
}

TEST_F(CardChecks, FinalSums) {
    const QString number = u"が不正です。数値(半角)を入力して下さい。"_q;
    const QString hour = u"が不正です。時間を入力して下さい。\r\n時間はh:mm形式(半角)で入力します。\r\n"
                         "例：30時間30分の場合は下記の様に入力します。\r\n    30:30"_q;
    clsWorkTime rules;
    // The column, what is typed, the sum's name, and what is said where hours are numbers and where they are h:mm.
    for (const QStringList& row : rowsOf(R"(
3  | 20.5   |                |   |
3  | ２０   | 出勤日数合計   | N | N
4  | 170.5  | 実働時間合計   |   | H
4  | 170:30 | 実働時間合計   | N |
5  | x      | 有給休暇残数   | N | N
6  | x      | 法定内残業合計 | N | H
7  | :30    | 普通残業合計   | N | H
7  | 1.5:30 | 普通残業合計   | N | H
7  | 1：30  | 普通残業合計   | N | H
18 | 1:00   | 欠勤合計       | N | N
)")) {
        for (rules.plngCountUnit = 0; rules.plngCountUnit < 2; ++rules.plngCountUnit) {
            const QuantityFacts& facts = *quantityAt(static_cast<CardColumn>(row[0].toInt()));
            sheet.finals = {};
            sheet.finals[placeOf(facts.id)] = readFigure(facts, row[1], rules.plngCountUnit);
            const QString& kind = row[3 + rules.plngCountUnit];
            EXPECT_EQ(monthly(rules), kind.isEmpty() ? QString() : row[2] + (kind == u"N" ? number : hour)) << row[1];
        }
    }
    const QuantityFacts& difference = factsOf(Quantity::LegalOver);
    sheet.finals = {};
    rules.pbleFlexTime = true;
    sheet.finals[placeOf(difference.id)] = readFigure(difference, u"+1:30"_q, rules.plngCountUnit = 0);
    EXPECT_EQ(monthly(rules), QString());
}

TEST_F(CardChecks, MissingPunches) {
    const QString heading = u"注意! 下記日付の打刻がありません。\r\n"_q;
    type(sheet, 0, CardColumn::Enter, u"08:48"_q);
    type(sheet, 1, CardColumn::Enter, u"08:48"_q);
    type(sheet, 1, CardColumn::Leave, u"18:12"_q);
    type(sheet, 2, CardColumn::Leave, u"18:12"_q);
    EXPECT_EQ(ListMissingPunch(sheet), heading + u"26/04/10(金), 26/04/12(日)"_q);
    sheet.days[2].absent = true;
    EXPECT_EQ(ListMissingPunch(sheet), heading + u"26/04/10(金), 26/04/12(日), \r\n26/04/12(日)"_q);
}

} // namespace kurbo::test
