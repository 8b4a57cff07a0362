#include "card/monthly.h"

#include "card/card_office.h"
#include "card/card_screen.h"
#include "card/sheet.h"
#include "month/saved_figures.h"
#include "support/table.h"

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
        for (int column = 4; column < 14; ++column) cells.append(grid.TextMatrix(row, column));
        return cells.join(u' ');
    }
    static MonthOwner owner(int month) {
        return {u"1001"_q, u"S01"_q, {*makeDay(2026, month, 1), *makeDay(2026, month, 28)}};
    }
    bool save(int month, const QString& finalSums) {
        type(finalSums);
        rules.psngPaidTotal = balance().toFloat();
        return UpdateMonthly(desk.context, connection, sheet, rules, owner(month));
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
    Figures days;
    days.work = 10230min;
    days.legalOver = 180min;
    days.over = 2700min;
    days.late = 2701min;
    days.holiday = 300min;
    days.legalLate = 540min;
    sheet.sums = monthFigures(days, DayHundredths(1850));
    sheet.grid.TextMatrix(daySumRow, static_cast<int>(CardColumn::LegalOver), u"+9:00"_q);
    // The person, whether flexible, the unit of hours, the columns from the work to the late holiday, and what is
    // saved.
    for (const QStringList& row : rowsOf(R"(
1001   |   | 1 | 170:30 18.5 2:00 45:00 45:00 0:00 0:00 0:00 0:00 1:40  | 10230 18.5 120 2700 2700
1001   | f | 1 | 170:30 18.5 +9:00 45:00 45:00 0:00 0:00 0:00 0:00 1:40 | 10230 18.5 - 2700 2700
1001   |   | 0 | 170.5 18.5 2.0 45.0 45.0 0.0 0.0 0.0 0.0 1.67          | 10230 18.5 120 2700 2700
nobody |   | 1 | 170:30 18.5 3:00 45:00 45:01 0:00 5:00 0:00 0:00 9:00  | 10230 18.5 180 2700 2701
)")) {
        rules.pbleFlexTime = !row[1].isEmpty();
        rules.plngCountUnit = row[2].toInt();
        rules.psngPaidTotal = balance().toFloat();
        sheet.blnMonthChanged = false;
        ASSERT_TRUE(AdjustMonthly(desk.context, connection, sheet, rules, row[0]));
        EXPECT_EQ(sums(sheet.grid, finalSumRow), row[3]);
        EXPECT_TRUE(sheet.blnMonthChanged && sheet.grid.RowStatus(finalSumRow) != GridStatus::Modified);
        ASSERT_TRUE(UpdateMonthly(desk.context, connection, sheet, rules, owner(3)));
        EXPECT_EQ(asked(u"SELECT F_Work & ' ' & F_PaidTotal & ' ' & IIf(F_LegalOver Is Null, '-', F_LegalOver) & ' ' & "
                        "F_Over & ' ' & F_Late FROM T05_Approved"_q),
                  row[4]);
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
    for (const auto& [finalSums, number] : {std::pair{u"32768|||||||||||||||||"_q, u"6\r\nオーバーフローしました。"_q},
                                            {u"||1e39|||||||||||||||"_q, u"6\r\n"_q},
                                            {u"x|||||||||||||||||"_q, u"3317"_q}}) {
        desk.prompts.expect(u"エラー番号："_q + number);
        EXPECT_FALSE(save(3, finalSums));
        EXPECT_EQ(saved(u"03"_q) + balance(), before + u"18.5"_q);
    }
    EXPECT_TRUE(desk.prompts.last().title.endsWith(u"－UpdateMonthly"_q));
}

TEST_F(Monthly, EachMarkStandsAlone) {
    const Day end = *makeDay(2026, 3, 31);
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
    desk.prompts.expect(question).expect(u"3027"_q).expect(u"月次集計の最終保存データの承認に失敗しました。"_q);
    EXPECT_FALSE(approve(true) || screen.month().superiorApproval());
}

TEST_F(MonthlyScreen, TheChosenMonthCountsAndNotTheRangeInView) {
    ASSERT_TRUE(screen.display(u"2026/02/01"_q, u"2026/02/28"_q));
    EXPECT_FALSE(screen.month().mayAdjust() || screen.month().mayUpdate());
    for (const QString& name : {u"時間調整"_q, u"月次更新"_q})
        desk.prompts.expect(u"選択した月の期間が表示されていないため、%1はできません。"_q.arg(name));
    EXPECT_FALSE(screen.month().adjust() || screen.month().update());
    desk.prompts.expect(u"承認はできません。"_q);
    EXPECT_FALSE(screen.month().approveSuperior(true, u"____/__/__"_q, u"2026/02/28"_q));
}

TEST_F(MonthlyScreen, ASavedMonthsLeaveIsDeductedOnce) {
    addCard(30, *makeDay(2026, 3, 10), {}, {}, u"0"_q);
    const auto save = [this] {
        desk.prompts.expect(adjusting).expect(saving);
        EXPECT_TRUE(screen.chooseMonth(3) && screen.month().adjust() && screen.month().update());
        return asked(u"SELECT F_PaidTotal FROM M02_StaffInfo WHERE (F_StaffCode = '1001')"_q);
    };
    EXPECT_EQ(save() + u' ' + save(), u"19 19"_q);
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
    connection.execute(u"UPDATE T05_Approved SET F_PaidTotal = 8.96"_q);
    ASSERT_TRUE(screen.chooseMonth(3));
    edit(finalSumRow, CardColumn::Over, u"1:00"_q);
    desk.prompts.expect(saving);
    EXPECT_TRUE(screen.month().update());
    EXPECT_EQ(asked(u"SELECT F_PaidTotal FROM T05_Approved"_q), u"9"_q) << "as it was shown";
}

} // namespace kurbo::test
