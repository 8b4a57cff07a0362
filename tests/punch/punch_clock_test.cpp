#include "punch/punch_clock.h"

#include "support/sample_company.h"

namespace kurbo::test {
namespace {

class PunchClock : public SampleCompany {
  protected:
    PunchResult press(Punch kind, Seconds enterDelay = {}, Seconds leaveGain = {}) {
        return punch(desk.context, connection, {u"S01"_q, u"1001"_q, {true, true, false, {}}, enterDelay, leaveGain},
                     kind);
    }
    void noRowToday(const QString& enter, const QString& leave) { addCard(1, yesterday, enter, leave); }
    // Day, enter and leave of every row, "-" for Null.
    QString rows() {
        QString text;
        Rows found = connection.rows(u"SELECT F_DateID, F_Enter, F_Leave FROM T02_Kurbo ORDER BY F_KurboID"_q);
        while (found.next()) {
            const auto time = [&](int i) { return found.isNull(i) ? u"-"_q : found.text(i).mid(5, 14); };
            text += found.text(0).mid(4) + u' ' + time(1) + u' ' + time(2) + u'\n';
        }
        return text;
    }
    QString outings() {
        QString text;
        Rows found =
            connection.rows(u"SELECT F_KurboID, F_Order, F_Out, F_In FROM T03_GoOut ORDER BY F_KurboID, F_Order"_q);
        while (found.next())
            text += found.text(0) + u':' + found.text(1) + u' ' +
                    (found.isNull(2) ? u"-"_q : found.text(2).mid(11, 5)) + u' ' +
                    (found.isNull(3) ? u"-"_q : found.text(3).mid(11, 5)) + u'\n';
        return text;
    }

    Day yesterday = today - std::chrono::days(1);
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
    EXPECT_EQ(rows(), u"0415 04-15 08:59:30 04-15 17:31:00\n"_q);
    desk.prompts.expect(u"既に退社打刻済です。打刻できません。"_q).expect(u"既に退社打刻済です。打刻できません。"_q);
    EXPECT_EQ(press(Punch::Leave), PunchResult::Refused);
    EXPECT_EQ(press(Punch::Enter), PunchResult::Refused);
    EXPECT_EQ(rows(), u"0415 04-15 08:59:30 04-15 17:31:00\n"_q);
}

TEST_F(PunchClock, EnterOpensTheDayWithoutAWordOfAnOpenOne) {
    noRowToday(u"09:00"_q, QString());
    EXPECT_EQ(press(Punch::Enter), PunchResult::Done);
    EXPECT_EQ(rows(), u"0414 04-14 09:00:00 -\n0415 04-15 09:00:00 -\n"_q);
}

TEST_F(PunchClock, EnterFillsARowThatWasMadeBefore) {
    noRowToday(u"09:00"_q, QString());
    addCard(2, today, QString(), QString(), u"1"_q);
    EXPECT_EQ(press(Punch::Enter), PunchResult::Done);
    EXPECT_EQ(rows(), u"0414 04-14 09:00:00 -\n0415 04-15 09:00:00 -\n"_q);
}

TEST_F(PunchClock, LeaveWithoutEnterWarns) {
    noRowToday(u"09:00"_q, u"17:00"_q);
    desk.prompts.expect(warningA);
    EXPECT_EQ(press(Punch::Leave), PunchResult::Done);
    EXPECT_EQ(rows(), u"0414 04-14 09:00:00 04-14 17:00:00\n0415 - 04-15 09:00:00\n"_q);
    EXPECT_EQ(desk.prompts.last().icon, Icon::Exclamation);
}

TEST_F(PunchClock, LeaveIntoARowWithoutEnterWarns) {
    addCard(1, today, QString(), QString(), u"1"_q);
    desk.prompts.expect(warningA);
    EXPECT_EQ(press(Punch::Leave), PunchResult::Done);
    EXPECT_EQ(rows(), u"0415 - 04-15 09:00:00\n"_q);
}

TEST_F(PunchClock, AShiftOverMidnightGoesOnIfThePersonSaysSo) {
    for (const bool rowToday : {false, true}) {
        for (const Answer answer : {Answer::Yes, Answer::No}) {
            connection.execute(u"DELETE * FROM T02_Kurbo"_q);
            noRowToday(u"22:00"_q, QString());
            if (rowToday) addCard(2, today, QString(), QString());
            desk.prompts.expect(question, answer);
            if (answer == Answer::No) desk.prompts.expect(warningB);
            EXPECT_EQ(press(Punch::Leave), PunchResult::Done);
            const QString old =
                answer == Answer::Yes ? u"0414 04-14 22:00:00 04-15 09:00:00\n"_q : u"0414 04-14 22:00:00 -\n"_q;
            const QString fresh =
                answer == Answer::No ? u"0415 - 04-15 09:00:00\n"_q : (rowToday ? u"0415 - -\n"_q : QString());
            EXPECT_EQ(rows(), old + fresh);
        }
    }
    const Message& asked = desk.prompts.seen().first();
    EXPECT_EQ(asked.buttons, Buttons::YesNo);
    EXPECT_EQ(asked.preset, Answer::No);
}

TEST_F(PunchClock, AdjustedTimesDecideTheDay) {
    desk.clock.set(at(today, 0, 0, 10));
    EXPECT_EQ(press(Punch::Enter, 30s), PunchResult::Done);
    EXPECT_EQ(rows(), u"0414 04-14 23:59:40 -\n"_q);
    desk.clock.set(at(today, 23, 50));
    desk.prompts.expect(u"2026/04/14からの継続勤務ですか？"_q, Answer::No).expect(warningB);
    EXPECT_EQ(press(Punch::Leave, 0s, 999s), PunchResult::Done);
    EXPECT_EQ(rows(), u"0414 04-14 23:59:40 -\n0416 - 04-16 00:06:39\n"_q);
}

// The row of the adjusted day is asked for, the row of the clock's day is written.
TEST_F(PunchClock, AroundMidnightTheMissingRowIsAFault) {
    addCard(1, yesterday, QString(), QString());
    desk.clock.set(at(today, 0, 0, 10));
    desk.prompts.expect(u"エラー番号："_q);
    EXPECT_EQ(press(Punch::Enter, 30s), PunchResult::Stopped);
    EXPECT_EQ(desk.prompts.last().title, u"Kurbo.Store－RecordEnter"_q);
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
    for (const auto& [hour, kind] : {std::pair{10, Punch::Out},
                                     {11, Punch::In},
                                     {12, Punch::In},
                                     {13, Punch::Out},
                                     {14, Punch::Out},
                                     {15, Punch::In}}) {
        desk.clock.set(at(today, hour, 0));
        EXPECT_EQ(press(kind, 30s, 60s), PunchResult::Done);
    }
    EXPECT_EQ(outings(), u"1:1 10:00 11:00\n1:2 - 12:00\n1:3 13:00 -\n1:4 14:00 15:00\n"_q);
}

TEST_F(PunchClock, AnOutingMayBeTheFirstPunch) {
    desk.prompts.expect(warningA);
    EXPECT_EQ(press(Punch::Out), PunchResult::Done);
    EXPECT_EQ(rows(), u"0415 - -\n"_q);
    EXPECT_EQ(outings(), u"1:1 09:00 -\n"_q);
    EXPECT_EQ(press(Punch::Enter), PunchResult::Done);
    EXPECT_EQ(rows(), u"0415 04-15 09:00:00 -\n"_q);
}

TEST_F(PunchClock, AnOutingAfterAForgottenLeaveAsks) {
    noRowToday(u"22:00"_q, QString());
    desk.prompts.expect(question, Answer::Yes);
    EXPECT_EQ(press(Punch::Out), PunchResult::Done);
    EXPECT_EQ(outings(), u"1:1 09:00 -\n"_q);
    desk.prompts.expect(question, Answer::No).expect(warningB);
    EXPECT_EQ(press(Punch::In), PunchResult::Done);
    EXPECT_EQ(outings(), u"1:1 09:00 -\n2:1 - 09:00\n"_q);
}

} // namespace kurbo::test
