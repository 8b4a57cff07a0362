#include "store/access.h"
#include "store/readers.h"
#include "store/record_set.h"
#include "support/sample_company.h"

namespace kurbo::test {
namespace {

class Records : public SampleCompany {
  protected:
    Records() {
        for (int day = 1; day <= 5; ++day)
            addCard(day, *makeDay(2026, 4, day), u"08:55"_q, day < 5 ? u"17:40"_q : u""_q);
    }
    const QString cards = u"SELECT * FROM T02_Kurbo WHERE (F_User = '1001') ORDER BY F_DateID;"_q;
};

} // namespace

TEST_F(Records, MoveAndFilter) {
    RecordSet set(connection, cards);
    EXPECT_EQ(set.size(), 5);
    EXPECT_EQ(set.value(u"f_kurboid"_q), Value(1));
    EXPECT_TRUE(set.moveLast() && set.value(u"F_Leave"_q).isNull());
    EXPECT_TRUE(set.filter(u"F_DateID = '20260403'"_q));
    EXPECT_EQ(set.value(u"F_KurboID"_q), Value(3));
    EXPECT_TRUE(set.filter(u"F_DateID = 20260402"_q)) << "a number is found in a text field";
    EXPECT_TRUE(set.filter(u"F_Enter >= #2026/04/04 08:55# AND F_KurboID <> 4"_q));
    EXPECT_EQ(set.value(u"F_KurboID"_q), Value(5));
    EXPECT_FALSE(set.filter(u"F_DateID = ?"_q, {u"20260499"_q}));
    EXPECT_THROW((void)set.value(u"F_KurboID"_q), Fault);
    EXPECT_FALSE(set.filter(u"F_Leave > #2026/04/04 17:40#"_q)) << "Null meets no condition";
    for (const QString& bad : {u"F_KurboID"_q, u"F_KurboID = 1 OR F_KurboID = 2"_q})
        EXPECT_THROW(set.filter(bad), Fault);
}

TEST_F(Records, BatchIsSentWholeOrNotAtAll) {
    RecordSet set(connection, cards);
    set.set(u"F_Plan"_q, u"It's \"出張\" 100%"_q);
    set.moveLast();
    set.set(u"F_Leave"_q, at(*makeDay(2026, 4, 6), 1, 30));
    set.addNew();
    set.set(u"F_KurboID"_q, 3);
    set.set(u"F_DateID"_q, u"20260410"_q);
    set.set(u"F_User"_q, u"1001"_q);
    EXPECT_EQ(refusalOf([&] { set.updateBatch(); }), u"3022"_q) << "the key is taken";
    EXPECT_EQ(asked(u"SELECT F_Plan FROM T02_Kurbo WHERE F_KurboID = 1"_q), u"-"_q);
    set.set(u"F_KurboID"_q, 6);
    set.updateBatch();
    EXPECT_EQ(asked(u"SELECT F_Plan FROM T02_Kurbo WHERE F_KurboID = 1"_q), u"It's \"出張\" 100%"_q);
    EXPECT_EQ(asked(u"SELECT F_Leave FROM T02_Kurbo WHERE F_KurboID = 5"_q), u"2026/04/06 01:30:00"_q);
    set.set(u"F_Plan"_q, Value());
    set.updateBatch();
    EXPECT_EQ(count(u"T02_Kurbo"_q), 6) << "an added row is added once";
}

TEST_F(Records, ARowThatAnotherClientDeletedIsNotWritten) {
    insert("T05_Approved", "Staff, Year, Month, Work", u"'1001', '2026', '03', 100"_q);
    RecordSet mine(connection, u"SELECT F_Staff, F_Year, F_Month, F_Work FROM T05_Approved;"_q);
    connection.execute(u"DELETE * FROM T05_Approved;"_q);
    insert("T05_Approved", "Staff, Year, Month, Work",
           u"'1002', '2026', '03', 100"_q); // takes the deleted row's number
    mine.set(u"F_Work"_q, 999);
    EXPECT_THROW(mine.updateBatch(), Fault);
    EXPECT_EQ(asked(u"SELECT F_Work FROM T05_Approved"_q), u"100"_q);
}

namespace {

using Readers = SampleCompany;

TEST_F(Readers, DbPathOfASection) {
    connection.execute(u"UPDATE C02_Section SET F_DB = '/srv/Other.mdb' WHERE F_SectionCode = 'S01'"_q);
    EXPECT_EQ(GetDbPath(desk.context, connection, u"s01"_q), u"/srv/Other.mdb"_q);
    desk.prompts.expect(u"選択した部課のＤＢパスが入力されていません。"_q)
        .expect(u"選択した部課が登録されていません。"_q);
    EXPECT_EQ(GetDbPath(desk.context, connection, u"NEW"_q), std::nullopt);
    EXPECT_EQ(GetDbPath(desk.context, connection, u"S99"_q), std::nullopt);
}

TEST_F(Readers, CalendarRowsOfASpan) {
    EXPECT_EQ(ExistCalendar(desk.context, connection, *makeDay(2025, 12, 1), *makeDay(2026, 1, 31)), 31);
    connection.execute(u"DELETE * FROM T01_Calendar;"_q);
    EXPECT_EQ(GetFirstDate(desk.context, connection), today);
}

TEST_F(Readers, ShiftOverTheBorder) {
    addCard(1, *makeDay(2026, 4, 10), u"22:00"_q, QString());
    connection.execute(u"UPDATE T02_Kurbo SET F_Leave = #2026/04/11 07:00#"_q);
    const auto end = [&](int day, int hour) {
        return leaveBeyond(connection, u"1001"_q, at(*makeDay(2026, 4, day), hour, 0));
    };
    EXPECT_EQ(end(11, 6), at(*makeDay(2026, 4, 11), 7, 0));
    EXPECT_FALSE(end(11, 7)) << "not later than the border";
    EXPECT_FALSE(end(10, 6)) << "the row of the day itself does not count";
    addCard(2, *makeDay(2026, 4, 12), u"09:00"_q, QString());
    EXPECT_FALSE(end(13, 6)) << "only the last row counts, and it is open";
}

TEST_F(Readers, SpansOfRecords) {
    addCard(1, *makeDay(2026, 1, 1), u"09:00"_q, QString());
    addCard(2, *makeDay(2026, 12, 31), u"09:00"_q, QString());
    EXPECT_EQ(RecordedDays(desk.context, connection), 364);
    EXPECT_EQ(GetFirstMonth(desk.context, connection), makeDay(2026, 4, 1));
    insert("T05_Approved", "Year, Month", u"'2025', '11'), ('2026', '02'"_q);
    EXPECT_EQ(GetFirstMonth(desk.context, connection), makeDay(2025, 11, 1));
}

TEST_F(Readers, LoginListsShowWhoMayPunchHere) {
    insert("C02_Section", "SectionCode, SectionName, DB, Order, Display",
           u"'S02', '支店', '/srv/Other.mdb', 2, True), ('S03', '旧部', 'カレントデータベース', 3, False"_q);
    EXPECT_EQ(loginSections(connection), (QList<CodeName>{{u"S01"_q, u"総務部"_q}}));
    connection.execute(u"DELETE * FROM M02_StaffInfo WHERE F_StaffCode = '1002'"_q);
    EXPECT_EQ(loginStaff(connection, u"S01"_q),
              (QList<CodeName>{{u"1001"_q, u"山田太郎"_q}, {u"1003"_q, u"佐藤次郎"_q}}));
}

using Access = SampleCompany;

// Every right comes from the field of its own name.
TEST_F(Access, NoRightIsTakenForAnother) {
    for (std::size_t i = 0; i < rightCount; ++i) {
        const QString field = fieldOf(static_cast<Right>(i));
        connection.execute(u"DELETE * FROM M08_Access WHERE F_AccessCode = 1"_q);
        insert("M08_Access", (u"AccessCode, Section, "_q + field.sliced(2)).toLatin1().constData(),
               u"1, 'MySection', True"_q);
        AccessRights access;
        ASSERT_TRUE(GetAccess(desk.context, connection, u"1001"_q, mySection(), access));
        for (std::size_t j = 0; j < rightCount; ++j) EXPECT_EQ(access.rights[j], i == j) << field;
    }
}

TEST_F(Access, WithoutARowOnlyTheReadRightsFall) {
    AccessRights access;
    access.IsAdmin = true;
    ASSERT_TRUE(GetAccess(desk.context, connection, u"1002"_q, mySection(), access));
    EXPECT_TRUE(access.AccessFound && access.CanPunch && !access.IsAdmin);
    ASSERT_TRUE(GetAccess(desk.context, connection, u"1002"_q, u"S99"_q, access));
    EXPECT_FALSE(access.AccessFound || access.CanPunch || access.IsAdmin);
    EXPECT_FALSE(access.has(Right::ReadMyKurbo) || access.has(Right::ReadOtherKurbo));
    EXPECT_TRUE(access.has(Right::WriteApproval));
}

TEST_F(Access, TheAdministratorIsWhoHasNoRow) {
    AccessRights access;
    ASSERT_TRUE(GetAccess(desk.context, connection, u"admin"_q, mySection(), access));
    EXPECT_TRUE(access.AccessFound && access.IsAdmin && !access.CanPunch);
    connection.execute(u"UPDATE M02_StaffInfo SET F_Access = 1 WHERE F_StaffCode = 'ADMIN'"_q);
    ASSERT_TRUE(GetAccess(desk.context, connection, u"ADMIN"_q, mySection(), access));
    EXPECT_TRUE(access.CanPunch && !access.IsAdmin);
    connection.close();
    desk.prompts.expect(u"エラー番号："_q);
    EXPECT_FALSE(GetAccess(desk.context, connection, u"ADMIN"_q, mySection(), access));
    EXPECT_TRUE(access.CanPunch) << "a failure leaves the flags";
}

} // namespace

} // namespace kurbo::test
