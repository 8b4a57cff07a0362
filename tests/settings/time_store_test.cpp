#include "settings/work_time/time_store.h"

#include "card/card_cells.h"
#include "settings/times.h"

namespace kurbo::test {
namespace {

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
