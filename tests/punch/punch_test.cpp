#include "punch/punch_clock.h"
#include "punch/record.h"
#include "punch/state.h"

#include "base/system/code_page.h"
#include "base/system/files.h"
#include "support/collisions.h"
#include "support/table.h"

namespace kurbo::test {
namespace {

class PunchClock : public SampleCompany {
  protected:
    PunchResult press(Punch kind, Seconds enterDelay = {}, Seconds leaveGain = {}) {
        return punch(desk.context, connection, {u"S01"_q, u"1001"_q, {true, true, false, {}}, enterDelay, leaveGain},
                     kind);
    }
    // Rows by day, parted by commas: "mmdd enter leave", "-" for none, and the leave of the day. Today's id is 100.
    void makeRows(const QString& rows) {
        connection.execute(u"DELETE * FROM T02_Kurbo"_q);
        for (const QString& row : rows.split(u',', Qt::SkipEmptyParts)) {
            QStringList cells = row.trimmed().split(u' ') + QStringList{{}};
            for (QString& cell : cells)
                if (cell == u"-") cell.clear();
            const Day day = *parseDateId(u"2026"_q + cells[0]);
            addCard(100 - static_cast<int>((today - day).count()), day, cells[1], cells[2], cells[3]);
        }
    }
    // The rows in the same way; "+" where a time is another day's than the row's, and the second where it isn't 0.
    QString rows() {
        QStringList texts;
        Rows found = connection.rows(u"SELECT F_DateID, F_Enter, F_Leave FROM T02_Kurbo ORDER BY F_KurboID"_q);
        while (found.next()) {
            const auto time = [&](int i) {
                if (found.isNull(i)) return u"-"_q;
                const QString text = found.text(i).mid(11, found.text(i).endsWith(u":00"_q) ? 5 : 8);
                return dateId(dayOf(*found.moment(i))) == found.text(0) ? text : text + u'+';
            };
            texts.append(found.text(0).mid(4) + u' ' + time(1) + u' ' + time(2));
        }
        return texts.join(u", "_q);
    }
    QString outings() {
        QStringList texts;
        Rows found = connection.rows(u"SELECT F_KurboID, F_Order, F_Out, F_In FROM T03_GoOut ORDER BY 1, 2"_q);
        while (found.next()) {
            const auto time = [&](int i) { return found.isNull(i) ? u"-"_q : found.text(i).mid(11, 5); };
            texts.append(found.text(0) + u':' + found.text(1) + u' ' + time(2) + u' ' + time(3));
        }
        return texts.join(u", "_q);
    }
    // The state of the day's row, its id, and the open row before it, as "left 100 20260414/99".
    static QString told(const std::optional<StatusCode>& state) {
        if (!state) return u"failed"_q;
        const QString rows[] = {u"none"_q, u"blank"_q, u"entered"_q, u"left"_q};
        const QString open = state->open ? u" %1/%2"_q.arg(state->open->dateId).arg(state->open->id) : QString();
        return rows[static_cast<int>(state->today)] + u' ' + QString::number(state->cardId) + open;
    }
    QString state() { return told(TimeCardStatus(desk.context, connection, u"1001"_q, desk.clock.now())); }
    QString stateToGoOut() { return told(GetKurboID(desk.context, connection, u"1001"_q, desk.clock.now())); }

    const QString warningA = u"本日の出社時打刻を行っていない可能性があります。\r\n管理者に"_q;
    const QString warningB =
        u"2026/04/14の退社時打刻及び本日の出社時打刻を行っていない可能性があります。\r\n管理者に"_q;
    const QString question = u"2026/04/14の退社打刻がありません。\r\n2026/04/14からの継続勤務ですか？"_q;
};

} // namespace

TEST_F(PunchClock, ADayFromEnterToLeave) {
    EXPECT_EQ(press(Punch::Enter, 30s), PunchResult::Done);
    desk.prompts.expect(u"既に出社打刻済です。打刻できません。"_q);
    EXPECT_EQ(press(Punch::Enter), PunchResult::Refused);
    desk.clock.set(at(today, 17, 30));
    EXPECT_EQ(press(Punch::Leave, 0s, 60s), PunchResult::Done);
    desk.prompts.expect(u"既に退社打刻済です。打刻できません。"_q).expect(u"既に退社打刻済です。打刻できません。"_q);
    EXPECT_EQ(press(Punch::Leave), PunchResult::Refused);
    EXPECT_EQ(press(Punch::Enter), PunchResult::Refused);
    EXPECT_EQ(rows(), u"0415 08:59:30 17:31"_q);
}

// The rows before, the punch at nine, what is asked or told, and the rows after: A and B are the warnings, Y and N the
// answers to the question whether yesterday's shift goes on.
TEST_F(PunchClock, WhatStandsDecidesTheRowAndTheWords) {
    const QMap<QString, Punch> kinds{{u"enter"_q, Punch::Enter}, {u"leave"_q, Punch::Leave}, {u"out"_q, Punch::Out}};
    for (const QStringList& row : rowsOf(R"(
0414 09:00 -             | enter |    | 0414 09:00 -, 0415 09:00 -
0414 09:00 -, 0415 - - 1 | enter |    | 0414 09:00 -, 0415 09:00 -
0414 09:00 17:00         | leave | A  | 0414 09:00 17:00, 0415 - 09:00
0415 - - 1               | leave | A  | 0415 - 09:00
0414 22:00 -             | leave | Y  | 0414 22:00 09:00+
0414 22:00 -             | leave | NB | 0414 22:00 -, 0415 - 09:00
0414 22:00 -, 0415 - -   | leave | Y  | 0414 22:00 09:00+, 0415 - -
0414 22:00 -, 0415 - -   | leave | NB | 0414 22:00 -, 0415 - 09:00
                         | out   | A  | 0415 - -
0414 22:00 -             | out   | Y  | 0414 22:00 -
0414 22:00 -             | out   | NB | 0414 22:00 -, 0415 - -
)")) {
        SCOPED_TRACE(row.join(u'|').toStdString());
        makeRows(row[0]);
        for (const QChar word : row[2]) {
            if (word == u'A' || word == u'B')
                desk.prompts.expect(word == u'A' ? warningA : warningB);
            else
                desk.prompts.expect(question, word == u'Y' ? Answer::Yes : Answer::No);
        }
        EXPECT_EQ(press(kinds[row[1]]), PunchResult::Done);
        EXPECT_EQ(rows(), row[3]);
        EXPECT_EQ(outings().isEmpty(), row[1] != u"out");
        EXPECT_TRUE(!row[2].startsWith(u'Y') || desk.prompts.last().preset == Answer::No);
    }
}

TEST_F(PunchClock, AdjustedTimesDecideTheDay) {
    desk.clock.set(at(today, 0, 0, 10));
    EXPECT_EQ(press(Punch::Enter, 30s), PunchResult::Done);
    EXPECT_EQ(rows(), u"0414 23:59:40 -"_q);
    desk.clock.set(at(today, 23, 50));
    desk.prompts.expect(u"2026/04/14からの継続勤務ですか？"_q, Answer::No).expect(warningB);
    EXPECT_EQ(press(Punch::Leave, 0s, 999s), PunchResult::Done);
    EXPECT_EQ(rows(), u"0414 23:59:40 -, 0416 - 00:06:39"_q);
    // The row of the adjusted day is asked for, the row of the clock's day is written.
    makeRows(u"0414 - -"_q);
    desk.clock.set(at(today, 0, 0, 10));
    desk.prompts.expect(u"エラー番号："_q);
    EXPECT_EQ(press(Punch::Enter, 30s), PunchResult::Stopped);
}

TEST_F(PunchClock, NoCalendarNoPunch) {
    desk.clock.set(at(*makeDay(2027, 1, 4), 9, 0));
    for (const Punch kind : {Punch::Enter, Punch::Leave, Punch::Out, Punch::In}) {
        desk.prompts.expect(u"カレンダーが作成されていません。\r\n管理者にカレンダーの作成を依頼して下さい。"_q);
        EXPECT_EQ(press(kind), PunchResult::Stopped);
    }
    EXPECT_EQ(rows(), QString());
}

TEST_F(PunchClock, OutingsHangOnTheDaysRow) {
    EXPECT_EQ(press(Punch::Enter), PunchResult::Done);
    int hour = 10;
    for (const Punch kind : {Punch::Out, Punch::In, Punch::In, Punch::Out, Punch::Out, Punch::In}) {
        desk.clock.set(at(today, hour++, 0));
        EXPECT_EQ(press(kind, 30s, 60s), PunchResult::Done);
    }
    EXPECT_EQ(outings(), u"1:1 10:00 11:00, 1:2 - 12:00, 1:3 13:00 -, 1:4 14:00 15:00"_q);
}

// The rows, and where they leave the person for the time card and for an outing.
TEST_F(PunchClock, TheStateIsReadFromTheRows) {
    addCard(1, today + std::chrono::days(1), u"09:00"_q, QString());
    addCard(2, today, u"09:00"_q, QString(), {}, u"1002"_q);
    EXPECT_EQ(state(), u"none 0"_q) << "later days and other people aren't seen";
    for (const QStringList& row : rowsOf(R"(
                               | none 0                  | none 0
0414 09:00 17:00               | none 0                  | none 0
0414 09:00 -                   | none 0 20260414/99      | none 0 20260414/99
0414 - - 0                     | none 0                  | none 0 20260414/99
0414 09:00 - 0                 | none 0                  | none 0 20260414/99
0414 09:00 - 1                 | none 0 20260414/99      | none 0 20260414/99
0415 - -                       | blank 100               | blank 100
0415 - -, 0414 09:00 -         | blank 100 20260414/99   | blank 100 20260414/99
0415 - - 0, 0414 09:00 -       | blank 100 20260414/99   | blank 100 20260414/99
0415 09:00 -, 0414 09:00 -     | entered 100 20260414/99 | entered 100 20260414/99
0415 09:00 17:00, 0414 09:00 - | left 100 20260414/99    | left 100 20260414/99
0415 - 17:00                   | left 100                | left 100
)")) {
        makeRows(row[0]);
        EXPECT_EQ(state(), row[1]) << row[0];
        EXPECT_EQ(stateToGoOut(), row[2]) << row[0];
    }
    for (const QString& field : {u"F_Special"_q, u"F_Compens"_q}) {
        makeRows(u"0414 09:00 -"_q);
        connection.execute(u"UPDATE T02_Kurbo SET "_q + field + u" = '0'"_q);
        EXPECT_EQ(state(), u"none 0"_q) << field << " finishes a day too";
    }
    connection.close();
    desk.prompts.expect(u"エラー番号："_q).expect(u"エラー番号："_q);
    EXPECT_EQ(state(), u"failed"_q);
    EXPECT_EQ(stateToGoOut(), u"failed"_q);
}

TEST_F(Collisions, TheSixthFailureIsReportedWithTheEnginesText) {
    takeIds(6);
    desk.prompts.expect(u"エラー番号：3022\r\nインデックス、主キー、"_q);
    EXPECT_FALSE(RecordEnter(desk.context, connection, u"1001"_q, desk.clock.now(), true, false));
    EXPECT_EQ(attempts, 6);
    EXPECT_EQ(desk.prompts.last().title, u"Kurbo.Store－RecordEnter"_q);
    EXPECT_TRUE(fromCodePage(readFile(desk.file(u"Error.log"_q))).contains(u"\"RecordEnter\",\"Kurbo.Store\",3022,"_q));
    EXPECT_EQ(count(u"T02_Kurbo"_q), 0) << "nothing half written";
    EXPECT_TRUE(RecordLeave(desk.context, connection, u"1001"_q, desk.clock.now(), QString()));
}

TEST_F(Collisions, OtherFaultsAreNotTriedAgain) {
    desk.prompts.expect(u"エラー番号："_q).expect(u"エラー番号："_q).expect(u"エラー番号："_q);
    EXPECT_FALSE(RecordLeave(desk.context, connection, u"1001"_q, desk.clock.now(), u"20260415"_q)) << "no such row";
    EXPECT_FALSE(RecordGoOut(desk.context, connection, 77, desk.clock.now())) << "no such card row";
    EXPECT_EQ(count(u"T03_GoOut"_q), 0);
    connection.engine("ALTER TABLE T02_Kurbo RENAME TO Away");
    EXPECT_FALSE(RecordEnter(desk.context, connection, u"1001"_q, desk.clock.now(), true, false));
    EXPECT_EQ(desk.prompts.last().title, u"Kurbo.Store－GenerateKurboID"_q) << "without an id it is the id's own";
}

} // namespace kurbo::test
