#include "base/public_holidays.h"
#include "base/system/code_page.h"
#include "base/system/files.h"
#include "settings/calendar/calendar.h"
#include "settings/calendar/calendar_store.h"
#include "settings/calendar/holiday_sheet.h"
#include "support/sample_company.h"
#include "support/table.h"

namespace kurbo::test {
namespace {

constexpr int nameColumn = static_cast<int>(CalendarColumn::Name);
constexpr int kindColumn = static_cast<int>(CalendarColumn::Kind);

// The calendar of 2026 is there, and today is in it.
class CalendarDays : public SampleCompany {
  protected:
    CalendarDays() { client.openHome(); }
    [[nodiscard]] int days(int year) {
        return asked(u"SELECT Count(*) FROM T01_Calendar WHERE (F_DateID LIKE '%1%')"_q.arg(year)).toInt();
    }
    [[nodiscard]] QString stored(const QString& id) {
        return asked(u"SELECT F_Holiday & ' ' & F_Type FROM T01_Calendar WHERE F_DateID = '%1'"_q.arg(id));
    }
    void make(int year) { CreateCalendar(desk.progress, connection, *makeDay(year, 1, 1), *makeDay(year, 12, 31)); }
    void addDay(const QString& id, const QString& date) {
        insert("T01_Calendar", "DateID, Date", u"'%1', #%2#"_q.arg(id, date));
    }
    void edit(int row, int column, const QString& text) { calendar.sheet.grid.edit(row, column, text); }
    void update() { UpdateCalendar(desk.progress, client.HomeConnection, calendar.sheet); }

    Calendar calendar{client};
};

} // namespace

TEST_F(CalendarDays, AYearIsMadeWholeOrNotAtAll) {
    make(2028);
    connection.execute(u"DELETE FROM T01_Calendar WHERE (F_DateID > '20280105')"_q);
    make(2028);
    EXPECT_EQ(days(2028), 366) << "the days that it lacks";
    addDay(u"20291231"_q, u"2030/01/01"_q);
    EXPECT_THROW(make(2029), Fault);
    EXPECT_EQ(days(2029), 1);
}

TEST_F(CalendarDays, OpenOnThisYearOrTheOldest) {
    desk.clock.set(at(*makeDay(2027, 1, 1), 9, 0));
    addDay(u"20240701"_q, u"2024/07/01"_q);
    connection.execute(u"UPDATE M01_CorpInfo SET F_AmHolidayWork = 0, F_PmHolidayWork = -1, F_LegalHoliday = True"_q);
    desk.prompts.expect(u"2024年のカレンダーには、作成されていない日が365日あります。"_q);
    calendar.load();
    EXPECT_EQ(calendar.sheet.year, 2024);
    EXPECT_EQ(calendar.sheet.kinds.source(), u"|#0;全日|#3;法定休日"_q);
    connection.execute(u"DELETE FROM T01_Calendar"_q);
    calendar.load();
    EXPECT_EQ(calendar.sheet.year, 2027);
    connection.execute(u"DELETE FROM M01_CorpInfo"_q);
    EXPECT_EQ(refusalOf([&] { calendar.load(); }).left(15), u"勤務形態設定に不備があります。"_q);
}

TEST_F(CalendarDays, YearsAreMadeWithinLimits) {
    const QString make = u"年のカレンダーは作成されていません。\r\n\r\n作成してよろしいですか？"_q;
    const QString discard = u"カレンダーは変更されています。変更を破棄しますか？"_q;
    calendar.load();
    desk.prompts.expect(discard, Answer::Yes).expect(u"2027"_q + make, Answer::Cancel);
    EXPECT_FALSE(calendar.moveYear(1, true));
    desk.prompts.expect(u"2027"_q + make)
        .expect(u"2028"_q + make)
        .expect(u"これ以上先のカレンダーは作成できません。"_q);
    EXPECT_TRUE(calendar.moveYear(1, false) && calendar.moveYear(1, false) && !calendar.moveYear(1, false));
    addDay(u"20290101"_q, u"2029/01/01"_q);
    desk.prompts.expect(u"2029年のカレンダーには、作成されていない日が364日あります。"_q, Answer::Cancel);
    EXPECT_TRUE(calendar.moveYear(1, false)) << "what is there is shown beyond the limit";
    EXPECT_EQ(days(2029), 1);
    desk.prompts.expect(u"2025"_q + make)
        .expect(u"2024"_q + make)
        .expect(u"これ以上前のカレンダーは作成できません。"_q);
    for (int year = 2028; year >= 2024; --year) EXPECT_TRUE(calendar.moveYear(-1, false));
    EXPECT_FALSE(calendar.moveYear(-1, false));
    EXPECT_EQ(calendar.sheet.year, 2024);
}

TEST_F(CalendarDays, ChangedRowsAreStored) {
    calendar.load();
    connection.execute(u"UPDATE T01_Calendar SET F_Holiday = '他', F_Type = '1' WHERE F_DateID = '20260103'"_q);
    const QString strange = u" It's 50% %1 𠮷 "_q;
    edit(1, nameColumn, strange);
    edit(1, kindColumn, u"全日"_q);
    update();
    EXPECT_EQ(stored(u"20260101"_q), strange.trimmed() + u" 0"_q);
    EXPECT_EQ(stored(u"20260103"_q), u"他 1"_q) << "what another client has written elsewhere stays";
    edit(2, nameColumn, u"x"_q);
    connection.execute(u"DELETE FROM T01_Calendar WHERE F_DateID = '20260101'"_q);
    update();
    EXPECT_EQ(stored(u"20260102"_q), u"x "_q) << "a day that has gone is passed over";
}

TEST_F(CalendarDays, CellsAndRowsAreChecked) {
    calendar.load();
    const CalendarRules rules(calendar.sheet);
    // Column, text, and what is said when it is typed and when the calendar is checked.
    for (const QStringList& row : rowsOf(R"(
2|亜亜亜亜亜亜亜亜亜亜亜亜亜亜亜||
2|亜亜亜亜亜亜亜亜亜亜亜亜亜亜亜a|不正な入力です。日付名称は全角15文字(半角30文字)以内で入力します。|2026/01/05(月)の日付名称が不正です。/n全角15文字(半角30文字)以内で入力します。
3|午後||
3|法定休日|不正な入力です。リストから選択して下さい。|2026/01/05(月)の休日種別が不正です。/n休日種別はリストから選択して下さい。
)")) {
        EXPECT_EQ(rules.refusal(5, row[0].toInt(), row[1]), row[2]);
        edit(5, row[0].toInt(), row[1]);
        EXPECT_EQ(refusalOf([&] { checkCalendar(calendar.sheet); }), row[3]);
        edit(5, row[0].toInt(), {});
    }
    EXPECT_FALSE(rules.mayEdit(0, nameColumn) || rules.mayEdit(5, 1) || rules.mayEdit(5, 4));
}

namespace {

// A year of working days, and rules for it.
class HolidayRules : public ::testing::Test {
  protected:
    HolidayRules() { begin(2027); }
    void begin(int year) {
        QList<CalendarRow> days;
        for (Day day = *makeDay(year, 1, 1); yearOf(day) == year; day += std::chrono::days(1))
            days.append({day, dateId(day), {}, {}});
        calendar.kinds = GridList(u"|#0;全日|#1;午前"_q);
        drawCalendar(calendar, year, days);
        SetupGrid(rules, calendar);
        next = 1;
    }
    // Method, weekday, start, end, name, kind.
    void rule(const QStringList& cells) {
        for (int i = 0; i < cells.size(); ++i) rules.grid.TextMatrix(next, 1 + i, cells[i]);
        ++next;
    }
    // "mmdd" and the name of each day that was marked.
    [[nodiscard]] QString marked() const {
        QStringList days;
        for (int row = 1; row < calendar.grid.Rows(); ++row)
            if (calendar.grid.RowStatus(row) != GridStatus::None)
                days.append(calendar.text(row, CalendarColumn::Id).mid(4) + calendar.text(row, CalendarColumn::Name));
        return days.join(u' ');
    }
    [[nodiscard]] QString refusal() const {
        return refusalOf([&] { checkRules(rules); });
    }

    CalendarSheet calendar;
    HolidaySheet rules;
    int next = 1;
};

QString official(int year) {
    QStringList days;
    for (const PublicHoliday& holiday : publicHolidays(year)) days.append(dateId(holiday.day).mid(4) + holiday.name);
    return days.join(u' ');
}

} // namespace

// Why the file is made anew each year: the equinoxes, and the days off that follow from other holidays.
TEST_F(HolidayRules, AFileIsRightForItsOwnYear) {
    const Desk desk;
    for (const int year : {2027, 2028, 2029, 2030, 2032}) {
        replaceFile(desk.paths.HolidayPath, holidayFileOf(year));
        begin(year);
        fillHolidays(rules, ReadHolidayFile(desk.paths.HolidayPath)->lines);
        EXPECT_EQ(refusal(), QString());
        writeRules(rules, calendar);
        EXPECT_EQ(marked(), official(year));
    }
    EXPECT_EQ(readFile(QStringLiteral(KURBO_DATA "/Holiday.txt")), holidayFileOf(2027)) << "the delivered one";
}

TEST_F(HolidayRules, FilesAreReadAsTheyAre) {
    const Desk desk;
    const QString line = u"01/01,元日,0\r\n"_q;
    const auto read = [&](const QByteArray& bytes) {
        replaceFile(desk.paths.HolidayPath, bytes);
        const auto file = ReadHolidayFile(desk.paths.HolidayPath);
        if (!file) return QString();
        QString all = file->heading + u':';
        for (const HolidayLine& holiday : file->lines) all += holiday.date + holiday.name + holiday.kind;
        return all;
    };
    for (const auto& [text, expected] :
         {std::pair{u"\"見, \"\"出\"\"\"\n\"02/11\", 建国 ,\"1\"\n\n"_q, u"見, \"出\":02/11建国1"_q},
          {u"h\r\n"_q + line.repeated(100), u"h:"_q + u"01/01元日0"_q.repeated(100)},
          {u"h\n01/2/2,成人の日,0"_q, u"h:01/2/2成人の日0"_q}})
        EXPECT_EQ(read(*toCodePage(text)), expected);
    for (const QString& text : {u"h\n"_q + line.repeated(101), u"h\n1/2/2,成人の日,0"_q, u"h\n0101,元日,0"_q,
                                u"h\n01/01,元日"_q, u"h\n01/01,元日,0,"_q, u"h\n\"01/01,元日,0"_q, QString()})
        EXPECT_EQ(read(*toCodePage(text)), QString()) << text.left(40);
    EXPECT_EQ(read("\xEF\xBB\xBF" + (u"𠮷\n"_q + line).toUtf8()), u"𠮷:01/01元日0"_q);
    EXPECT_EQ(read("h\n01/01,\x81\x01,0"), QString());
    EXPECT_FALSE(holidayDate(u"02/5/2"_q, 2027)) << "no fifth Monday";
}

TEST_F(HolidayRules, AFileOfAnotherYearIsTold) {
    Desk desk;
    replaceFile(desk.paths.HolidayPath, holidayFileOf(2027));
    const QString differs = u"2027年のもので、カレンダーの2026年とは異なります。\r\n"_q;
    const QString make = differs + u"2026年の祝日ファイルを作成して"_q;
    desk.prompts.expect(make, Answer::No).expect(differs + u"\r\nよろしいですか？"_q, Answer::Cancel);
    EXPECT_FALSE(chooseHolidays(desk.context, 2026));
    EXPECT_EQ(readFile(desk.paths.HolidayPath), holidayFileOf(2027));
    desk.prompts.expect(make, Answer::Yes);
    EXPECT_TRUE(chooseHolidays(desk.context, 2026)->heading.startsWith(u"2026年"_q));
    EXPECT_EQ(readFile(desk.paths.HolidayPath), holidayFileOf(2026));
}

TEST_F(HolidayRules, HolidaysTakeTheEmptyRows) {
    rule({u"0"_q, u"1"_q});
    rules.grid.TextMatrix(3, 1, u"6"_q);
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(rules.text(33, HolidayColumn::Method), QString());
        fillHolidays(rules, QList<HolidayLine>(30, {u"01/01"_q, u"元日"_q, u"0"_q}));
        EXPECT_EQ(rules.text(1, HolidayColumn::Name) + rules.text(3, HolidayColumn::Name), QString());
        EXPECT_EQ(rules.text(2, HolidayColumn::Name) + rules.text(32, HolidayColumn::To), u"元日01/01"_q);
    }
    EXPECT_EQ(rules.grid.Rows(), 1 + holidayRules);
}

TEST_F(HolidayRules, RulesMeetTheirDays) {
    // One or two rules, and the days that they name.
    for (const QStringList& row : rowsOf("5,2,,,a|                    | 0329a 0531a 0830a 1129a\n"
                                         "2,6,,,a|6,,01/01,11/30      | 1210a\n"
                                         "6,,12/29,01/03,a|           |\n"
                                         "6,,12/29,12/31,a|0,5,,,,    | 1229a 1231a\n"
                                         "9,1,,,a|第１,1,,,a          |\n"
                                         "10,1,,,a|3x,1,,,a           |\n"
                                         "1,x,,,a|0,8,,,a             |")) {
        begin(2027);
        for (const QString& cells : row.mid(0, 2)) rule(cells.split(u','));
        EXPECT_EQ(refusal(), QString());
        writeRules(rules, calendar);
        EXPECT_EQ(marked().split(u' ').filter(u"a"_q).join(u' '), row[2]);
    }
    begin(2027);
    for (const QString& cells : {u"0,1,,,a,0"_q, u"0,7,,,b,1"_q, u"6,,01/03,01/03"_q}) rule(cells.split(u','));
    writeRules(rules, calendar);
    EXPECT_EQ(marked().left(28), u"0102b 0103 0109b 0110a 0116b"_q);
    EXPECT_EQ(calendar.text(3, CalendarColumn::Kind), QString()) << "an empty rule clears";
}

TEST_F(HolidayRules, WhatIsNotWholeIsRefused) {
    const QString badList = u"不正な入力です。リストから選択して下さい。"_q;
    const QString badDate = u"不正な入力です。日付をmm:dd形式で入力して下さい。"_q;
    const HolidayCells cells(rules);
    for (const auto& [column, text, refusal] :
         {std::tuple{1, u"第６"_q, badList},
          {6, u"午後"_q, badList},
          {3, u"02/29"_q, badDate},
          {5, u"a"_q.repeated(31), u"不正な入力です。休日名称は全角15文字(半角30文字)以内で入力します。"_q},
          {1, u"期間"_q, QString()},
          {3, u"02/28"_q, {}}})
        EXPECT_EQ(cells.refusal(1, column, text), refusal) << text;
    rule({u"7"_q});
    rule({});
    rule({u"6"_q, {}, u"01/05"_q});
    EXPECT_EQ(refusal(), u"3行目で終了日付が正しく入力されていません。"_q);
    rules.grid.TextMatrix(3, 3, u"02/29"_q);
    EXPECT_EQ(refusal(), u"3行目で開始日付が正しく入力されていません。"_q);
    rules.grid.TextMatrix(2, 1, u"5"_q);
    EXPECT_EQ(refusal(), u"2行目で曜日が選択されていません。"_q);
}

} // namespace kurbo::test
