#include "card/monthly.h"

#include "card/card_office.h"
#include "card/card_screen.h"
#include "card/sheet.h"
#include "month/saved_figures.h"

namespace kurbo::test {
namespace {

class Monthly : public CardOffice {
  protected:
    Monthly() { drawDays(sheet, *makeDay(2026, 3, 1), 31); }

    // Columns 3 to 20, separated by "|", as they are typed.
    void type(const QString& sums) {
        const QStringList texts = sums.split(u'|');
        for (const QuantityFacts& facts : quantities)
            sheet.finals[placeOf(facts.id)] =
                readFigure(facts, texts[static_cast<qsizetype>(placeOf(facts.id))], rules.plngCountUnit);
    }
    static QString sums(const GridModel& grid, int row) {
        QStringList cells;
        for (const QuantityFacts& facts : quantities) cells.append(cardText(grid, row, cardColumnOf(facts.id)));
        return cells.join(u'|');
    }
    bool save(int month, const QString& finalSums) {
        type(finalSums);
        rules.psngPaidTotal = balance().toFloat();
        return UpdateMonthly(desk.context, connection, sheet, rules,
                             {u"1001"_q, u"S01"_q, {*makeDay(2026, month, 1), *makeDay(2026, month, 28)}});
    }
    // The fields of a saved month, "-" for Null.
    QString saved(const QString& month) {
        Rows found = connection.rows(
            u"SELECT F_Section, F_Year, F_WorkDay, F_Work, F_PaidTotal, F_LegalOver, F_Over, F_Absent, F_Paid, "
            "F_Compens, F_AbsentDay, F_EarlyLeave, F_Term, F_PersonalApproval, F_SuperiorApproval "
            "FROM T05_Approved WHERE (F_Staff = '1001') AND (F_Month = ?)"_q,
            {month});
        QStringList fields;
        if (!found.next()) return {};
        for (int i = 0; i < found.columns(); ++i) fields.append(found.isNull(i) ? u"-"_q : found.text(i));
        return fields.join(u' ');
    }
    QString balance() { return asked(u"SELECT F_PaidTotal FROM M02_StaffInfo WHERE (F_StaffCode = '1001')"_q); }

    CardSheet sheet;
    clsWorkTime rules;
};

const QString daySums = u"20|170:30|18.5|3:00|45:00|45:01||5:00|6:00|7:00|8:00|9:00|1.5|0.0|1.0|2|3|4"_q;

} // namespace

TEST_F(Monthly, SumsAreCutAtThePersonsLimits) {
    connection.execute(u"UPDATE M07_AdjustHours SET F_LegalOver = 120, F_Over = 2700, F_Late = 2700, F_Early = 0, "
                       "F_Holiday = 0, F_LegalLate = 100 WHERE (F_AdjustCode = 1)"_q);
    sheet.sums = {Count(20),
                  10230min,
                  DayHundredths(1850),
                  180min,
                  2700min,
                  2701min,
                  {},
                  300min,
                  360min,
                  420min,
                  480min,
                  540min,
                  DayHundredths(150),
                  DayHundredths(0),
                  DayHundredths(100),
                  Count(2),
                  Count(3),
                  Count(4)};
    const QString uncut = u"20|170:30|18.5|3:00|45:00|45:01||5:00|6:00|7:00|8:00|9:00|1.5|0.0|1.0|2|3|4"_q;
    const struct {
        QString staff;
        bool flexible;
        int unit;
        QString sums, saved; // shown, and the fields from F_Work to F_Late
    } cases[] = {
        {u"1001"_q, false, 1, u"20|170:30|18.5|2:00|45:00|45:00||0:00|6:00|7:00|1:40|9:00|1.5|0.0|1.0|2|3|4"_q,
         u"10230 18.5 120 2700 2700"_q},
        {u"1001"_q, true, 1, u"20|170:30|18.5|+9:00|45:00|45:00||0:00|6:00|7:00|1:40|9:00|1.5|0.0|1.0|2|3|4"_q,
         u"10230 18.5 - 2700 2700"_q},
        {u"1001"_q, false, 0, u"20|170.5|18.5|2.0|45.0|45.0||0.0|6.0|7.0|1.67|9.0|1.5|0.0|1.0|2|3|4"_q,
         u"10230 18.5 120 2700 2700"_q},
        {u"nobody"_q, false, 1, uncut, u"10230 18.5 180 2700 2701"_q},
    };
    sheet.grid.TextMatrix(daySumRow, static_cast<int>(CardColumn::LegalOver), u"+9:00"_q);
    for (const auto& c : cases) {
        rules.pbleFlexTime = c.flexible;
        rules.plngCountUnit = c.unit;
        rules.psngPaidTotal = balance().toFloat();
        sheet.blnMonthChanged = false;
        ASSERT_TRUE(AdjustMonthly(desk.context, connection, sheet, rules, c.staff));
        EXPECT_EQ(sums(sheet.grid, finalSumRow), c.sums);
        EXPECT_TRUE(sheet.blnMonthChanged && sheet.grid.RowStatus(finalSumRow) != GridStatus::Modified);
        ASSERT_TRUE(UpdateMonthly(desk.context, connection, sheet, rules,
                                  {u"1001"_q, u"S01"_q, {*makeDay(2026, 3, 1), *makeDay(2026, 3, 31)}}));
        EXPECT_EQ(asked(u"SELECT F_Work & ' ' & F_PaidTotal & ' ' & IIf(F_LegalOver Is Null, '-', F_LegalOver) & ' ' & "
                        "F_Over & ' ' & F_Late FROM T05_Approved"_q),
                  c.saved);
    }
}

TEST_F(Monthly, ARecordHoldsTheFinalSums) {
    ASSERT_TRUE(save(3, daySums));
    EXPECT_EQ(saved(u"03"_q), u"S01 2026 20 10230 18.5 180 2700 540 1.5 1.0 2 4 2026/03/01-2026/03/28 0 0"_q);
    connection.execute(u"UPDATE T05_Approved SET F_PersonalApproval = True, F_SuperiorApproval = True"_q);
    rules.pbleFlexTime = true;
    rules.plngCountUnit = 0;
    ASSERT_TRUE(save(3, u"20.5|1,000.5||+9.5|45.02|||||||||||||"_q));
    EXPECT_EQ(saved(u"03"_q), u"S01 2026 20 60030 - - 2701 - - - - - 2026/03/01-2026/03/28 0 0"_q);
    EXPECT_EQ(balance(), u"20"_q) << "a record without a balance gives back what it had taken";
    EXPECT_EQ(count(u"T05_Approved"_q), 1);
}

TEST_F(Monthly, TheBalanceFollowsTheNewestMonth) {
    const auto paid = [](const QString& days) { return u"||"_q + days + u"|||||||||||||||"_q; };
    for (const auto& [month, left, balanceAfter] : {std::tuple{11, u"17"_q, u"17"_q},
                                                    {10, u"19"_q, u"17"_q},
                                                    {12, u"16.5"_q, u"16.5"_q},
                                                    {12, u"16"_q, u"16"_q},
                                                    {1, u"12"_q, u"16"_q}}) {
        ASSERT_TRUE(save(month, paid(left)));
        EXPECT_EQ(balance(), balanceAfter) << month;
    }
    EXPECT_EQ(asked(u"SELECT F_PaidTotal FROM T05_Approved WHERE (F_Month = '10')"_q), u"19"_q);
}

TEST_F(Monthly, AFigureThatDoesNotFitWritesNothing) {
    ASSERT_TRUE(save(3, daySums));
    const QString before = saved(u"03"_q);
    for (const auto& [finalSums, message] :
         {std::pair{u"32768|||||||||||||||||"_q, u"エラー番号：6\r\nオーバーフローしました。"_q},
          {u"|99999999:00||||||||||||||||"_q, u"エラー番号：6\r\n"_q},
          {u"||1e39|||||||||||||||"_q, u"エラー番号：6\r\n"_q},
          {u"x|||||||||||||||||"_q, u"エラー番号：3317"_q}}) {
        desk.prompts.expect(message);
        EXPECT_FALSE(save(3, finalSums));
        EXPECT_TRUE(desk.prompts.last().title.endsWith(u"－UpdateMonthly"_q));
        EXPECT_EQ(saved(u"03"_q) + balance(), before + u"18.5"_q);
    }
}

TEST_F(Monthly, EachMarkStandsAlone) {
    const Day end = *makeDay(2026, 3, 31);
    EXPECT_TRUE(UpdatePersonal(desk.context, connection, u"1001"_q, end, true)) << "nothing saved, nothing marked";
    ASSERT_TRUE(save(3, daySums) && save(4, daySums));
    for (const auto& [update, approved, marks] : {std::tuple{&UpdateSuperior, true, u"0 -1"_q},
                                                  {&UpdatePersonal, true, u"-1 -1"_q},
                                                  {&UpdateSuperior, false, u"-1 0"_q}}) {
        EXPECT_TRUE(update(desk.context, connection, u"1001"_q, end, approved));
        EXPECT_EQ(saved(u"03"_q).section(u' ', -2), marks);
    }
    EXPECT_EQ(saved(u"04"_q).section(u' ', -2), u"0 0"_q);
}

const QString adjusting = u"集計結果の調整を行います。"_q;
const QString saving = u"月次集計の最終保存データを更新します。"_q;

// The commands of the screen. 1002 looks at 1001's March of 2026.
class MonthlyScreen : public CardOffice {
  protected:
    MonthlyScreen() {
        logIn(u"1002"_q);
        EXPECT_TRUE(screen.load() && screen.chooseStaff(u"1001"_q) && screen.chooseMonth(3));
    }
    bool approve(bool approved) { return screen.month().approveSuperior(approved, u"2026/03/01"_q, u"2026/03/31"_q); }
    void edit(int row, CardColumn column, const QString& text) {
        screen.sheet.grid.edit(row, static_cast<int>(column), text);
    }

    CardScreen screen{client};
};

TEST_F(MonthlyScreen, RefusesWhatIsNotReady) {
    const std::tuple<QString, QString, std::function<bool()>> commands[] = {
        {u"集計結果の調整を"_q, u"時間調整"_q, [this] { return screen.month().adjust(); }},
        {u"月次更新を"_q, u"月次更新"_q, [this] { return screen.month().update(); }},
        {u"承認を"_q, u"承認"_q, [this] { return approve(true); }},
    };
    for (const auto& [demand, name, command] : commands) {
        screen.sheet.drawn();
        edit(firstCardDay, CardColumn::Plan, name);
        desk.prompts.expect(
            u"タイムカードの追加・変更が保存されていません。\r\nタイムカードの追加・変更を更新後、%1行って下さい。"_q
                .arg(demand));
        EXPECT_FALSE(command());
        screen.sheet.drawn();
        screen.sheet.blnFileMode = true;
        desk.prompts.expect(u"タイムカードファイルを呼出した状態で%1はできません。"_q.arg(name));
        EXPECT_FALSE(command() || screen.month().mayUpdate());
    }
    screen.sheet.drawn();
    edit(finalSumRow, CardColumn::Over, u"x"_q);
    desk.prompts.expect(u"普通残業合計が不正です。"_q);
    EXPECT_FALSE(screen.month().update());
}

TEST_F(MonthlyScreen, QuestionsWarnOfMissingPunches) {
    const QString missing = u"よろしいですか？\r\n\r\n注意! 下記日付の打刻がありません。\r\n26/03/01(日), "_q;
    desk.prompts.expect(adjusting + u"\r\n\r\n"_q + missing, Answer::Cancel);
    EXPECT_FALSE(screen.month().adjust());
    desk.prompts.expect(u"時間調整が行われていないため、合計(最終)が空のまま保存されます。"_q, Answer::Cancel);
    EXPECT_FALSE(screen.month().update());
    EXPECT_EQ(desk.prompts.last().preset, Answer::Cancel);
    EXPECT_EQ(count(u"T05_Approved"_q), 0);
    for (CardEntry& day : screen.sheet.days) day.absent = false;
    desk.prompts.expect(adjusting).expect(saving + u"\r\n\r\nよろしいですか？"_q);
    EXPECT_TRUE(screen.month().adjust() && screen.month().update());
    EXPECT_TRUE(desk.prompts.last().text.endsWith(u"よろしいですか？\r\n\r\n"_q));
    EXPECT_FALSE(screen.month().mayUpdate());
    edit(finalSumRow, CardColumn::Over, u"1:00"_q);
    EXPECT_TRUE(screen.month().mayUpdate()) << "an edited sum can be saved";
    desk.prompts.expect(u"承認を取り消します。\r\n\r\nよろしいですか？"_q, Answer::Cancel);
    EXPECT_FALSE(approve(false));
    EXPECT_EQ(desk.prompts.last().preset, Answer::Cancel);
}

TEST_F(MonthlyScreen, AFailureIsToldTwiceAndChangesNothing) {
    connection.execute(u"INSERT INTO T05_Approved (F_Staff, F_Year, F_Month) VALUES ('1001', '2026', '03')"_q);
    connection.close();
    client.HomeConnection.close();
    const AsNobody nobody;
    client.HomeConnection.open(path, databasePassword());
    const QString question = u"よろしいですか？"_q;
    desk.prompts.expect(question).expect(u"3027"_q).expect(u"月次集計の最終保存データを更新できませんでした。"_q);
    EXPECT_FALSE(screen.month().update());
    EXPECT_TRUE(screen.month().mayUpdate());
    desk.prompts.expect(question).expect(u"3027"_q).expect(u"月次集計の最終保存データの承認に失敗しました。"_q);
    EXPECT_FALSE(approve(true) || screen.month().superiorApproval());
    desk.prompts.expect(question).expect(u"3027"_q).expect(u"承認取り消しに失敗しました。"_q);
    EXPECT_FALSE(approve(false));
}

TEST_F(MonthlyScreen, TheChosenMonthCountsAndNotTheRangeInView) {
    ASSERT_TRUE(screen.display(u"2026/02/01"_q, u"2026/02/28"_q));
    const auto refused = [this] {
        EXPECT_FALSE(screen.month().mayAdjust() || screen.month().mayUpdate());
        for (const QString& name : {u"時間調整"_q, u"月次更新"_q})
            desk.prompts.expect(u"選択した月の期間が表示されていないため、%1はできません。"_q.arg(name));
        EXPECT_FALSE(screen.month().adjust() || screen.month().update());
    };
    refused();
    desk.prompts.expect(u"承認はできません。"_q);
    EXPECT_FALSE(screen.month().approveSuperior(true, u"____/__/__"_q, u"2026/02/28"_q));
    EXPECT_EQ(count(u"T05_Approved"_q), 0);
}

TEST_F(MonthlyScreen, ASavedMonthsLeaveIsDeductedOnce) {
    addCard(30, *makeDay(2026, 3, 10), {}, {}, u"0"_q);
    const auto save = [this] {
        desk.prompts.expect(adjusting).expect(saving);
        EXPECT_TRUE(screen.chooseMonth(3) && screen.month().adjust() && screen.month().update());
        return asked(u"SELECT F_PaidTotal FROM M02_StaffInfo WHERE (F_StaffCode = '1001')"_q);
    };
    EXPECT_EQ(save() + u' ' + save(), u"19 19"_q);
    ASSERT_TRUE(screen.chooseStaff(u"1001"_q));
    EXPECT_EQ(cardText(screen.sheet.grid, daySumRow, CardColumn::Leave), u"19.0"_q);
    connection.execute(u"UPDATE T02_Kurbo SET F_Paid = '1' WHERE (F_KurboID = 30)"_q);
    EXPECT_EQ(save(), u"19.5"_q);
    ASSERT_TRUE(screen.chooseMonth(2));
    EXPECT_EQ(cardText(screen.sheet.grid, daySumRow, CardColumn::Leave), u"19.5"_q) << "another month's start";
    ASSERT_TRUE(screen.chooseMonth(3));
    edit(finalSumRow, CardColumn::Leave, {});
    desk.prompts.expect(saving);
    EXPECT_TRUE(screen.month().update());
    EXPECT_EQ(save(), u"19.5"_q) << "a record without a balance has given back what it took";
    connection.execute(u"UPDATE M02_StaffInfo SET F_PaidTotal = 9 WHERE (F_StaffCode = '1001')"_q);
    desk.prompts.expect(saving)
        .expect(u"タイムカードの表示後に変更されています。"_q)
        .expect(u"更新できませんでした。"_q);
    EXPECT_FALSE(screen.month().update()) << "somebody else has changed the balance";
}

} // namespace kurbo::test
