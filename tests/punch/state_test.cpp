#include "punch/state.h"

#include "support/sample_company.h"

namespace kurbo::test {
namespace {

// One row a day, counted back from today: "enter leave leaves", "-" for none.
struct Case {
    QStringList rows; // today, yesterday, ...; an empty one is no row
    QString timeCard;
    QString kurboId;
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
    for (const auto& [rows, timeCard, kurboId] :
         {Case{{}, u"NR"_q, u"NR"_q}, Case{{none, done}, u"NE"_q, u"NE"_q},
          Case{{none, open}, u"ND2026/04/14"_q, u"ND2026/04/1499"_q},
          Case{{none, none, open}, u"ND2026/04/13"_q, u"ND2026/04/1398"_q},
          Case{{none, u"- - 0"_q}, u"NE"_q, u"ND2026/04/1499"_q},
          Case{{none, u"09:00 - 0"_q}, u"NE"_q, u"ND2026/04/1499"_q},
          Case{{none, u"09:00 - 1"_q}, u"ND2026/04/14"_q, u"ND2026/04/1499"_q},
          Case{{none, u"09:00 12:00 2"_q}, u"NE"_q, u"NE"_q}, Case{{blank}, u"EE"_q, u"ID100"_q},
          Case{{blank, done}, u"EE"_q, u"ID100"_q}, Case{{blank, open}, u"RD2026/04/14"_q, u"ID100"_q},
          Case{{u"- - 0"_q, open}, u"RD2026/04/14"_q, u"ID100"_q}, Case{{open, open}, u"AE"_q, u"ID100"_q},
          Case{{done, open}, u"AL"_q, u"ID100"_q}, Case{{u"- 17:00 -"_q}, u"AL"_q, u"ID100"_q}}) {
        makeRows(rows);
        EXPECT_EQ(TimeCardStatus(desk.context, connection, u"1001"_q, desk.clock.now()).text, timeCard)
            << rows.join(u"; "_q);
        EXPECT_EQ(GetKurboID(desk.context, connection, u"1001"_q, desk.clock.now()).text, kurboId);
    }
}

TEST_F(State, DoesNotSeeLaterDaysOrOtherPeople) {
    addCard(1, today + std::chrono::days(1), u"09:00"_q, QString());
    addCard(2, today, u"09:00"_q, QString(), {}, u"1002"_q);
    EXPECT_EQ(TimeCardStatus(desk.context, connection, u"1001"_q, desk.clock.now()).text, u"NR"_q);
}

TEST_F(State, OtherLeavesFinishADayToo) {
    addCard(1, today - std::chrono::days(1), u"09:00"_q, QString());
    for (const QString& field : {u"F_Special"_q, u"F_Compens"_q}) {
        connection.execute(u"UPDATE T02_Kurbo SET F_Special = Null, F_Compens = Null"_q);
        connection.execute(u"UPDATE T02_Kurbo SET "_q + field + u" = '0'"_q);
        EXPECT_EQ(TimeCardStatus(desk.context, connection, u"1001"_q, desk.clock.now()).text, u"NE"_q) << field;
    }
}

TEST_F(State, PartsOfTheText) {
    const StatusCode code{u"ND2004/02/19123"_q};
    EXPECT_TRUE(code.is(u"ND"));
    EXPECT_EQ(code.date(), u"2004/02/19"_q);
    EXPECT_EQ(code.dateId(), u"20040219"_q);
    EXPECT_EQ(code.cardId(), 123);
    EXPECT_EQ(StatusCode{u"ID45"_q}.cardId(), 45);
}

TEST_F(State, AFailureIsAnError) {
    connection.close();
    desk.prompts.expect(u"エラー番号："_q).expect(u"エラー番号："_q);
    EXPECT_TRUE(TimeCardStatus(desk.context, connection, u"1001"_q, desk.clock.now()).failed());
    EXPECT_TRUE(GetKurboID(desk.context, connection, u"1001"_q, desk.clock.now()).failed());
    EXPECT_EQ(desk.prompts.last().title, u"Kurbo.Store－GetKurboID"_q);
}

} // namespace kurbo::test
