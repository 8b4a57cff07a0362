#include "card/outings/go_out.h"

#include "card/card_office.h"
#include "card/outings/go_out_store.h"
#include "screen/grid/grid_clipboard.h"
#include "support/child.h"
#include "support/table.h"
#include "support/told_prompts.h"

namespace kurbo::test {
namespace {

const QString day = u"26/04/01(水)"_q;
const QString update = u"追加・変更を更新します。"_q;

// 1001 has been out twice on the 1st; places 3 to 6 are 1001's, 7 is 1002's.
class GoOutTest : public CardOffice {
  protected:
    GoOutTest() {
        for (const QString& place : {u"3, '本社', '1001'"_q, u"4, '銀行', '1001'"_q, u"5, '倉庫', '1001'"_q,
                                     u"6, '郵便局', '1001'"_q, u"7, '本社', '1002'"_q})
            insert("T04_Destination", "DestCode, DestName, User", place);
        for (const QString& outing : {u"1, 2, #2026/04/01 14:00:09#, Null, 4, 380"_q,
                                      u"1, 1, #2026/04/01 10:05:31#, #2026/04/01 11:20:00#, 5, 1200"_q,
                                      u"2, 1, Null, #2026/04/02 09:00:00#, 5, Null"_q, u"3, 1, Null, Null, 3, 0"_q})
            insert("T03_GoOut", "KurboID, Order, Out, In, Destination, Expense", outing);
        connection.execute(
            u"UPDATE M08_Access SET F_ReadMyGoOut = True, F_WriteMyGoOut = True WHERE (F_AccessCode = 1)"_q);
        logIn(u"1001"_q);
        goOut.setPerson(u"1001"_q, true);
        goOut.ShowGoOut(u"1"_q, day);
    }
    [[nodiscard]] GridModel& grid() { return goOut.sheet.grid; }
    void type(int row, GoOutColumn column, const QString& text) { grid().edit(row, static_cast<int>(column), text); }
    [[nodiscard]] QString shown(int row) {
        QStringList cells;
        for (const int column : {0, 3, 4, 5, 6}) cells.append(grid().CellText(row, column));
        return cells.join(u' ');
    }
    [[nodiscard]] QString stored(const QString& key = u"1"_q) {
        QStringList rows;
        for (const QStringList& row : readOutings(connection, key.toLongLong())) rows.append(row.mid(2).join(u' '));
        return rows.join(u" / "_q);
    }

    GoOut goOut{client};
};

TEST_F(GoOutTest, ADayIsShownInItsOrderWithItsTotal) {
    EXPECT_EQ(grid().Rows(), 2 + 2 + 20);
    EXPECT_EQ(shown(1), u"   26/04/01(水)  合計 ¥1,580"_q);
    EXPECT_EQ(shown(2), u"1 10:05 11:20 倉庫 ¥1,200"_q);
    EXPECT_EQ(shown(3), u"2 14:00  銀行 ¥380"_q);
    EXPECT_EQ(shown(23), u"22    "_q);
    EXPECT_EQ(grid().ColComboList(5).source(), u"|倉庫|本社|銀行"_q) << "by use, then by name, and only what is used";
}

TEST_F(GoOutTest, ADayWithoutACardRowOrARightIsClosed) {
    for (const auto& [key, date] : {std::pair{u""_q, day}, {u"0"_q, day}, {u"1"_q, u"合計"_q}}) {
        goOut.ShowGoOut(key, date);
        type(2, GoOutColumn::Expense, u"1"_q);
        EXPECT_EQ(shown(2), u"1    "_q);
        EXPECT_FALSE(goOut.sheet.changed || goOut.mayDelete() || goOut.insertRow(2));
        desk.prompts.expect(u"タイムカードの打刻記録が無いため、外出明細を更新できません。"_q);
        EXPECT_FALSE(goOut.update());
    }
    goOut.setPerson(u"1002"_q, false);
    goOut.ShowGoOut(u"1"_q, day);
    EXPECT_EQ(shown(2), u"1    "_q) << "no right to see others' outings";
    EXPECT_FALSE(grid().Editable(2, 6) || goOut.deleteRow(2));
}

TEST_F(GoOutTest, CellsTakeTimesShortNamesAndMoney) {
    const QMap<QString, QString> refusals{
        {u"time"_q, u"不正な入力です。時刻をhh:mm形式(半角)で入力して下さい。"_q},
        {u"place"_q, u"不正な入力です。外出先は全角15文字(半角30文字)以内で入力して下さい。"_q},
        {u"money"_q, u"不正な入力です。金額を入力して下さい。"_q},
    };
    for (const QStringList& row : rowsOf(R"(
3 | 09:05    |
3 | 9:05     | time
4 | 09：05   | time
5 | あいうえおかきくけこさしすせそ  |
5 | あいうえおかきくけこさしすせそa | place
6 | 1,200    |
6 | 千円     | money
)"))
        EXPECT_EQ(grid().rules()->refusal(2, row[0].toInt(), row[1]), refusals.value(row[2])) << row[1];
}

TEST_F(GoOutTest, AnEditProposesTheLastExpenseAndSums) {
    // The only visit; then places of no expense the last time, and one that is new: what stands there stays.
    for (const QString& place : {u"銀行"_q, u"本社"_q, u"倉庫"_q, u"初めて'の所"_q}) {
        type(4, GoOutColumn::Destination, place);
        EXPECT_EQ(shown(4), u"3   %1 ¥380"_q.arg(place));
    }
    type(4, GoOutColumn::Expense, u"1,000.5"_q);
    pasteCells(grid(), {5, 3, 5, 6}, copiedCells(grid(), {2, 3, 2, 6}).shown);
    EXPECT_EQ(shown(5), u"4 10:05 11:20 倉庫 ¥1,200"_q);
    EXPECT_EQ(grid().TextMatrix(1, 6), u"¥3,781"_q);
}

TEST_F(GoOutTest, RowsAreInsertedAndDeletedWithTheirNumbers) {
    const QString inserting = u"カレント行の上に１行挿入します。\r\n\r\nよろしいですか？"_q;
    desk.prompts.expect(inserting, Answer::Cancel).expect(inserting);
    EXPECT_TRUE(!goOut.insertRow(3) && goOut.insertRow(3));
    EXPECT_EQ(shown(3) + shown(4), u"2    3 14:00  銀行 ¥380"_q);
    desk.prompts.expect(u"カレント行を削除します。\r\n\r\nよろしいですか？"_q);
    EXPECT_TRUE(goOut.deleteRow(2));
    EXPECT_EQ(shown(1) + shown(3), u"   26/04/01(水)  合計 ¥3802 14:00  銀行 ¥380"_q);
    desk.prompts.expect(update);
    ASSERT_TRUE(goOut.update());
    EXPECT_EQ(stored(), u"2 2026/04/01 14:00:09  銀行 380"_q) << "the order keeps the gap";
    while (goOut.mayDelete()) {
        desk.prompts.expect(u"カレント行を削除します。"_q);
        goOut.deleteRow(2);
    }
    EXPECT_EQ(grid().Rows(), 2);
    desk.prompts.expect(inserting).expect(update);
    EXPECT_TRUE(goOut.insertRow(-1) && goOut.mayDelete() && goOut.update());
    EXPECT_EQ(stored(), u""_q);
}

TEST_F(GoOutTest, AnUpdateReplacesTheDayAndLearnsItsPlaces) {
    type(2, GoOutColumn::In, u"11:30"_q);
    type(5, GoOutColumn::Out, u"00:15"_q);
    type(5, GoOutColumn::Destination, u"空港"_q);
    type(7, GoOutColumn::Destination, u"空港"_q);
    client.HomeConnection.close(); // the disk has gone and come back
    desk.prompts.expect(update);
    ASSERT_TRUE(goOut.update());
    EXPECT_EQ(stored(), u"1 2026/04/01 10:05:31 2026/04/01 11:30:00 倉庫 1200 / 2 2026/04/01 14:00:09  銀行 380 / "
                        "4 2026/04/01 00:15:00  空港  / 6   空港 "_q)
        << "seconds that were not typed over stay";
    EXPECT_EQ(asked(u"SELECT F_DestCode FROM T04_Destination WHERE F_DestName = '空港' AND F_User = '1001'"_q), u"8"_q);
    EXPECT_EQ(grid().ColComboList(5).source(), u"|倉庫|空港|本社|銀行"_q);
    EXPECT_FALSE(goOut.sheet.changed);
    EXPECT_EQ(stored(u"2"_q), u"1  2026/04/02 09:00:00 倉庫 "_q) << "other days stay";
}

TEST_F(GoOutTest, WhatCantBeWrittenIsTold) {
    for (const QStringList& row : rowsOf(R"(
3 | 10時 | 外出時刻が不正です。外出時刻をhh:mm形式(半角)で入力して下さい。
4 | 9:00 | 帰社時刻が不正です。外出時刻をhh:mm形式(半角)で入力して下さい。
5 | 1234567890123456789012345678901 | 外出先が不正です。外出先は全角15文字(半角30文字)以内で入力して下さい。
6 | 円   | 金額が不正です。金額を入力して下さい。
)")) {
        goOut.ShowGoOut(u"1"_q, day);
        grid().edit(5, row[0].toInt(), row[1]);
        desk.prompts.expect(row[2]);
        EXPECT_FALSE(goOut.update());
    }
    goOut.ShowGoOut(u"1"_q, day);
    type(5, GoOutColumn::Destination, u"空港"_q);
    desk.prompts.expect(u"変更を破棄しますか？"_q, Answer::No)
        .expect(u"外出出張明細は変更されています。"_q, Answer::Yes);
    EXPECT_FALSE(goOut.mayClose());
    EXPECT_TRUE(goOut.mayLeaveDay() && goOut.mayClose());
    EXPECT_EQ(shown(5), u"4    "_q) << "given up at once";
}

// The key has gone to another person's day meanwhile, or to nobody's.
TEST_F(GoOutTest, ADayDeletedElsewhereIsToldAndNothingIsWritten) {
    for (const bool taken : {false, true}) {
        goOut.ShowGoOut(u"1"_q, day);
        type(5, GoOutColumn::Destination, u"空港"_q);
        connection.execute(u"DELETE * FROM T02_Kurbo WHERE (F_KurboID = 1)"_q);
        if (taken) {
            addCard(1, *makeDay(2026, 4, 1), u"09:00"_q, {}, {}, u"1002"_q);
            connection.execute(u"INSERT INTO T03_GoOut (F_KurboID, F_Order) VALUES (1, 1)"_q);
        }
        desk.prompts.expect(update)
            .expect(u"他のユーザーが削除した可能性があります。"_q)
            .expect(u"追加・変更を更新できませんでした。"_q);
        EXPECT_FALSE(goOut.update());
        EXPECT_TRUE(goOut.sheet.changed);
        EXPECT_EQ(count(u"T04_Destination"_q), 5);
        EXPECT_EQ(stored(), taken ? u"1    "_q : u""_q);
        if (!taken) addCard(1, *makeDay(2026, 4, 1), u"09:00"_q, {});
    }
}

} // namespace

// Two people who type the same new place at the same moment get a place each.
TEST_F(SampleCompany, TheSameNewPlaceIsTypedByManyAtOnce) {
    constexpr int people = 4;
    constexpr int rounds = 25;
    for (int i = 1; i <= people * rounds; ++i) addCard(i, *makeDay(2026, 4, 1), {}, {}, {}, u"P%1"_q.arg(i));
    connection.close();
    const auto person = [&](int number) {
        Connection own;
        own.open(path, databasePassword());
        for (int round = 0; round < rounds; ++round) {
            GoOutSheet sheet;
            sheet.key = number * rounds + round + 1;
            sheet.staff = u"P%1"_q.arg(sheet.key);
            sheet.dateText = day;
            drawGoOut(sheet, {{{}, {}, {}, u"09:00"_q, {}, u"新店"_q, u"100"_q}});
            ToldPrompts prompts;
            if (!guarded({prompts, desk.clock, desk.paths, desk.progress}, u"", u"", false, [&] {
                    writeOutings(own, sheet);
                    return true;
                }))
                return 1;
        }
        return 0;
    };
    std::vector<pid_t> running;
    for (int i = 0; i < people; ++i) running.push_back(startChild([&] { return person(i); }));
    for (const pid_t child : running) EXPECT_EQ(endOf(child), 0);
    connection.open(path, databasePassword());
    EXPECT_EQ(asked(u"SELECT Count(*) FROM T04_Destination INNER JOIN (T02_Kurbo INNER JOIN T03_GoOut ON "
                    "T02_Kurbo.F_KurboID = T03_GoOut.F_KurboID) ON T04_Destination.F_DestCode = "
                    "T03_GoOut.F_Destination WHERE T04_Destination.F_User = T02_Kurbo.F_User"_q)
                  .toInt(),
              people * rounds);
}

} // namespace kurbo::test
