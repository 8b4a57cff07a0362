#include "punch/state.h"

#include "support/sample_company.h"

namespace kurbo::test {
namespace {

// One row a day, counted back from today: "enter leave leaves", "-" for none; today's has the id 100, yesterday's 99.
struct Case {
    QStringList rows; // today, yesterday, ...; an empty one is no row
    DayRow today;
    std::int64_t openToLeave; // ids of the open rows, 0 for none
    std::int64_t openToGoOut;
};

class State : public SampleCompany {
  protected:
    void makeRows(const QStringList& rows) {
        connection.execute(u"DELETE * FROM T02_Kurbo"_q);
        int id = 100;
        for (qsizetype i = 0; i < rows.size(); ++i, --id) {
            const QStringList cells = rows[i].split(u' ');
            if (cells.size() < 3) continue;
            addCard(id, today - std::chrono::days(i), cells[0] == u"-" ? QString() : cells[0],
                    cells[1] == u"-" ? QString() : cells[1], cells[2] == u"-" ? QString() : cells[2]);
        }
    }
};

} // namespace

TEST_F(State, IsReadFromTheRows) {
    const QString none;
    const QString done = u"09:00 17:00 -"_q;
    const QString open = u"09:00 - -"_q;
    const QString blank = u"- - -"_q;
    const auto openIn = [](const std::optional<PunchState>& state) {
        return state && state->open ? state->open->id : 0;
    };
    for (const auto& [rows, row, openToLeave, openToGoOut] :
         {Case{{}, DayRow::None, 0, 0}, Case{{none, done}, DayRow::None, 0, 0},
          Case{{none, open}, DayRow::None, 99, 99}, Case{{none, none, open}, DayRow::None, 98, 98},
          Case{{none, u"- - 0"_q}, DayRow::None, 0, 99}, Case{{none, u"09:00 - 0"_q}, DayRow::None, 0, 99},
          Case{{none, u"09:00 - 1"_q}, DayRow::None, 99, 99}, Case{{none, u"09:00 12:00 2"_q}, DayRow::None, 0, 0},
          Case{{blank}, DayRow::NotEntered, 0, 0}, Case{{blank, done}, DayRow::NotEntered, 0, 0},
          Case{{blank, open}, DayRow::NotEntered, 99, 99}, Case{{u"- - 0"_q, open}, DayRow::NotEntered, 99, 99},
          Case{{open, open}, DayRow::Entered, 99, 99}, Case{{done, open}, DayRow::Left, 99, 99},
          Case{{u"- 17:00 -"_q}, DayRow::Left, 0, 0}}) {
        makeRows(rows);
        const auto state = TimeCardStatus(desk.context, connection, u"1001"_q, desk.clock.now());
        ASSERT_TRUE(state);
        EXPECT_EQ(state->today, row) << rows.join(u"; "_q);
        EXPECT_EQ(state->cardId, row == DayRow::None ? 0 : 100);
        EXPECT_EQ(openIn(state), openToLeave) << rows.join(u"; "_q);
        EXPECT_EQ(openIn(GetKurboID(desk.context, connection, u"1001"_q, desk.clock.now())), openToGoOut);
    }
}

TEST_F(State, DoesNotSeeLaterDaysOrOtherPeople) {
    addCard(1, today + std::chrono::days(1), u"09:00"_q, QString());
    addCard(2, today, u"09:00"_q, QString(), {}, u"1002"_q);
    const auto state = TimeCardStatus(desk.context, connection, u"1001"_q, desk.clock.now());
    EXPECT_TRUE(state && state->today == DayRow::None && !state->open);
}

TEST_F(State, OtherLeavesFinishADayToo) {
    addCard(1, today - std::chrono::days(1), u"09:00"_q, QString());
    for (const QString& field : {u"F_Special"_q, u"F_Compens"_q}) {
        connection.execute(u"UPDATE T02_Kurbo SET F_Special = Null, F_Compens = Null"_q);
        connection.execute(u"UPDATE T02_Kurbo SET "_q + field + u" = '0'"_q);
        const auto state = TimeCardStatus(desk.context, connection, u"1001"_q, desk.clock.now());
        EXPECT_TRUE(state && !state->open) << field;
    }
}

TEST_F(State, AFailureIsReported) {
    connection.close();
    desk.prompts.expect(u"エラー番号："_q).expect(u"エラー番号："_q);
    EXPECT_FALSE(TimeCardStatus(desk.context, connection, u"1001"_q, desk.clock.now()));
    EXPECT_FALSE(GetKurboID(desk.context, connection, u"1001"_q, desk.clock.now()));
    EXPECT_EQ(desk.prompts.last().title, u"Kurbo.Store－GetKurboID"_q);
}

} // namespace kurbo::test
