#include "totals/total_screen.h"

#include "card/card_office.h"
#include "support/table.h"

namespace kurbo::test {
namespace {

constexpr int staffColumn = static_cast<int>(TotalColumn::Staff);

// April of 1001 and 1002 is saved and approved, May of 1001 as well; 1002 may correct and delete.
class TotalScreenTest : public CardOffice {
  protected:
    TotalScreenTest() {
        for (const QString& month : {u"'1001', '04'"_q, u"'1001', '05'"_q, u"'1002', '04'"_q})
            insert(
                "T05_Approved",
                "Staff, Month, Section, Year, WorkDay, Work, PaidTotal, Over, PersonalApproval, SuperiorApproval, Term",
                month + u", 'S01', '2026', 20, 9000, 12.5, 90, True, True, '2026/04/01-2026/04/30'"_q);
        connection.execute(u"UPDATE M08_Access SET F_DeleteMyData = True, F_WriteMyMonthly = False "
                           "WHERE (F_AccessCode = 2)"_q);
        logIn(u"1002"_q);
        EXPECT_TRUE(screen.load());
    }
    // The row of a person's month.
    [[nodiscard]] int rowOf(const QString& staff, const QString& month = u"2026年 04月"_q) const {
        const GridModel& grid = screen.sheet.grid;
        for (int row = 1; row < grid.Rows(); ++row)
            if (grid.TextMatrix(row, staffColumn) == staff &&
                (grid.TextMatrix(row, 1) == month || grid.TextMatrix(row, 2) == month))
                return row;
        return -1;
    }
    bool display(const QString& start, const QString& end) {
        screen.boxes = {start, end};
        return screen.display();
    }
    [[nodiscard]] QString shownMonths() const {
        return slashMonth(screen.span().from) + u'-' + slashMonth(screen.span().to);
    }
    void type(int row, int column, const QString& text) { screen.sheet.grid.edit(row, column, text); }
    [[nodiscard]] QString saved(const QString& fields, const QString& staff, const QString& month = u"04"_q) {
        return asked(u"SELECT "_q + fields + u" FROM T05_Approved WHERE (F_Staff = '"_q + staff +
                     u"') AND (F_Month = '"_q + month + u"')"_q);
    }

    TotalScreen screen{client};
};

TEST_F(TotalScreenTest, ShowsAPersonASpanAndAnOrder) {
    EXPECT_EQ(slashMonth(screen.span().from), u"2026/04"_q);
    EXPECT_GT(rowOf(u"1003"_q), 0) << "people without a record are calculated";
    EXPECT_TRUE(screen.chooseOrder(false));
    EXPECT_EQ(screen.sheet.grid.TextMatrix(rowOf(u"1001"_q), 1), u"2026年 04月"_q);
    EXPECT_TRUE(screen.chooseStaff(u"1001"_q));
    EXPECT_TRUE(screen.byStaff()) << "one person is always by staff";
    EXPECT_EQ(rowOf(u"1002"_q), -1);
    EXPECT_TRUE(display(u"2026/04"_q, u"2026/06"_q));
    EXPECT_EQ(screen.sheet.grid.Rows(), 1 + 3 + 2);
    EXPECT_TRUE(screen.chooseMonth(5));
    EXPECT_EQ(shownMonths(), u"2026/05-2026/05"_q);
    desk.prompts.expect(u"期間が不正です。開始年月と終了年月を西暦年でyyyy/mm形式(半角)"_q)
        .expect(u"開始年月が終了年月以降に設定されています。"_q);
    EXPECT_FALSE(display(u"2026/13"_q, u"2026/06"_q) || display(u"2026/06"_q, u"2026/05"_q));
    EXPECT_EQ(shownMonths(), u"2026/05-2026/05"_q);
}

TEST_F(TotalScreenTest, CorrectsSavedMonthsAndWithdrawsTheirApprovals) {
    const int row = rowOf(u"1001"_q);
    EXPECT_TRUE(screen.sheet.grid.Editable(row, 7));
    EXPECT_FALSE(screen.sheet.grid.Editable(row, 21) || screen.sheet.grid.Editable(rowOf(u"1002"_q), 7))
        << "marks are no figures, and the own month needs the own right";
    type(row, 7, u"2:30"_q);
    type(row, 5, u"11"_q);
    type(rowOf(u"1003"_q), 3, u"9"_q);
    desk.prompts.expect(u"追加・変更を更新します。\r\n月次更新されていない1件の変更は保存されず、"_q);
    EXPECT_TRUE(screen.update());
    type(rowOf(u"1003"_q), 3, u"9"_q);
    desk.prompts.expect(u"変更した月は月次更新されていないため、保存できません。"_q);
    EXPECT_FALSE(screen.update());
    EXPECT_EQ(screen.sheet.grid.TextMatrix(rowOf(u"1003"_q), 3), u"9"_q) << "still there";
    screen.sheet.changed = false;
    EXPECT_EQ(saved(u"F_Over"_q, u"1001"_q) + u' ' + saved(u"F_PersonalApproval"_q, u"1001"_q), u"150 0"_q);
    EXPECT_EQ(saved(u"F_PersonalApproval"_q, u"1002"_q), u"-1"_q);
    EXPECT_EQ(count(u"T05_Approved"_q), 3) << "a month that isn't saved is passed over";
    EXPECT_EQ(asked(u"SELECT F_PaidTotal FROM M02_StaffInfo WHERE (F_StaffCode = '1001')"_q), u"20"_q)
        << "May is newer";
    EXPECT_TRUE(screen.chooseMonth(5));
    type(rowOf(u"1001"_q, u"2026年 05月"_q), 5, u"11"_q);
    desk.prompts.expect(u"追加・変更を更新します。"_q);
    EXPECT_TRUE(screen.update());
    const QString balance = u"SELECT F_PaidTotal FROM M02_StaffInfo WHERE (F_StaffCode = '1001')"_q;
    EXPECT_EQ(asked(balance), u"11"_q);
    connection.execute(u"UPDATE M02_StaffInfo SET F_PaidTotal = 21 WHERE (F_StaffCode = '1001')"_q);
    type(rowOf(u"1001"_q, u"2026年 05月"_q), 7, u"1:00"_q);
    desk.prompts.expect(u"追加・変更を更新します。"_q);
    EXPECT_TRUE(screen.update());
    EXPECT_EQ(asked(balance), u"21"_q) << "leave that was granted since stays";
}

TEST_F(TotalScreenTest, RefusesFiguresByTheirColumn) {
    const int row = rowOf(u"1001"_q);
    for (const QStringList& line : rowsOf(R"(
3  | ２０ | 山田太郎 2026年 04月の出勤日数が不正です。半角で入力して下さい。
4  | 7.5  | の実働時間が不正です。時間を入力して下さい。
5  | x    | の有給残数が不正です。数値(半角)を入力して下さい。
7  | x    | 普通残業が不正です。時間を入力して下さい。
20 | x    | 早退が不正です。数値(半角)を入力して下さい。
)")) {
        const int column = line[0].toInt();
        const QString before = screen.sheet.grid.TextMatrix(row, column);
        type(row, column, line[1]);
        desk.prompts.expect(line[2]);
        EXPECT_FALSE(screen.update()) << line[2];
        type(row, column, before);
    }
    EXPECT_TRUE(isFigure(4, 0, u"170.5"_q) && !isFigure(4, 0, u"170:30"_q));
}

TEST_F(TotalScreenTest, AnotherSectionWithoutTotalsLeavesNothingToCorrect) {
    insert("C02_Section", "SectionCode, SectionName, DB, Display",
           u"'S02', '工場', '%1', True"_q.arg(currentDatabase()));
    insert("C03_Staff", "StaffCode, StaffName, Section, Order, Display", u"'2001', '工藤四郎', 'S02', 9, True"_q);
    insert("M08_Access", "AccessCode, Section, ReadOtherKurbo, WriteOtherMonthly", u"2, 'S02', True, True"_q);
    desk.prompts.expect(u"工藤四郎 (2001)\r\n社員設定に不備があります。"_q);
    EXPECT_TRUE(screen.chooseSection(u"S02"_q));
    EXPECT_FALSE(screen.sheet.grid.Editable(rowOf(u"2001"_q), 7)) << "there are no figures to correct";
}

TEST_F(TotalScreenTest, TakesHoursWithAMarkBesideThem) {
    for (const QString& hours : {u"100:30(+1:30)"_q, u"(+1:30)100:30"_q}) {
        type(rowOf(u"1001"_q), 4, hours);
        desk.prompts.expect(u"追加・変更を更新します。"_q);
        EXPECT_TRUE(screen.update());
        EXPECT_EQ(saved(u"F_Work"_q, u"1001"_q), u"6030"_q) << hours;
        connection.execute(u"UPDATE T05_Approved SET F_Work = 0"_q);
        EXPECT_TRUE(screen.chooseMonth(4));
    }
}

TEST_F(TotalScreenTest, DeletesTheSavedMonthsOfTheSpan) {
    EXPECT_TRUE(screen.chooseStaff(u"1001"_q));
    screen.boxes = {u"2026/06"_q, u"2026/07"_q};
    desk.prompts.expect(u"表示期間(2026/06～2026/07)には\r\n保存された月次集計データが無いため、"_q);
    EXPECT_FALSE(screen.deleteMonths());
    screen.boxes = {u"2026/04"_q, u"2026/05"_q};
    desk.prompts.expect(u"表示されている月次集計データを削除します。"_q, Answer::Ok);
    EXPECT_TRUE(screen.deleteMonths());
    EXPECT_EQ(count(u"T05_Approved"_q), 1);
    EXPECT_EQ(desk.prompts.last().preset, Answer::Cancel);
    EXPECT_TRUE(desk.prompts.last().text.contains(u"期間：2026/04～2026/05"_q)) << "they weren't shown";
    EXPECT_EQ(shownMonths(), u"2026/04-2026/05"_q);
}

TEST_F(TotalScreenTest, EveryDrawingTakesTheMonthsOfTheBoxes) {
    const auto follows = [this](const std::function<bool()>& command) {
        ASSERT_TRUE(display(u"2026/04"_q, u"2026/04"_q));
        screen.boxes = {u"2026/05"_q, u"2026/06"_q};
        EXPECT_TRUE(command());
        EXPECT_EQ(shownMonths(), u"2026/05-2026/06"_q);
    };
    follows([this] { return screen.chooseSection(u"S01"_q); });
    follows([this] { return screen.chooseStaff(u"1001"_q); });
    follows([this] { return screen.chooseOrder(false); });
    follows([this] { return screen.reload(); });
    follows([this] { return screen.display(); });
    desk.prompts.expect(u"追加・変更を更新します。"_q);
    follows([this] { return screen.update(); });
    screen.boxes = {u"9998/12"_q, u"9999/01"_q};
    EXPECT_TRUE(screen.moveYears(-1));
    EXPECT_EQ(shownMonths(), u"9997/12-9998/01"_q);
    EXPECT_TRUE(screen.moveYears(1));
    desk.prompts.expect(u"集計できるのは1000年1月から9999年12月までです。"_q);
    EXPECT_FALSE(screen.moveYears(1));
    EXPECT_EQ(shownMonths(), u"9998/12-9999/01"_q);
}

TEST_F(TotalScreenTest, GoesToFilesAndComesBackOnlyToBeSeen) {
    const QString card = desk.file(u"totals.krb"_q);
    desk.prompts.expectFile(card)
        .expect(u"CSV形式で保存します。"_q)
        .expectFile(desk.file(u"april.csv"_q))
        .expect(u"2件の月次集計データを保存しました。"_q);
    EXPECT_TRUE(screen.saveKrb() && screen.saveCsv());
    EXPECT_TRUE(screen.chooseMonth(6));
    desk.prompts.expect(u"更新済の月次集計データがありません。"_q);
    EXPECT_FALSE(screen.saveCsv());
    desk.prompts.expectFile(card);
    EXPECT_TRUE(screen.loadKrb());
    EXPECT_EQ(slashMonth(screen.span().from), u"2026/04"_q);
    EXPECT_FALSE(screen.sheet.grid.Editable(rowOf(u"1001"_q), 7));
    for (const QString& command : {u"更新"_q, u"削除"_q, u"CSVﾌｧｲﾙの保存"_q, u"集計方法の選択"_q})
        desk.prompts.expect(u"タイムカードファイルを呼出した状態で%1は"_q.arg(command));
    EXPECT_FALSE(screen.update() || screen.deleteMonths() || screen.saveCsv() || screen.chooseOrder(false));
    EXPECT_TRUE(screen.display());
    EXPECT_TRUE(screen.sheet.grid.Editable(rowOf(u"1001"_q), 7));
}

} // namespace
} // namespace kurbo::test
