#include "maintenance/destinations.h"

#include "maintenance/purge_office.h"

namespace kurbo::test {
namespace {

class Purge : public PurgeOffice {
  protected:
    QString shown(const QString& staff) {
        logIn(staff);
        EXPECT_TRUE(list.show());
        QStringList rows;
        for (int row = 1; row < list.grid.Rows(); ++row)
            rows.append(list.grid.TextMatrix(row, 0) + u' ' + list.grid.CellText(row, 1) + u' ' +
                        list.grid.TextMatrix(row, 3));
        return rows.join(u',');
    }
    DestinationList list{client};
};

} // namespace

TEST_F(Purge, ListsWhatNoOutingRefersTo) {
    EXPECT_EQ(shown(u"1001"_q), u"1 山田太郎 得意先3,2 山田太郎 得意先5"_q);
    connection.execute(u"DELETE FROM T02_Kurbo"_q);
    EXPECT_EQ(shown(u"ADMIN"_q), u"1 山田太郎 得意先3,2 山田太郎 得意先4,3 山田太郎 得意先5,"
                                 "4 鈴木花子 得意先1,5 鈴木花子 得意先2"_q)
        << "old outings are gone, and nobody is left out but who isn't there";
    EXPECT_FALSE(list.grid.ColHidden(1));
}

TEST_F(Purge, DeletesTheChosenRowsOrAllOrNone) {
    (void)shown(u"ADMIN"_q);
    connection.engine("CREATE TRIGGER Stop BEFORE DELETE ON T04_Destination WHEN OLD.F_DestCode = 5 "
                      "BEGIN SELECT RAISE(ABORT, 'no'); END");
    const QString question = u"選択した外出先を削除します。削除した外出先は復活できません。\r\n\r\nよろしいですか？"_q;
    desk.prompts.expect(question).expect(u"エラー番号"_q).expect(u"外出先の削除に失敗しました。"_q);
    list.remove({1, 3});
    EXPECT_EQ(stored(), u"123456"_q);
    connection.engine("DROP TRIGGER Stop");
    desk.prompts.expect(question);
    list.remove({2, 3});
    EXPECT_EQ(stored(), u"1346"_q);
}

} // namespace kurbo::test
