#include "settings/work_time/time_sheet.h"

#include "screen/grid/grid_clipboard.h"
#include "settings/times.h"
#include "settings/work_time/time_checks.h"
#include "settings/work_time/time_store.h"
#include "support/table.h"

namespace kurbo::test {
namespace {

class TimeSheets : public Times {
  protected:
    // Rows of page (its number), code, name, cells and refusal; "work" stands for good working hours.
    void check(const char* table) {
        for (const QStringList& row : rowsOf(table)) {
            const QString cells = QString(row[3]).replace(u"work"_q, u"2,1=09:00 2,2=17:00"_q);
            const int page = row[0].toInt();
            const auto shown = sheet(page, row[1].toInt(), cells);
            const auto weekday = sheet(Weekday, 0, page == Adjust ? cells : QString());
            EXPECT_EQ(refusalOf([&] { checkTimes(connection, *shown, row[2], *weekday); }), row[4]) << row.join(u'|');
        }
    }
};

constexpr auto checks = R"(
0|0|||平日勤務名称が入力されていません。
0|1|新しい勤務時間|work|平日勤務名称を変更して下さい。/n名称「新しい勤務時間」は使用できません。
3|0|夜夜夜夜夜夜夜夜夜夜夜夜夜夜夜夜|work|午後休日勤務名称が不正です。午後休日勤務名称は全角15文字(半角30文字)以内で入力します。
0|0|夜夜夜夜夜夜夜夜夜夜夜夜夜夜夜|work|
0|0|o'neil 100%|work|平日勤務名称を変更して下さい。/n同じ平日勤務名称が既に登録されています。
0|0|夜|2,1=9時 3,1=09:00|就業時間が入力されていません。
2|0|夜|2,1=9時|就業時間が不正です。終了時刻が入力されていません。
1|0|夜|3,2=05:00|
0|0|夜|work 3,3=08:00|ﾌﾚｷｼﾌﾞﾙﾀｲﾑが不正です。終了時刻が入力されていません。
0|0|夜|work 4,1=18:00 4,2=24:00|法内残業が不正です。時刻をhh:mm形式(00:00～23:59)で入力して下さい。
0|0|夜|work 6,5=22:00 6,6=22:00|深夜残業が不正です。終了時刻を開始時刻以降に設定して下さい。
0|0|夜|work 6,1=22:00 6,2=00:00 8,2=05:00|
1|0|夜|3,1=22:00 3,2=05:00|休日深夜が不正です。終了時刻を開始時刻以降に設定して下さい。/n翌日にまたがる時間帯は、22:00～00:00 と 00:00～05:00 の二つに分けて入力します。
4|0|夜|5,1=9:0|普通残業の調整時間が不正です。時間をhh:mm形式で入力して下さい。
)";
constexpr auto flexibleChecks = R"(
0|0|昼|work 3,7=07:00 3,8=08:00|フレキシブルタイムが入力されていません。
0|0|昼|3,1=07:00 3,2=08:00 2,1=09:00|ｺｱﾀｲﾑが不正です。終了時刻が入力されていません。
)";

TEST_F(TimeSheets, ChecksRefuseInTheirOrder) {
    insert("M03_WeekdayStyle", "WeekdayCode, WeekdayName", u"2, 'O''Neil 100%'"_q);
    check(checks);
    setFlexible();
    check(flexibleChecks);
}

// Page, start of the first band, row, column, what is typed into it, and what is said.
constexpr auto cellRefusals = R"(
0|      |2|1|24:00   |不正な入力です。時刻をhh:mm形式(00:00～23:59)で入力して下さい。
0|      |2|1|9:30    |
0|      |2|1|09:30:20|不正な入力です。時刻をhh:mm形式(00:00～23:59)で入力して下さい。
0|      |2|2|17:00   |開始時刻が入力されていません。
0|22:00 |2|2|5       |不正な入力です。時刻をhh:mm形式(00:00～23:59)で入力して下さい。
0|22:00 |2|2|22:00   |不正な入力です。終了時刻を開始時刻以降に設定して下さい。
0|22:00 |2|2|00:00   |
4|      |1|1|100:59  |
4|      |1|1|2700    |不正な入力です。時間をhh:mm形式で入力して下さい。
)";

TEST_F(TimeSheets, CellsRefuseWhatTheyCantHold) {
    for (const QStringList& row : rowsOf(cellRefusals))
        EXPECT_EQ(sheet(row[0].toInt(), 0, row[1].isEmpty() ? QString() : u"2,1="_q + row[1])
                      ->refusal(row[2].toInt(), row[3].toInt(), row[4]),
                  row[5])
            << row[4];
}

TEST_F(TimeSheets, APasteLeavesNavyCellsAndHiddenRowsAlone) {
    setFlexible();
    const auto weekday = sheet(Weekday);
    EXPECT_EQ(weekday->grid.CellBackColor(7, 3), (GridColour{0, 0, 128}));
    pasteCells(weekday->grid, {3, 1, 7, 4},
               u"7:00\t10:00\t15:00\t22:00\n1:00\t2:00\t3:00\t4:00\n\t\t\t\n5:00\t7:00\t8:00\t9:00"_q);
    const auto row = [&](int at) {
        QStringList cells;
        for (int column = 1; column <= 4; ++column) cells.append(weekday->grid.TextMatrix(at, column));
        return cells.join(u' ');
    };
    EXPECT_EQ(row(3), u"07:00 10:00 15:00 22:00"_q);
    EXPECT_EQ(row(4) + row(5), u"   01:00 02:00 03:00 04:00"_q) << "a hidden row takes nothing";
    EXPECT_EQ(row(7), u"05:00 07:00  "_q);
}

class TimeStore : public Times {
  protected:
    // A row of a table as "field=value", Null fields left out.
    QStringList stored(const QString& table, const QString& codeField, std::int64_t code) {
        QStringList fields;
        Rows rows = connection.rows(u"SELECT * FROM %1 WHERE (%2 = ?);"_q.arg(table, codeField), {code});
        if (rows.next())
            for (int column = 0; column < rows.columns(); ++column)
                if (!rows.isNull(column)) fields.append(rows.name(column).mid(2) + u'=' + rows.text(column));
        return fields;
    }
    // Every row of the page filled, stored as a new record.
    QStringList storedOfAll(int page) {
        const auto shown = sheet(page);
        for (int row = shown->page.firstRow; row < shown->rowEnd(); ++row)
            for (int column = 1; column < shown->grid.Cols(); ++column)
                if (shown->mayEdit(row, column)) shown->grid.TextMatrix(row, column, u"0%1:00"_q.arg(column));
        const std::int64_t code = updateTimes(connection, *shown, u"全部%1"_q.arg(count(text(shown->page.table))));
        return stored(text(shown->page.table), text(shown->page.codeField), code);
    }
};

TEST_F(TimeStore, EveryFieldComesBackAndGatedRowsBecomeNull) {
    // The style, the page, how many fields are stored with code and name, some of them, and fields that are not.
    for (const QStringList& row : rowsOf(R"(
F_Diff = False                 | 0 | 26 | EndOver2=06:00 StartLegalOver0=01:00        | StartFlex0
F_Over = False                 | 0 | 18 | StartLate0=01:00                            | StartOver0 StartAfterLate0
F_Over = True, F_Early = False | 3 | 24 | EndOver3=08:00                              | StartEarly0
F_Over = True, F_Holiday = False | 1 | 8 | EndLate2=06:00                             | StartAfterLate0
F_Over = True                  | 4 |  9 | Early=60 LegalOver=60                       | Holiday
F_Over = False, F_Early = True | 4 |  7 | LegalLate=60                                | Early Over
)")) {
        setStyle(row[0]);
        const QStringList fields = storedOfAll(row[1].toInt());
        EXPECT_EQ(fields.size(), row[2].toInt()) << row.join(u'|') << fields.join(u' ');
        for (const QString& field : row[3].split(u' ')) EXPECT_TRUE(fields.contains(field)) << field;
        for (const QString& field : row[4].split(u' '))
            EXPECT_TRUE(fields.filter(QRegularExpression(u'^' + field + u'=')).isEmpty()) << field;
    }
}

TEST_F(TimeStore, ARecordIsAddedChangedAndTakenAway) {
    const QString name = u"夜勤'%\U00020BB7"_q;
    const auto fresh = sheet(Weekday, 0, u"2,1=9:00 2,2=17:00 3,2=08:00 5,4=20:00"_q);
    EXPECT_EQ(updateTimes(connection, *fresh, name), 2);
    EXPECT_EQ(stored(u"M03_WeekdayStyle"_q, u"F_WeekdayCode"_q, 2).join(u' '),
              u"WeekdayCode=2 WeekdayName=%1 StartWork0=09:00 EndWork0=17:00"_q.arg(name))
        << "an end without a start goes";
    EXPECT_EQ(stored(u"M03_WeekdayStyle"_q, u"F_WeekdayCode"_q, 0).size(), 2) << "the reserved record stays empty";
    fresh->grid.TextMatrix(2, 2, u"18:00"_q);
    EXPECT_EQ(updateTimes(connection, *fresh, u"日勤"_q), 2) << "the new record is the one at hand";
    const auto twin = sheet(Weekday);
    EXPECT_EQ(refusalOf([&] { updateTimes(connection, *twin, u"日勤"_q); }),
              u"平日勤務名称を変更して下さい。\r\n同じ平日勤務名称が既に登録されています。"_q);
    removeTimes(connection, fresh->page, 2);
    EXPECT_EQ(refusalOf([&] { updateTimes(connection, *fresh, u"日勤"_q); }), u"日勤が削除されています。"_q);
    EXPECT_EQ(refusalOf([&] { showTimes(connection, *fresh, 2); }), u"選択した平日勤務時間が削除されています。"_q);
    EXPECT_EQ(refusalOf([&] { removeTimes(connection, fresh->page, 1); }),
              u"表示されている平日勤務時間設定は使用されているため削除できません。"_q);
}

} // namespace
} // namespace kurbo::test
