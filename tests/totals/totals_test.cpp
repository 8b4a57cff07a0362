#include "support/sample_company.h"
#include "totals/total_lines.h"
#include "totals/total_sheet.h"

using namespace std::chrono_literals;
using std::chrono::year_month;

namespace kurbo::test {
namespace {

year_month april() {
    return 2026y / 4;
}

QStringList texts(const GridModel& grid, int row) {
    QStringList cells;
    for (int column = 0; column < grid.Cols(); ++column) cells.append(grid.TextMatrix(row, column));
    return cells;
}

class ClosedAt final : public Progress {
  public:
    explicit ClosedAt(int step) : left_(step) {}
    void begin(const QString& /*text*/, int /*maximum*/) override { ++open; }
    void step(int /*value*/) override { --left_; }
    void end() override { --open; }
    bool stopped() override { return left_ < 0; }
    int open = 0;

  private:
    int left_;
};

class TotalsTest : public SampleCompany {
  protected:
    // 1001 has worked on the 1st of April from 9:00 to 17:30, and 1002 has saved it with 100:00 hours.
    TotalsTest() {
        addCard(1, *makeDay(2026, 4, 1), u"09:00"_q, u"17:30"_q);
        save(u"1002"_q, u"202604"_q, u"6000"_q, u"12.5"_q);
    }

    void save(const QString& staff, const QString& month, const QString& minutes, const QString& paidLeft,
              const QString& section = u"S01"_q) {
        insert("T05_Approved", "Staff, Section, Year, Month, WorkDay, Work, PaidTotal, PersonalApproval, Term",
               u"'%1', '%2', '%3', '%4', 15, %5, %6, True, 'saved'"_q.arg(staff, section, month.left(4), month.mid(4),
                                                                          minutes, paidLeft));
    }

    // Lines as "column 1|column 2|work|paid leave left".
    QStringList shown(TotalsQuestion question) {
        TotalSheet sheet;
        const GridModel& grid = sheet.grid;
        if (!ShowTotal(desk.context, connection, question, sheet)) return {u"failed"_q};
        QStringList lines;
        for (int row = 1; row < grid.Rows(); ++row) {
            const QStringList cells = texts(grid, row);
            lines.append(QStringList({cells[1], cells[2], cells[4], cells[5]}).join(u'|'));
        }
        return lines;
    }

    TotalsQuestion everybody{u"S01"_q, {}, april(), april(), true};
};

} // namespace

TEST_F(TotalsTest, HaveSubTotalsByStaffAndByMonth) {
    connection.execute(u"UPDATE C03_Staff SET F_Display = False WHERE (F_StaffCode = '1003')"_q);
    save(u"1002"_q, u"202605"_q, u"Null"_q, u"Null"_q);
    everybody.to = 2026y / 5;
    EXPECT_EQ(shown(everybody),
              QStringList({u"山田太郎|2026年 04月|8:30|20.0"_q, u"山田太郎|2026年 05月|0:00|20.0"_q,
                           u"山田太郎 小計||8:30|40.0"_q, u"鈴木花子|2026年 04月|100:00|12.5"_q,
                           u"鈴木花子|2026年 05月||"_q, u"鈴木花子 小計||100:00|12.5"_q, u"合計||108:30|52.5"_q}));
    everybody.byStaff = false;
    EXPECT_EQ(shown(everybody),
              QStringList({u"2026年 04月|山田太郎|8:30|20.0"_q, u"2026年 04月|鈴木花子|100:00|12.5"_q,
                           u"2026年 04月 小計||108:30|32.5"_q, u"2026年 05月|山田太郎|0:00|20.0"_q,
                           u"2026年 05月|鈴木花子||"_q, u"2026年 05月 小計||0:00|20.0"_q, u"合計||108:30|52.5"_q}));
}

TEST_F(TotalsTest, CarryAShiftOverTheStartOfAMonth) {
    // From 9:00 to 11:00 of the next day, on which nothing was punched.
    addCard(2, *makeDay(2026, 3, 31), u"09:00"_q, u"17:30"_q);
    connection.execute(u"UPDATE T02_Kurbo SET F_Leave = #2026/04/01 11:00:00# WHERE (F_KurboID = 2)"_q);
    connection.execute(u"DELETE FROM T02_Kurbo WHERE (F_KurboID = 1)"_q);
    const auto ofApril = [this](year_month from, const QString& staff) {
        everybody.from = from;
        everybody.staff = staff;
        return shown(everybody).filter(u"山田太郎|2026年 04月"_q);
    };
    const QStringList carried{u"山田太郎|2026年 04月|2:00|20.0"_q};
    for (const year_month from : {april(), year_month(2026y / 3)})
        for (const QString& staff : {QString(), u"1001"_q}) EXPECT_EQ(ofApril(from, staff), carried);
    // The row before the month lies in a month that is saved.
    save(u"1001"_q, u"202603"_q, u"60"_q, u"1"_q);
    EXPECT_EQ(ofApril(2026y / 2, {}), carried);
    // It is the last row that counts, with or without a leave.
    addCard(3, *makeDay(2026, 3, 31), {}, {});
    EXPECT_EQ(ofApril(2026y / 2, {}).value(0).section(u'|', 2), u"0:00|20.0"_q);
    EXPECT_EQ(ofApril(april(), {}).value(0).section(u'|', 2), u"0:00|20.0"_q);
}

TEST_F(TotalsTest, AddTheDifferenceBehindTheHoursInFlexibleWork) {
    connection.execute(u"UPDATE C03_Staff SET F_Display = False WHERE (F_StaffCode = '1003')"_q);
    connection.execute(u"UPDATE M01_CorpInfo SET F_WorkStyle = 1, F_FlexStandard = '08:00', F_Diff = True"_q);
    connection.execute(u"UPDATE M03_WeekdayStyle SET F_StartFlex0 = '07:00', F_EndFlex0 = '22:00', "
                       "F_StartWork0 = Null, F_EndWork0 = Null"_q);
    TotalSheet sheet;
    const GridModel& grid = sheet.grid;
    ASSERT_TRUE(ShowTotal(desk.context, connection, everybody, sheet));
    const auto column = [&grid](int number) {
        QStringList cells;
        for (int row = 1; row < grid.Rows(); ++row) cells.append(grid.TextMatrix(row, number));
        return cells;
    };
    EXPECT_EQ(column(4), QStringList({u"8:30"_q, u"8:30(+0:30)"_q, u"100:00"_q, u"100:00"_q, u"108:30(+0:30)"_q}));
    EXPECT_EQ(column(26), QStringList({u"+0:30"_q, {}, {}, {}, {}}));
    EXPECT_FALSE(grid.ColHidden(26));
}

TEST_F(TotalsTest, FillTheGridWithRecordsAndCalculatedMonths) {
    connection.execute(u"UPDATE M01_CorpInfo SET F_Over = True, F_Absent = True, F_EarlyLeave = True"_q);
    TotalSheet sheet;
    const GridModel& grid = sheet.grid;
    ASSERT_TRUE(ShowTotal(desk.context, connection, everybody, sheet));
    EXPECT_EQ(texts(grid, 0).join(u'|'),
              u"|氏名|年月|出勤日数|実働時間|有給残数|法内残業|普通残業|深夜残業|早出勤務|休日出勤|休日深夜|法休出勤|"
              u"法休深夜|"
              "欠勤時間|有給|特休|代休|欠勤|遅刻|早退|本人|所長|集計期間|順|社員ｺｰﾄﾞ|時間差"_q);
    const QStringList calculated = texts(grid, 1);
    EXPECT_EQ(calculated.mid(18, 9).join(u'|'),
              u"13|0|0|||2026/04/01-2026/04/30|0001202604|1001|"_q.replace(u"0001"_q, calculated[24].left(4)));
    const QStringList saved = texts(grid, 3);
    EXPECT_EQ(saved.mid(18, 6).join(u'|'), u"|||-1|0|saved"_q);
    EXPECT_EQ(grid.CellText(3, 21) + grid.CellText(3, 22) + grid.CellText(4, 21), u"済未"_q);
    QList<int> hidden;
    for (int column = 0; column < grid.Cols(); ++column)
        if (grid.ColHidden(column)) hidden.append(column);
    EXPECT_EQ(hidden, QList({6, 8, 9, 10, 11, 12, 13, 15, 16, 17, 18, 19, 24, 25, 26}));
    EXPECT_TRUE(!grid.RowBackColor(1) && grid.RowBackColor(2) && grid.RowBackColor(grid.Rows() - 1));
}

TEST_F(TotalsTest, RecordsBelongToTheirSectionAndCalculatedMonthsToItsPeopleOfToday) {
    connection.execute(u"UPDATE C03_Staff SET F_Section = 'S02' WHERE (F_StaffCode IN ('1002', '1003'))"_q);
    connection.execute(u"UPDATE C03_Staff SET F_Display = True WHERE (F_StaffCode = '1004')"_q);
    save(u"1004"_q, u"202604"_q, u"60"_q, u"1"_q);
    save(u"1004"_q, u"202605"_q, u"120"_q, u"1"_q, u"S02"_q);
    EXPECT_EQ(shown(everybody).filter(u"年"_q),
              QStringList({u"山田太郎|2026年 04月|8:30|20.0"_q, u"鈴木花子|2026年 04月|100:00|12.5"_q,
                           u"高橋三郎|2026年 04月|1:00|1.0"_q}));
    // A record of another section doesn't stand for the month in this one; one's own totals know no section.
    everybody.from = everybody.to = 2026y / 5;
    EXPECT_EQ(shown(everybody).filter(u"高橋三郎|"_q), QStringList{u"高橋三郎|2026年 05月|0:00|20.0"_q});
    everybody.staff = u"1004"_q;
    EXPECT_EQ(shown(everybody).filter(u"年"_q), QStringList{u"高橋三郎|2026年 05月|2:00|1.0"_q});
}

TEST_F(TotalsTest, ThatFailOrAreStoppedLeaveTheOldGrid) {
    TotalSheet sheet;
    const GridModel& grid = sheet.grid;
    ASSERT_TRUE(ShowTotal(desk.context, connection, everybody, sheet));
    const QStringList before = texts(grid, 1);
    const int rows = grid.Rows();
    TotalsQuestion other = everybody;
    other.byStaff = false;
    const auto isOld = [&] { return grid.Rows() == rows && texts(grid, 1) == before; };
    for (const int step : {0, 1, 2}) {
        ClosedAt progress(step);
        EXPECT_FALSE(ShowTotal({desk.prompts, desk.clock, desk.paths, progress}, connection, other, sheet));
        EXPECT_TRUE(isOld() && progress.open == 0) << step;
    }
    // A leave before its enter is told by the calculation itself.
    connection.execute(u"UPDATE T02_Kurbo SET F_Leave = #2026/04/01 08:00:00#"_q);
    desk.prompts.expect(u"退社時刻が出社時刻より前に設定されています。"_q);
    EXPECT_FALSE(ShowTotal(desk.context, connection, other, sheet));
    EXPECT_EQ(desk.prompts.last().title, u"clsWorkTime－ShowTotal"_q);
    EXPECT_TRUE(isOld());
}

TEST_F(TotalsTest, NameThoseWhoseRulesAreAtFaultAndShowTheOthers) {
    // Those of a person whose months are all saved are not asked for.
    connection.execute(u"UPDATE M02_StaffInfo SET F_Weekday = Null WHERE (F_StaffCode IN ('1002', '1003'))"_q);
    desk.prompts.expect(u"次の社員の月次集計は計算できません。\r\n\r\n佐藤次郎 (1003)\r\n平日勤務時間設定に不備が"_q);
    EXPECT_EQ(shown(everybody),
              QStringList({u"山田太郎|2026年 04月|8:30|20.0"_q, u"山田太郎 小計||8:30|20.0"_q,
                           u"鈴木花子|2026年 04月|100:00|12.5"_q, u"鈴木花子 小計||100:00|12.5"_q,
                           u"佐藤次郎|2026年 04月||"_q, u"佐藤次郎 小計|||"_q, u"合計||108:30|32.5"_q}));
    connection.execute(u"UPDATE M02_StaffInfo SET F_CloseDay = Null WHERE (F_StaffCode = '1001')"_q);
    connection.execute(u"UPDATE M02_StaffInfo SET F_CloseDay = 29 WHERE (F_StaffCode = '1003')"_q);
    everybody.to = 2026y / 5;
    desk.prompts.expect(u"計算できません。"_q);
    EXPECT_EQ(shown(everybody).filter(u"|8:30|"_q), QStringList());
    for (const QString& part :
         {u"山田太郎 (1001)\r\n社員設定に"_q, u"鈴木花子 (1002)\r\n平日"_q, u"佐藤次郎 (1003)\r\nタイムカード締日"_q})
        EXPECT_TRUE(desk.prompts.last().text.contains(part)) << part;
}

TEST_F(TotalsTest, KeepPeopleOfOneNameApart) {
    connection.execute(u"UPDATE C03_Staff SET F_StaffName = '山田太郎', F_Order = 5 "
                       "WHERE (F_StaffCode IN ('1001', '1002'))"_q);
    connection.execute(u"UPDATE C03_Staff SET F_Display = False WHERE (F_StaffCode = '1003')"_q);
    everybody.to = 2026y / 5;
    EXPECT_EQ(shown(everybody).filter(u"計"_q),
              QStringList({u"山田太郎 (1001) 小計||8:30|40.0"_q, u"山田太郎 (1002) 小計||100:00|32.5"_q,
                           u"合計||108:30|72.5"_q}));
}

} // namespace kurbo::test
