#include "card/edit/card_update.h"

#include "card/demo_site.h"
#include "card/sheet.h"
#include "support/collisions.h"

namespace kurbo::test {
namespace {

class CardUpdate : public Collisions {
  protected:
    CardUpdate() {
        connection.execute(u"UPDATE M01_CorpInfo SET F_RoundEnter = 1, F_RoundLeave = 0, F_CountUnit = 1"_q);
        for (int id = 5; id < 10; ++id) addCard(id, dayAt(id - 5), u"08:48"_q, u"18:12"_q, u"0"_q);
        addCard(20, dayAt(0), u"09:00"_q, u"17:00"_q, {}, u"1002"_q);
        connection.execute(u"UPDATE T02_Kurbo SET F_Enter = #2026/04/01 08:48:31#, F_Leave = #2026/04/01 18:12:44#, "
                           "F_Special = '1', F_Compens = '2' WHERE F_KurboID = 5"_q);
        connection.execute(u"UPDATE T02_Kurbo SET F_Enter = #2026/04/02 08:48:31# WHERE F_KurboID = 6"_q);
        draw();
    }
    static Day dayAt(int i) { return *makeDay(2026, 4, 1) + std::chrono::days(i); }

    // The first ten days of April as the screen shows them.
    void draw() {
        const auto card = cardOf(desk.context, connection, u"1001"_q, {dayAt(0), dayAt(9)});
        ASSERT_TRUE(card);
        sheet.show(*card);
    }
    bool update(const QString& staff = u"1001"_q) { return UpdateDayly(desk.context, connection, sheet, staff); }
    // The row's fields; "-" stands for Null.
    QString row(int id) {
        QStringList fields;
        Rows found = connection.rows(u"SELECT F_DateID, F_User, F_Plan, F_Enter, F_Leave, F_Paid, F_Special, F_Compens "
                                     "FROM T02_Kurbo WHERE F_KurboID = ?"_q,
                                     {id});
        if (!found.next()) return {};
        for (int i = 0; i < found.columns(); ++i) fields.append(found.isNull(i) ? u"-"_q : found.text(i));
        return fields.join(u'|');
    }
    void clearDay(int day) {
        for (const CardColumn column : {CardColumn::Plan, CardColumn::Enter, CardColumn::Leave, CardColumn::Paid,
                                        CardColumn::Special, CardColumn::Compens})
            type(sheet, day, column, QString());
    }
    // The update fails with this text, under its name, and leaves the first row alone.
    void expectFailure(const QString& text, const QString& staff = u"1001"_q) {
        const QString before = row(5);
        type(sheet, 0, CardColumn::Plan, u"書きかけ"_q);
        desk.prompts.expect(text);
        EXPECT_FALSE(update(staff));
        EXPECT_TRUE(desk.prompts.last().title.endsWith(u"－UpdateDayly"_q));
        EXPECT_EQ(row(5), before) << text;
    }
    CardSheet sheet;
};

} // namespace

TEST_F(CardUpdate, WritesWhatWasChanged) {
    type(sheet, 0, CardColumn::Plan, u"会議"_q);
    type(sheet, 0, CardColumn::Paid, u"午後"_q);
    type(sheet, 1, CardColumn::Leave, QString());
    clearDay(2);
    type(sheet, 3, CardColumn::Enter, u"22:00"_q);
    type(sheet, 3, CardColumn::Leave, u"(04/05)05:00"_q);
    type(sheet, 6, CardColumn::Plan, u"'出張' \"?\""_q);
    type(sheet, 6, CardColumn::Compens, u"全日"_q);
    sheet.grid.TextMatrix(firstCardDay + 4, 3, u"not by the person"_q);
    ASSERT_TRUE(update());
    EXPECT_EQ(row(5), u"20260401|1001|会議|2026-04-01 08:48:31|2026-04-01 18:12:44|2|1|2"_q) << "seconds stay";
    EXPECT_EQ(row(6), u"20260402|1001|-|2026-04-02 08:48:31|-|0|-|-"_q);
    EXPECT_EQ(row(7), u"20260403|1001|-|-|-|-|-|-"_q) << "the row stays";
    EXPECT_EQ(row(8), u"20260404|1001|-|2026-04-04 22:00:00|2026-04-05 05:00:00|0|-|-"_q);
    EXPECT_EQ(row(9), u"20260405|1001|-|2026-04-05 08:48:00|2026-04-05 18:12:00|0|-|-"_q);
    EXPECT_EQ(row(21), u"20260407|1001|'出張' \"?\"|-|-|-|-|0"_q);
    draw();
    type(sheet, 1, CardColumn::Leave, u"08:48"_q);
    ASSERT_TRUE(update());
    EXPECT_EQ(row(6), u"20260402|1001|-|2026-04-02 08:48:31|2026-04-02 08:48:31|0|-|-"_q);
}

TEST_F(CardUpdate, ATakenIdIsTriedFourTimesInAll) {
    type(sheet, 5, CardColumn::Plan, u"会議"_q);
    takeIds(4);
    expectFailure(u"エラー番号：3022\r\nインデックス、主キー、"_q);
    EXPECT_EQ(attempts, 4);
    EXPECT_EQ(count(u"T02_Kurbo"_q), 6);
    left = 3;
    EXPECT_TRUE(update());
    EXPECT_EQ(row(21), u"20260406|1001|会議|-|-|-|-|-"_q);
}

TEST_F(CardUpdate, FailsWhole) {
    expectFailure(u"エラー番号：3197"_q, u"1002"_q); // not that person's row
    connection.execute(u"UPDATE T02_Kurbo SET F_DateID = '20260420' WHERE F_KurboID = 5"_q);
    expectFailure(u"エラー番号：3197"_q); // the number is another day's by now
    connection.execute(u"UPDATE T02_Kurbo SET F_DateID = '20260401' WHERE F_KurboID = 5"_q);
    connection.execute(u"DELETE * FROM T02_Kurbo WHERE F_KurboID = 7"_q);
    type(sheet, 2, CardColumn::Plan, u"会議"_q);
    expectFailure(u"エラー番号：3197\r\n変更するレコードが見つかりません。"_q);
    draw();
    type(sheet, 1, CardColumn::Enter, u"25:00"_q);
    expectFailure(u"エラー番号：3317"_q); // never checked
    draw();
    sheet.days[8].day.facts.date = *makeDay(2027, 4, 9);
    type(sheet, 8, CardColumn::Plan, u"会議"_q);
    expectFailure(u"エラー番号：3201"_q); // no such day in the calendar
    draw();
    connection.close();
    const AsNobody nobody;
    connection.open(path, databasePassword());
    expectFailure(u"エラー番号：3027\r\nデータベースファイルまたはフォルダが読み取り専用のため"_q);
    desk.prompts.expect(u"エラー番号：3027"_q);
    EXPECT_FALSE(DeleteKurbo(desk.context, connection, u"1001"_q, dayAt(0), dayAt(9)));
    EXPECT_EQ(desk.prompts.last().title, u"Kurbo.Store－DeleteKurbo"_q);
}

TEST_F(CardUpdate, ADeletedPeriodTakesItsOutingsAlong) {
    for (const int id : {5, 6, 20})
        connection.execute(u"INSERT INTO T03_GoOut (F_KurboID, F_Order) VALUES (?, 1)"_q, {id});
    EXPECT_TRUE(DeleteKurbo(desk.context, connection, u"1001"_q, dayAt(1), dayAt(3)));
    EXPECT_EQ(asked(u"SELECT Count(*) FROM T02_Kurbo WHERE F_KurboID IN (5, 9, 20)"_q), u"3"_q);
    EXPECT_EQ(count(u"T02_Kurbo"_q), 3);
    EXPECT_EQ(count(u"T03_GoOut"_q), 2);
}

} // namespace kurbo::test
