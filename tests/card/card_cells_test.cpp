#include "card/card_cells.h"

#include "card/demo_site.h"
#include "support/sample_company.h"

namespace kurbo::test {
namespace {

class CardCells : public SampleCompany {
  protected:
    CardCells() {
        connection.execute(
            u"UPDATE M01_CorpInfo SET F_RoundEnter = 1, F_RoundLeave = 0, F_CountUnit = 1, F_Over = True, "
            "F_Absent = True"_q);
        connection.execute(u"UPDATE M03_WeekdayStyle SET F_StartOver0 = '18:00', F_EndOver0 = '22:00'"_q);
        connection.execute(u"UPDATE T01_Calendar SET F_Type = '0' WHERE F_DateID = '20260329'"_q);
    }
    std::optional<Card> card(Period span) { return cardOf(desk.context, connection, u"1001"_q, span); }
    const Period march{*makeDay(2026, 3, 1), *makeDay(2026, 3, 31)};
};

} // namespace

TEST_F(CardCells, TextsOfDays) {
    addCard(4, *makeDay(2026, 2, 28), u"20:00"_q, QString());
    connection.execute(u"UPDATE T02_Kurbo SET F_Leave = #2026/03/01 11:00#"_q);
    addCard(5, *makeDay(2026, 3, 2), u"08:52"_q, u"19:31"_q);
    addCard(6, *makeDay(2026, 3, 3), u"22:15"_q, QString(), u"1"_q);
    connection.execute(
        u"UPDATE T02_Kurbo SET F_Leave = #2026/03/04 01:05:30#, F_Plan = '夜間作業' WHERE F_KurboID = 6"_q);
    const auto made = card(march);
    ASSERT_TRUE(made);
    EXPECT_EQ(made->days[0][4] + made->days[0][21], u"2:00"_q) << "a shift goes on";
    EXPECT_EQ(made->days[1].join(u'|'), u"2|26/03/02(月)|||08:52|19:31||1:30||||||||||||||8:30|2026/03/02 08:52:00|"
                                        "2026/03/02 19:31:00|5"_q);
    EXPECT_EQ(made->days[2].mid(0, 6).join(u'|'), u"3|26/03/03(火)||夜間作業|22:15|(03/04)01:05"_q);
    EXPECT_EQ(made->days[2][15] + made->days[2][23], u"午前2026/03/04 01:05:30"_q);
    EXPECT_EQ(made->days[28][2], u"0"_q) << "the holiday's code";
    EXPECT_EQ(made->days[4][18] + made->days[4][14], u"18:30"_q) << "an absence";
    EXPECT_EQ(made->headings[6], u"法内残業"_q);
    EXPECT_TRUE(made->hidden[6] && made->hidden[24] && !made->hidden[7] && !made->hidden[21]);
}

TEST_F(CardCells, SumsAndTheSavedMonth) {
    addCard(5, *makeDay(2026, 3, 2), u"08:52"_q, u"19:31"_q);
    addCard(6, *makeDay(2026, 3, 3), QString(), QString(), u"0"_q);
    const auto unsaved = card(march);
    ASSERT_TRUE(unsaved);
    EXPECT_TRUE(unsaved->wholePeriod && !unsaved->saved);
    EXPECT_EQ(unsaved->summary[0].join(u'|'), u"|普通勤務||(出勤日数)|(実働時間)|(有給残数)|||||||||||||||||||"_q);
    EXPECT_EQ(unsaved->summary[1].join(u'|'),
              u"|合計(実働)||1|8:30|19.0|0:00|1:30|0:00|0:00|0:00|0:00|0:00|0:00|238:00|1.0|0.0|0.0|28|0|0||||"_q);
    EXPECT_EQ(unsaved->summary[2].join(u'|'), u"|合計(最終)|||||||||||||||||||||||"_q);

    connection.execute(
        u"INSERT INTO T05_Approved (F_Staff, F_Year, F_Month, F_WorkDay, F_Work, F_PaidTotal, F_Over, F_Paid, "
        "F_LateEnter, F_SuperiorApproval) VALUES ('1001', '2026', '03', 20, 9000, 18.5, 61, 1.5, 2, True)"_q);
    const auto saved = card(march);
    ASSERT_TRUE(saved);
    EXPECT_TRUE(saved->saved && saved->superiorApproval && !saved->personalApproval);
    EXPECT_EQ(saved->summary[2].join(u'|'), u"|合計(最終)||20|150:00|18.5||1:01||||||||1.5||||2|||||"_q);
    const auto shorter = card({march.from, march.to - std::chrono::days(1)});
    ASSERT_TRUE(shorter);
    EXPECT_FALSE(shorter->wholePeriod || shorter->saved);
    EXPECT_FALSE(card({*makeDay(2026, 4, 1), *makeDay(2026, 4, 30)})->wholePeriod) << "it has not ended";
}

TEST_F(CardCells, MonthRoundingAndDecimalHours) {
    addCard(5, *makeDay(2026, 3, 2), u"09:10"_q, u"17:25"_q);
    connection.execute(u"UPDATE M01_CorpInfo SET F_CountUnit = 0, F_RoundUnit = 15"_q);
    EXPECT_EQ(card(march)->days[1][21], u"8.0"_q);
    connection.execute(u"UPDATE M01_CorpInfo SET F_RoundMethod = 1, F_RoundHour = 1"_q);
    const auto rounded = card(march);
    EXPECT_EQ(rounded->days[1][21], u"8:15"_q);
    EXPECT_EQ(rounded->summary[1][4], u"8:15"_q);
    EXPECT_EQ(rounded->summary[1][14], u"246:45"_q);
}

TEST_F(CardCells, ARefusedRowIsReportedAndTheRestLives) {
    addCard(5, *makeDay(2026, 3, 2), u"19:00"_q, u"08:00"_q);
    desk.prompts.expect(u"エラー番号：-2147220989\r\n退社時刻が出社時刻より前に設定されています。"_q);
    EXPECT_FALSE(card(march));
    EXPECT_EQ(desk.prompts.last().title, u"clsWorkTime－ShowKurbo"_q);
    EXPECT_TRUE(card({*makeDay(2026, 3, 3), *makeDay(2026, 3, 31)}));
}

} // namespace kurbo::test
