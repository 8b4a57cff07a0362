#include "settings/work_time/time_sheet.h"

#include "card/card_cells.h"
#include "screen/grid/grid_clipboard.h"
#include "settings/times.h"
#include "settings/work_time/time_chart.h"
#include "settings/work_time/time_checks.h"
#include "settings/work_time/time_store.h"

namespace kurbo::test {
namespace {

class TimeSheets : public Times {};

TEST_F(TimeSheets, ChecksRefuseInTheirOrder) {
    connection.execute(u"INSERT INTO M03_WeekdayStyle (F_WeekdayCode, F_WeekdayName) VALUES (2, 'O''Neil 100%')"_q);
    struct Case {
        int page;
        int code;
        QString name;
        QString cells;
        QString refusal;
    };
    const QString work = u"2,1=09:00 2,2=17:00 "_q;
    const QString format = u"時刻をhh:mm形式(00:00～23:59)で入力して下さい。"_q;
    const QString order = u"終了時刻を開始時刻以降に設定して下さい。"_q;
    const auto check = [this](const Case& given) {
        const auto shown = sheet(given.page, given.code, given.cells);
        const auto weekday = sheet(Weekday, 0, given.page == Adjust ? given.cells : QString());
        EXPECT_EQ(refusalOf([&] { checkTimes(connection, *shown, given.name, *weekday); }), given.refusal)
            << given.page << " " << given.name << " " << given.cells;
    };
    for (const Case& given : {
             Case{Weekday, 0, u""_q, u""_q, u"平日勤務名称が入力されていません。"_q},
             {Adjust, 0, u""_q, u""_q, u"時間調整名称が入力されていません。"_q},
             {Weekday, 1, u"新しい勤務時間"_q, work,
              u"平日勤務名称を変更して下さい。\r\n名称「新しい勤務時間」は使用できません。"_q},
             {PmHoliday, 0, QString(16, u'夜'), work,
              u"午後休日勤務名称が不正です。午後休日勤務名称は全角15文字(半角30文字)以内で入力します。"_q},
             {Weekday, 0, QString(15, u'夜'), work, u""_q},
             {Weekday, 0, u"o'neil 100%"_q, work,
              u"平日勤務名称を変更して下さい。\r\n同じ平日勤務名称が既に登録されています。"_q},
             {Weekday, 1, u"O'Neil 100%"_q, work, u""_q},
             {Weekday, 0, u"夜"_q, u"2,1=9時 3,1=09:00"_q, u"就業時間が入力されていません。"_q},
             {AmHoliday, 0, u"夜"_q, u"2,1=9時"_q, u"就業時間が不正です。終了時刻が入力されていません。"_q},
             {PmHoliday, 0, u"夜"_q, u""_q, u"就業時間が入力されていません。"_q},
             {Holiday, 0, u"夜"_q, u"3,2=05:00"_q, u""_q},
             {Weekday, 0, u"夜"_q, work + u"3,3=08:00"_q, u"ﾌﾚｷｼﾌﾞﾙﾀｲﾑが不正です。終了時刻が入力されていません。"_q},
             {Weekday, 0, u"夜"_q, work + u"4,1=18:00 4,2=24:00"_q, u"法内残業が不正です。"_q + format},
             {Weekday, 0, u"夜"_q, work + u"6,5=22:00 6,6=22:00"_q, u"深夜残業が不正です。"_q + order},
             {Weekday, 0, u"夜"_q, work + u"6,1=22:00 6,2=00:00 8,2=05:00"_q, u""_q},
             {Holiday, 0, u"夜"_q, u"3,1=22:00 3,2=05:00"_q,
              u"休日深夜が不正です。"_q + order +
                  u"\r\n翌日にまたがる時間帯は、22:00～00:00 と 00:00～05:00 の二つに分けて入力します。"_q},
             {Holiday, 0, u"夜"_q, u"5,1=09:00 5,2=08:00"_q, u"早出勤務が不正です。"_q + order},
             {Adjust, 0, u"夜"_q, u"1,1=x"_q, u""_q},
             {Adjust, 0, u"夜"_q, u"5,1=9:0"_q, u"普通残業の調整時間が不正です。時間をhh:mm形式で入力して下さい。"_q},
         })
        check(given);
    setFlexible();
    const QString none = u"フレキシブルタイムが入力されていません。"_q;
    for (const Case& given : {
             Case{Weekday, 0, u"昼"_q, work + u"3,7=07:00 3,8=08:00"_q, none},
             {Weekday, 0, u"昼"_q, u"3,5=07:00 3,6=08:00"_q, u""_q},
             {AmHoliday, 0, u"昼"_q, work, none},
             {PmHoliday, 0, u"昼"_q, work, u""_q},
             {Weekday, 0, u"昼"_q, u"3,1=07:00 3,2=08:00 2,1=09:00"_q,
              u"ｺｱﾀｲﾑが不正です。終了時刻が入力されていません。"_q},
         })
        check(given);
}

TEST_F(TimeSheets, CellsRefuseWhatTheyCantHold) {
    struct Case {
        int page;
        QString cells;
        int row;
        int column;
        QString typed;
        QString refusal;
    };
    const QString time = u"不正な入力です。時刻をhh:mm形式(00:00～23:59)で入力して下さい。"_q;
    const QString order = u"不正な入力です。終了時刻を開始時刻以降に設定して下さい。"_q;
    const QString limit = u"不正な入力です。時間をhh:mm形式で入力して下さい。"_q;
    for (const Case& given : {
             Case{Weekday, {}, 2, 1, u"24:00"_q, time},
             {Weekday, {}, 2, 1, u"9:30"_q, {}},
             {Weekday, {}, 2, 1, u"09:30:20"_q, time},
             {Weekday, {}, 2, 2, u"17:00"_q, u"開始時刻が入力されていません。"_q},
             {Weekday, u"2,1=22:00"_q, 2, 2, u"5"_q, time},
             {Weekday, u"2,1=22:00"_q, 2, 2, u"22:00"_q, order},
             {Weekday, u"2,1=22:00"_q, 2, 2, u"00:00"_q, {}},
             {Adjust, {}, 1, 1, u"100:59"_q, {}},
             {Adjust, {}, 1, 1, u"5:60"_q, limit},
             {Adjust, {}, 1, 1, u":30"_q, limit},
             {Adjust, {}, 1, 1, u"-1:30"_q, limit},
             {Adjust, {}, 1, 1, u"1:2:30"_q, limit},
             {Adjust, {}, 1, 1, u"2700"_q, limit},
         })
        EXPECT_EQ(sheet(given.page, 0, given.cells)->refusal(given.row, given.column, given.typed), given.refusal)
            << given.typed;
}

TEST_F(TimeSheets, APasteLeavesNavyCellsAndHiddenRowsAlone) {
    setFlexible();
    const auto weekday = sheet(Weekday);
    int edits = 0;
    weekday->onEdit = [&edits] { ++edits; };
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
    EXPECT_TRUE(weekday->changed);
    EXPECT_EQ(edits, 10);
    EXPECT_EQ(weekday->tip(2, 1), u"コアタイムの時間帯を設定します(詳細はF1ｷｰを押してﾍﾙﾌﾟを参照して下さい)"_q);
}

TEST_F(TimeSheets, TheChartHasABoxForEachBandThatIsSeen) {
    const auto chart = [this](int page, const QString& cells) {
        QStringList boxes;
        for (const ChartBox& box : dayChart(*sheet(page, 0, cells)))
            boxes.append(u"%1 %2-%3/%4"_q.arg(box.caption).arg(box.start).arg(box.end).arg(box.height));
        return boxes.join(u", "_q);
    };
    EXPECT_EQ(chart(Weekday, u"2,1=09:00 2,2=12:00 3,1=07:00 3,2=08:00 6,1=22:00 6,2=00:00 8,1=05:00 8,2=09:00"_q),
              u"就業時間 540-720/100, 深夜残業 1320-1440/100, 早出勤務 300-540/100"_q);
    EXPECT_EQ(chart(Holiday, u"2,1=09:00 2,2=25:00 4,1=05:00 4,2=09:00 5,1=05:00 5,2=09:00"_q),
              u"明け残業 300-540/100, 早出勤務 300-540/45"_q);
    EXPECT_EQ(dayChart(*sheet(PmHoliday, 0, u"5,7=18:00 5,8=20:00"_q)).value(0).colour, (GridColour{128, 128, 255}));
    const auto legend = [this](int page) {
        QStringList captions;
        for (const LegendEntry& entry : legendOf(*sheet(page))) captions.append(entry.caption);
        return captions.join(u' ');
    };
    EXPECT_EQ(legend(Weekday), u"就業時間 法内残業 普通残業 深夜残業 明け残業 早出勤務"_q);
    EXPECT_EQ(legend(Holiday), u"休日勤務 休日深夜 明け残業 早出勤務"_q);
    setFlexible();
    EXPECT_EQ(legend(AmHoliday), u"ｺｱ ﾌﾚｷｼﾌﾞﾙ 普通残業 深夜残業 明け残業 早出勤務"_q);
    EXPECT_EQ(legend(PmHoliday).left(4), u"就業時間"_q);
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
    struct Case {
        QString style;
        int page;
        int fields; // code and name counted
        QStringList kept;
        QStringList lost;
    };
    for (const Case& given : {
             Case{u"F_Diff = False"_q,
                  Weekday,
                  26,
                  {u"EndOver2=06:00"_q, u"StartLegalOver0=01:00"_q},
                  {u"StartFlex0"_q}},
             {u"F_Over = False"_q, Weekday, 18, {u"StartLate0=01:00"_q}, {u"StartOver0"_q, u"StartAfterLate0"_q}},
             {u"F_Over = True"_q, AmHoliday, 26, {u"EndEarly1=04:00"_q}, {u"StartFlex0"_q}},
             {u"F_Early = False"_q, PmHoliday, 24, {u"EndOver3=08:00"_q}, {u"StartEarly0"_q}},
             {u"F_Over = False"_q, Holiday, 18, {u"StartAfterLate0=01:00"_q, u"StartEarly0=01:00"_q}, {}},
             {u"F_Over = True, F_Holiday = False"_q, Holiday, 8, {u"EndLate2=06:00"_q}, {u"StartAfterLate0"_q}},
             {u"F_Over = True"_q, Adjust, 9, {u"Early=60"_q, u"LegalOver=60"_q}, {u"Holiday"_q}},
             {u"F_Over = False, F_Early = True"_q, Adjust, 7, {u"LegalLate=60"_q}, {u"Early"_q, u"Over"_q}},
         }) {
        setStyle(given.style);
        const QStringList fields = storedOfAll(given.page);
        EXPECT_EQ(fields.size(), given.fields) << given.page << " " << given.style << " " << fields.join(u' ');
        for (const QString& field : given.kept) EXPECT_TRUE(fields.contains(field)) << field;
        for (const QString& field : given.lost)
            EXPECT_TRUE(fields.filter(QRegularExpression(u'^' + field + u'=')).isEmpty()) << field;
    }
}

TEST_F(TimeStore, ARecordIsAddedChangedAndTakenAway) {
    const QString name = u"夜勤'%\U00020BB7"_q;
    const auto fresh = sheet(Weekday, 0, u"2,1=9:00 2,2=17:00 3,2=08:00 5,4=20:00"_q);
    EXPECT_EQ(updateTimes(connection, *fresh, name), 2);
    EXPECT_EQ(stored(u"M03_WeekdayStyle"_q, u"F_WeekdayCode"_q, 2),
              (QStringList{u"WeekdayCode=2"_q, u"WeekdayName="_q + name, u"StartWork0=09:00"_q, u"EndWork0=17:00"_q}))
        << "an end without a start goes";
    EXPECT_EQ(stored(u"M03_WeekdayStyle"_q, u"F_WeekdayCode"_q, 0).size(), 2) << "the reserved record stays empty";
    EXPECT_EQ(sheet(Weekday, 2)->name, name);
    fresh->grid.TextMatrix(2, 2, u"18:00"_q);
    EXPECT_EQ(updateTimes(connection, *fresh, u"日勤"_q), 2) << "the new record is the one at hand";
    EXPECT_EQ(count(u"M03_WeekdayStyle"_q), 3);
    const auto twin = sheet(Weekday);
    EXPECT_EQ(refusalOf([&] { updateTimes(connection, *twin, u"日勤"_q); }),
              u"平日勤務名称を変更して下さい。\r\n同じ平日勤務名称が既に登録されています。"_q);
    removeTimes(connection, fresh->page, 2);
    EXPECT_EQ(refusalOf([&] { updateTimes(connection, *fresh, u"日勤"_q); }), u"日勤が削除されています。"_q);
    EXPECT_EQ(refusalOf([&] { showTimes(connection, *fresh, 2); }), u"選択した平日勤務時間が削除されています。"_q);
    EXPECT_TRUE(isUsed(connection, fresh->page, 1));
    EXPECT_EQ(refusalOf([&] { removeTimes(connection, fresh->page, 1); }),
              u"表示されている平日勤務時間設定は使用されているため削除できません。"_q);
    EXPECT_EQ(count(u"M03_WeekdayStyle"_q), 2);
    EXPECT_EQ(sheet(Adjust, 1)->grid.TextMatrix(2, 1), u"45:00"_q);
}

TEST_F(TimeStore, AChangedBandReachesTheCard) {
    addCard(1, *makeDay(2026, 4, 1), u"09:00"_q, u"20:00"_q);
    const auto overtime = [this] {
        clsWorkTime rules;
        EXPECT_TRUE(GetWorkStyle(desk.context, connection, rules));
        readStaffInfo(connection, rules, u"1001"_q);
        readWorkTime(connection, rules, u"1001"_q);
        const Day day = *makeDay(2026, 4, 1);
        const auto card = makeCard(desk.context, connection, rules, u"1001"_q, {day, day});
        return card ? card->days.value(0).value(7) : u"-"_q;
    };
    EXPECT_EQ(overtime(), QString());
    (void)updateTimes(connection, *sheet(Weekday, 1, u"5,1=18:00 5,2=22:00"_q), u"日勤"_q);
    EXPECT_EQ(overtime(), u"2:00"_q);
}

} // namespace
} // namespace kurbo::test
