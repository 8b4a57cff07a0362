#include "maintenance/move_order.h"

#include "base/system/files.h"
#include "maintenance/old_days.h"

#include <QDir>

#include <unistd.h>

namespace kurbo::test {
namespace {

class Order : public OldDays {
  protected:
    QString refusal(const MoveOrder& given) {
        return refusalOf([&] { checkMove(desk.context, path, given); });
    }
    QString refusedPlace(const QString& place) {
        MoveOrder given = order(false);
        given.destination = place;
        return refusal(given).section(u"\r\n"_q, 0, 0);
    }
};

} // namespace

TEST_F(Order, BeginsWithAYearThatHasPassed) {
    MoveOrder first = *firstMoveOrder(desk.context, connection);
    EXPECT_EQ(first.startDay, makeDay(2026, 1, 1));
    EXPECT_EQ(first.endDay, makeDay(2026, 3, 31)) << "a year is not over yet, and April is worked on";
    connection.execute(u"UPDATE M02_StaffInfo SET F_CloseDay = 20 WHERE F_StaffCode = '1002'"_q);
    EXPECT_EQ(firstMoveOrder(desk.context, connection)->endDay, makeDay(2026, 3, 20));
    connection.execute(u"UPDATE M02_StaffInfo SET F_CloseDay = 10 WHERE F_StaffCode = '1002'"_q);
    EXPECT_EQ(firstRunningDay(connection, today), makeDay(2026, 4, 1)) << "the 11th has begun";
    EXPECT_EQ(first.startMonth, makeDay(2025, 12, 1));
    EXPECT_EQ(first.endMonth, makeDay(2026, 4, 1));
    desk.clock.set(at(*makeDay(2028, 5, 5), 9, 0));
    first = *firstMoveOrder(desk.context, connection);
    EXPECT_EQ(first.endDay, makeDay(2026, 12, 31));
    EXPECT_EQ(first.endMonth, makeDay(2026, 11, 1));
    EXPECT_FALSE(isFilledIn(first)) << "no destination";
    first.destination = u" x"_q;
    EXPECT_TRUE(isFilledIn(first));
    first.endMonth = {};
    EXPECT_TRUE(isFilledIn(first)) << "months do not count";
    first.withMonths = true;
    EXPECT_FALSE(isFilledIn(first));
    connection.execute(u"DELETE FROM T05_Approved"_q);
    EXPECT_EQ(firstMoveOrder(desk.context, connection)->startMonth, makeDay(2028, 5, 1));
    connection.execute(u"DELETE FROM T01_Calendar WHERE (F_DateID < '20280501')"_q);
    connection.execute(u"INSERT INTO T01_Calendar (F_DateID, F_Date) VALUES ('20280502', #2028/05/02#)"_q);
    EXPECT_EQ(firstMoveOrder(desk.context, connection)->endDay, makeDay(2028, 5, 5)) << "nothing else to offer";
    connection.close();
    desk.prompts.expect(u"エラー番号"_q);
    EXPECT_FALSE(firstMoveOrder(desk.context, connection));
}

TEST_F(Order, IsCheckedInItsOrder) {
    struct Case {
        const char16_t* what;
        std::function<void(MoveOrder&)> change;
        const char16_t* refusal;
    };
    const Day first = *makeDay(2026, 1, 1);
    const auto days = [](int from, int to) {
        return [from, to](MoveOrder& order) {
            order.startDay = *makeDay(2026, 1, 1) + std::chrono::days(from);
            order.endDay = *makeDay(2026, 1, 1) + std::chrono::days(to);
        };
    };
    const int todays = static_cast<int>((today - first).count());
    const std::array cases{
        Case{u"no first day", [](MoveOrder& order) { order.startDay = {}; },
             u"移動するデータの期間に年月日が設定されていません。"},
        Case{u"turned round", days(40, 0), u"不正な入力です。終了年月日を開始年月日以降に設定して下さい。"},
        Case{u"until tomorrow", days(0, todays + 1),
             u"明日以降のデータ、すなわち未到来のデータを移動する事はできません。"},
        Case{u"until today", days(0, todays), u""},
        Case{u"30 days apart", days(0, 30), u"移動するデータは31日以上必要です。"},
        Case{u"31 days apart", days(0, 31), u""},
        Case{u"no last month", [](MoveOrder& order) { order.endMonth = {}; },
             u"移動するデータの期間に年月が設定されていません。"},
        Case{u"months turned round", [](MoveOrder& order) { order.startMonth = makeDay(2026, 2, 1); },
             u"不正な入力です。終了年月を開始年月以降に設定して下さい。"},
        Case{u"until this month", [](MoveOrder& order) { order.endMonth = makeDay(2026, 4, 1); }, u""},
        Case{u"until next month", [](MoveOrder& order) { order.endMonth = makeDay(2026, 5, 1); },
             u"明日以降のデータ、すなわち未到来のデータを移動する事はできません。"},
        Case{u"no such folder", [](MoveOrder& order) { order.destination = u"/none/old.mdb"_q; },
             u"DBの移動先パスが見つかりません。"},
        Case{u"no folder", [](MoveOrder& order) { order.destination = u"old.mdb"_q; },
             u"DBの移動先パスが見つかりません。"},
    };
    for (const Case& each : cases) {
        MoveOrder given = order(true);
        each.change(given);
        EXPECT_EQ(refusal(given), QString::fromUtf16(each.refusal)) << QString::fromUtf16(each.what);
    }
}

TEST_F(Order, APlaceThatCantTakeTheCopyIsRefused) {
    const QString same = u"移動先DBにカレントDBと同じファイルは指定できません。"_q;
    const QString reserved = u"移動先DBに指定したファイル名は、システムが他の用途で使用します。"_q;
    const QString noName = u"移動先DBのファイル名が指定されていません。"_q;
    const QString noWriting = u"移動先DBに書き込む事ができません。"_q;
    ASSERT_TRUE(QFile::link(path, desk.file(u"link.mdb"_q)));
    ASSERT_TRUE(QFile::link(desk.folder.path(), desk.file(u"here"_q)));
    ASSERT_EQ(::link(path.toUtf8().constData(), desk.file(u"twin.mdb"_q).toUtf8().constData()), 0);
    for (const char16_t* name :
         {u"store.mdb", u"./store.mdb", u"../%1/store.mdb", u"link.mdb", u"twin.mdb", u"here/store.mdb"})
        EXPECT_EQ(
            refusedPlace(desk.file(QString::fromUtf16(name).replace(u"%1"_q, QDir(desk.folder.path()).dirName()))),
            same)
            << QString::fromUtf16(name);
    for (const char16_t* name : {u"store.bak", u"store.ldb", u"here/store.bak", u"store.mdb-journal", u"Backup.mdb"})
        EXPECT_EQ(refusedPlace(desk.file(QString::fromUtf16(name))), reserved) << QString::fromUtf16(name);
    for (const char16_t* name : {u"Parm.dat", u"other.mdb-journal", u"store"})
        EXPECT_EQ(refusedPlace(desk.file(QString::fromUtf16(name))), u"移動先DBのファイル名が不正です。"_q);
    EXPECT_EQ(refusedPlace(desk.folder.path()), noName);
    EXPECT_EQ(refusedPlace(desk.folder.path() + u'/'), noName);
    EXPECT_EQ(refusedPlace(u"/dev/null"_q), noName);
    replaceFile(desk.file(u"kept.mdb"_q), "read only");
    QFile::setPermissions(desk.file(u"kept.mdb"_q), QFile::ReadOwner | QFile::ReadOther);
    const AsNobody nobody;
    EXPECT_EQ(refusedPlace(destination), noWriting);
    EXPECT_EQ(refusedPlace(desk.file(u"kept.mdb"_q)), noWriting);
    EXPECT_EQ(refusedPlace(QDir::tempPath() + u"/old.mdb"_q), QString());
}

TEST_F(Order, ADiskWithoutRoomIsRefused) {
    connection.close();
    // A hole takes no room itself.
    QFile file(path);
    ASSERT_TRUE(file.resize(qint64{1} << 42));
    EXPECT_EQ(refusedPlace(destination), u"移動先ディスクの空き容量が不足しています。"_q);
}

} // namespace kurbo::test
