#include "punch/record.h"

#include "base/system/code_page.h"
#include "base/system/files.h"
#include "support/collisions.h"

namespace kurbo::test {

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

TEST_F(Collisions, WithoutAnIdTheFailureIsTheIdsOwn) {
    connection.engine("ALTER TABLE T02_Kurbo RENAME TO Away");
    desk.prompts.expect(u"エラー番号："_q);
    EXPECT_FALSE(RecordEnter(desk.context, connection, u"1001"_q, desk.clock.now(), true, false));
    EXPECT_EQ(desk.prompts.last().title, u"Kurbo.Store－GenerateKurboID"_q);
}

TEST_F(Collisions, OtherFaultsAreNotTriedAgain) {
    desk.prompts.expect(u"エラー番号："_q).expect(u"エラー番号："_q);
    EXPECT_FALSE(RecordLeave(desk.context, connection, u"1001"_q, desk.clock.now(), u"20260415"_q)) << "no such row";
    EXPECT_EQ(desk.prompts.last().title, u"Kurbo.Store－RecordLeave"_q);
    EXPECT_FALSE(RecordGoOut(desk.context, connection, 77, desk.clock.now())) << "no such card row";
    EXPECT_EQ(count(u"T03_GoOut"_q), 0);
}

TEST_F(Collisions, AnOutingWithoutAnOrderKeepsTheNextWithoutToo) {
    addCard(1, today, u"09:00"_q, QString());
    connection.execute(u"INSERT INTO T03_GoOut (F_KurboID, F_Out, F_In) VALUES (1, ?, ?)"_q,
                       {desk.clock.now(), desk.clock.now()});
    EXPECT_TRUE(RecordGoOut(desk.context, connection, 1, desk.clock.now()));
    EXPECT_EQ(asked(u"SELECT Count(*) FROM T03_GoOut WHERE F_Order Is Null"_q), u"2"_q);
}

} // namespace kurbo::test
