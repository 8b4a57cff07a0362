#include "maintenance/old_days.h"
#include "support/table.h"

#include <QDir>

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
    // The first and last day and month that are offered.
    const auto offered = [this] {
        const MoveOrder order = *firstMoveOrder(desk.context, connection);
        return QStringList{dateId(*order.startDay), dateId(*order.endDay), dateId(*order.startMonth).left(6),
                           dateId(*order.endMonth).left(6)}
            .join(u' ');
    };
    EXPECT_EQ(offered(), u"20260101 20260331 202512 202604"_q) << "a year is not over yet, and April is worked on";
    connection.execute(u"UPDATE M02_StaffInfo SET F_CloseDay = 10 WHERE F_StaffCode = '1002'"_q);
    EXPECT_EQ(firstRunningDay(connection, today), makeDay(2026, 4, 1)) << "the 11th has begun";
    desk.clock.set(at(*makeDay(2028, 5, 5), 9, 0));
    EXPECT_EQ(offered(), u"20260101 20261231 202512 202611"_q);
    connection.execute(u"DELETE FROM T05_Approved"_q);
    connection.execute(u"DELETE FROM T01_Calendar WHERE (F_DateID < '20280501')"_q);
    insert("T01_Calendar", "DateID, Date", u"'20280502', #2028/05/02#"_q);
    EXPECT_EQ(offered(), u"20280502 20280505 202805 202805"_q) << "nothing else to offer";
}

TEST_F(Order, IsCheckedInItsOrder) {
    // First and last day, first and last month, the place, and what is said; today is 15 April.
    for (const QStringList& row : rowsOf(R"(
         | 20260228 | 20251201 | 20260101 |               | 移動するデータの期間に年月日が設定されていません。
20260210 | 20260101 | 20251201 | 20260101 |               | 不正な入力です。終了年月日を開始年月日以降に設定して下さい。
20260101 | 20260416 | 20251201 | 20260101 |               | 明日以降のデータ、すなわち未到来のデータを移動する事はできません。
20260101 | 20260131 | 20251201 | 20260101 |               | 移動するデータは31日以上必要です。
20260101 | 20260201 | 20251201 | 20260101 |               |
20260105 | 20260228 | 20251201 |          |               | 移動するデータの期間に年月が設定されていません。
20260105 | 20260228 | 20260201 | 20260101 |               | 不正な入力です。終了年月を開始年月以降に設定して下さい。
20260105 | 20260228 | 20251201 | 20260501 |               | 明日以降のデータ、すなわち未到来のデータを移動する事はできません。
20260105 | 20260228 | 20251201 | 20260101 | /none/old.mdb | DBの移動先パスが見つかりません。
)")) {
        const MoveOrder given{parseDateId(row[0]), parseDateId(row[1]), true,
                              parseDateId(row[2]), parseDateId(row[3]), row[4].isEmpty() ? destination : row[4]};
        EXPECT_EQ(refusal(given), row[5]) << row.join(u'|');
    }
}

TEST_F(Order, APlaceThatCantTakeTheCopyIsRefused) {
    ASSERT_TRUE(QFile::link(path, desk.file(u"link.mdb"_q)));
    ASSERT_TRUE(QFile::link(desk.folder.path(), desk.file(u"here"_q)));
    ASSERT_EQ(::link(path.toUtf8().constData(), desk.file(u"twin.mdb"_q).toUtf8().constData()), 0);
    const QString parent = QDir(desk.folder.path()).dirName();
    for (const auto& [names, refusal] :
         {std::pair{"store.mdb ./store.mdb ../%1/store.mdb link.mdb twin.mdb here/store.mdb",
                    u"移動先DBにカレントDBと同じファイルは指定できません。"_q},
          {"store.bak store.ldb here/store.bak store.mdb-journal Backup.mdb",
           u"移動先DBに指定したファイル名は、システムが他の用途で使用します。"_q},
          {"Parm.dat other.mdb-journal store", u"移動先DBのファイル名が不正です。"_q},
          {". here/", u"移動先DBのファイル名が指定されていません。"_q}})
        for (const QString& name : QString::fromLatin1(names).split(u' '))
            EXPECT_EQ(refusedPlace(desk.file(QString(name).replace(u"%1"_q, parent))), refusal) << name;
    {
        const AsNobody nobody;
        EXPECT_EQ(refusedPlace(destination), u"移動先DBに書き込む事ができません。"_q);
    }
    connection.close();
    // A hole takes no room itself.
    ASSERT_TRUE(QFile::resize(path, qint64{1} << 42));
    EXPECT_EQ(refusedPlace(destination), u"移動先ディスクの空き容量が不足しています。"_q);
}

} // namespace kurbo::test
