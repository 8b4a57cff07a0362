#include "settings/calendar/calendar.h"

#include "settings/calendar/calendar_store.h"
#include "store/file/database_file.h"
#include "support/child.h"
#include "support/sample_company.h"

namespace kurbo::test {
namespace {

constexpr int nameColumn = static_cast<int>(CalendarColumn::Name);
constexpr int kindColumn = static_cast<int>(CalendarColumn::Kind);

class Watched final : public Progress {
  public:
    void begin(const QString& text, int maximum) override { seen += text + QString::number(maximum); }
    void step(int /*value*/) override { ++steps; }
    void end() override { seen += u" end "_q; }
    QString seen;
    int steps = 0;
};

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
    // All days of a year.
    void make(int year, Progress& progress) {
        CreateCalendar(progress, connection, *makeDay(year, 1, 1), *makeDay(year, 12, 31));
    }
    void addDay(const QString& id, const QString& date) {
        insert("T01_Calendar", "DateID, Date", u"'%1', #%2#"_q.arg(id, date));
    }
    void edit(int row, int column, const QString& text) { calendar.sheet.grid.edit(row, column, text); }
    void update() { UpdateCalendar(watched, client.HomeConnection, calendar.sheet); }

    Calendar calendar{client};
    Watched watched;
};

} // namespace

TEST_F(CalendarDays, AYearIsMadeWholeOrNotAtAll) {
    make(2028, watched);
    EXPECT_EQ(watched.seen, u"カレンダーを作成しています･･･367 end "_q);
    EXPECT_GE(watched.steps, 366);
    EXPECT_EQ(asked(u"SELECT F_Date FROM T01_Calendar WHERE F_DateID = '20280229'"_q), u"2028/02/29 00:00:00"_q);
    connection.execute(u"DELETE FROM T01_Calendar WHERE (F_DateID > '20280105')"_q);
    make(2028, watched);
    EXPECT_EQ(days(2028), 366) << "the days that it lacks";
    addDay(u"20291231"_q, u"2030/01/01"_q);
    EXPECT_THROW(make(2029, watched), Fault);
    EXPECT_EQ(days(2029), 1);
}

TEST_F(CalendarDays, TwoAdministratorsMakeTheSameYears) {
    constexpr int years = 20;
    connection.close();
    client.closeConnections();
    const auto makeYears = [this] {
        connection.open(path, databasePassword());
        for (int year = 2001; year <= 2000 + years; ++year) make(year, desk.progress);
        return 0;
    };
    const pid_t one = startChild(makeYears);
    const pid_t other = startChild(makeYears);
    EXPECT_EQ(endOf(one), 0);
    EXPECT_EQ(endOf(other), 0);
    connection.open(path, databasePassword());
    for (int year = 2001; year <= 2000 + years; ++year) EXPECT_EQ(days(year), year % 4 == 0 ? 366 : 365) << year;
}

TEST_F(CalendarDays, OpenOnThisYearOrTheOldest) {
    calendar.load();
    EXPECT_EQ(calendar.sheet.year, 2026);
    EXPECT_EQ(calendar.sheet.kinds.source(), u"|#0;全日|#1;午前|#2;午後"_q);
    desk.clock.set(at(*makeDay(2027, 1, 1), 9, 0));
    addDay(u"20240701"_q, u"2024/07/01"_q);
    connection.execute(u"UPDATE M01_CorpInfo SET F_AmHolidayWork = 0, F_PmHolidayWork = -1, F_LegalHoliday = True"_q);
    desk.prompts.expect(u"2024年のカレンダーには、作成されていない日が365日あります。"_q);
    calendar.load();
    EXPECT_EQ(calendar.sheet.grid.Rows(), 1 + 366);
    EXPECT_EQ(calendar.sheet.year, 2024);
    EXPECT_EQ(calendar.sheet.kinds.source(), u"|#0;全日|#3;法定休日"_q);
    connection.execute(u"DELETE FROM T01_Calendar"_q);
    calendar.load();
    EXPECT_EQ(calendar.sheet.year, 2027);
    EXPECT_EQ(days(2027), 365);
    connection.execute(u"DELETE FROM M01_CorpInfo"_q);
    EXPECT_EQ(refusalOf([&] { calendar.load(); }).left(15), u"勤務形態設定に不備があります。"_q);
}

TEST_F(CalendarDays, YearsAreMadeWithinLimits) {
    const QString make = u"年のカレンダーは作成されていません。\r\n\r\n作成してよろしいですか？"_q;
    const QString discard = u"カレンダーは変更されています。変更を破棄しますか？"_q;
    calendar.load();
    desk.prompts.expect(discard, Answer::No).expect(discard, Answer::Yes).expect(u"2027"_q + make, Answer::Cancel);
    EXPECT_FALSE(calendar.moveYear(1, true) || calendar.moveYear(1, true));
    EXPECT_EQ(days(2027), 0);
    desk.prompts.expect(u"2027"_q + make)
        .expect(u"2028"_q + make)
        .expect(u"これ以上先のカレンダーは作成できません。"_q);
    EXPECT_TRUE(calendar.moveYear(1, false) && calendar.moveYear(1, false) && !calendar.moveYear(1, false));
    EXPECT_EQ(calendar.sheet.grid.Rows(), 1 + 366);
    addDay(u"20290101"_q, u"2029/01/01"_q);
    desk.prompts.expect(u"2029年のカレンダーには、作成されていない日が364日あります。"_q, Answer::Cancel);
    EXPECT_TRUE(calendar.moveYear(1, false)) << "what is there is shown beyond the limit";
    EXPECT_EQ(desk.prompts.last().preset, Answer::Cancel);
    EXPECT_EQ(days(2029), 1);
    desk.prompts.expect(u"2025"_q + make)
        .expect(u"2024"_q + make)
        .expect(u"これ以上前のカレンダーは作成できません。"_q);
    for (int year = 2028; year >= 2024; --year) EXPECT_TRUE(calendar.moveYear(-1, false));
    EXPECT_FALSE(calendar.moveYear(-1, false));
    EXPECT_EQ(calendar.sheet.year, 2024);
    EXPECT_EQ(days(2023), 0);
}

TEST_F(CalendarDays, ChangedRowsAreStored) {
    calendar.load();
    const GridModel& grid = calendar.sheet.grid;
    EXPECT_EQ(grid.CellText(3, 1), u"2026/01/03(土)"_q);
    EXPECT_EQ(grid.RowForeColor(3), (GridColour{0, 0, 255}));
    EXPECT_EQ(grid.RowForeColor(4), (GridColour{255, 0, 0}));
    EXPECT_FALSE(grid.RowForeColor(5));
    connection.execute(u"UPDATE T01_Calendar SET F_Holiday = '他', F_Type = '1' WHERE F_DateID = '20260103'"_q);
    const QString strange = u" It's 50% %1 𠮷 "_q;
    edit(1, nameColumn, strange);
    edit(1, kindColumn, u"全日"_q);
    edit(119, nameColumn, {});
    update();
    EXPECT_EQ(watched.seen, u"更新しています･･･366 end "_q);
    EXPECT_EQ(stored(u"20260101"_q), strange.trimmed() + u" 0"_q);
    EXPECT_EQ(stored(u"20260429"_q), u" "_q);
    EXPECT_EQ(stored(u"20260103"_q), u"他 1"_q) << "what another client has written elsewhere stays";
    edit(2, nameColumn, u"x"_q);
    edit(120, nameColumn, u"y"_q);
    connection.execute(u"DELETE FROM T01_Calendar WHERE F_DateID = '20260430'"_q);
    update();
    EXPECT_EQ(stored(u"20260102"_q), u"x "_q) << "a day that has gone is passed over";
}

TEST_F(CalendarDays, CellsAndRowsAreChecked) {
    calendar.load();
    const CalendarRules rules(calendar.sheet);
    const QString thirty = u"亜"_q.repeated(15);
    const QString badName = u"不正な入力です。日付名称は全角15文字(半角30文字)以内で入力します。"_q;
    const QString badKind = u"不正な入力です。リストから選択して下さい。"_q;
    const QString wrongName = u"2026/01/05(月)の日付名称が不正です。\r\n全角15文字(半角30文字)以内で入力します。"_q;
    const QString wrongKind = u"2026/01/05(月)の休日種別が不正です。\r\n休日種別はリストから選択して下さい。"_q;
    for (const auto& [column, text, good] : {std::tuple{nameColumn, thirty, true},
                                             {nameColumn, thirty + u'a', false},
                                             {nameColumn, u"𠮷"_q.repeated(16), false},
                                             {kindColumn, u"午後"_q, true},
                                             {kindColumn, u"法定休日"_q, false}}) {
        const bool isName = column == nameColumn;
        EXPECT_EQ(rules.refusal(5, column, text), good ? QString() : isName ? badName : badKind);
        edit(5, column, text);
        EXPECT_EQ(refusalOf([&] { checkCalendar(calendar.sheet); }), good ? QString() : isName ? wrongName : wrongKind);
        edit(5, column, {});
    }
    EXPECT_FALSE(rules.mayEdit(0, nameColumn) || rules.mayEdit(5, 1) || rules.mayEdit(5, 4));
}

} // namespace kurbo::test
