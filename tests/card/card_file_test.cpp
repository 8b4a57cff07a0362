#include "card/card_cells.h"
#include "card/card_grid.h"
#include "card/card_office.h"
#include "card/card_screen.h"
#include "screen/files/archive.h"
#include "screen/files/card_file.h"

#include <QDir>

namespace kurbo::test {
namespace {

const QString april = u"2026/04/01"_q;
const QString endOfApril = u"2026/04/30"_q;

class CardFile : public CardOffice {
  protected:
    // The superior has put a card into a file.
    void saved() {
        logIn(u"1002"_q);
        ASSERT_TRUE(screen.load() && screen.chooseStaff(u"1001"_q));
        desk.prompts.expectFile(file);
        ASSERT_TRUE(screen.saveKrb(april, endOfApril));
    }
    bool load(const QString& from) {
        desk.prompts.expectFile(from);
        return screen.loadKrb();
    }
    [[nodiscard]] QString shown() const {
        return screen.chosen().section + u' ' + screen.chosen().staff + u' ' + slashDate(screen.chosen().period.from) +
               u' ' + cardText(screen.sheet.grid, firstCardDay, CardColumn::Enter);
    }

    QString file = desk.file(u"april.krb"_q);
    CardScreen screen{client};
};

TEST_F(CardFile, ShowsAgainWhatWasSavedAndForbidsTheRest) {
    saved();
    desk.prompts.expectFile(file);
    EXPECT_TRUE(screen.saveKrb(april, endOfApril));
    EXPECT_EQ(ArchiveCount(file), 2) << "saved again, it keeps its two members";
    insert("T05_Approved", "Staff, Year, Month, PersonalApproval, SuperiorApproval",
           u"'1003', '2026', '03', True, True"_q);
    ASSERT_TRUE(screen.chooseStaff(u"1003"_q) && screen.chooseMonth(3) && screen.month().superiorApproval());
    ASSERT_TRUE(load(file));
    EXPECT_FALSE(screen.month().personalApproval() || screen.month().superiorApproval()) << "marks of the card before";
    EXPECT_EQ(shown(), u"S01 1001 2026/04/01 08:52"_q);
    EXPECT_FALSE(screen.sheet.grid.Editable(firstCardDay, 4) || screen.month().mayUpdate());
    desk.prompts.expect(u"タイムカードファイルを呼出した状態で削除は"_q);
    EXPECT_FALSE(screen.deletePeriod(april, endOfApril));
    EXPECT_TRUE(screen.display(april, endOfApril));
    EXPECT_FALSE(screen.sheet.blnFileMode);
    EXPECT_TRUE(screen.sheet.grid.Editable(firstCardDay, 4));
}

TEST_F(CardFile, AFileOfNobodyKnownIsShownAndNoWayToOthersCards) {
    saved();
    GridModel grid;
    const QStringList selection = loadCardFile(file, u"Kurbo.tmp"_q, cardColumns, grid);
    saveCardFile(file, u"Kurbo.tmp"_q, grid, {u"S01"_q, u"1004"_q, selection[2], selection[3]});
    ASSERT_TRUE(load(file));
    desk.prompts.expect(u"アクセス権がありません。"_q);
    EXPECT_FALSE(screen.display(april, endOfApril)) << "whom the list doesn't hold";
    saveCardFile(file, u"Kurbo.tmp"_q, grid, selection);
    connection.execute(u"UPDATE M02_StaffInfo SET F_Access = 1 WHERE (F_StaffCode = '1003')"_q);
    logIn(u"1003"_q);
    ASSERT_TRUE(screen.load());
    ASSERT_TRUE(load(file));
    desk.prompts.expect(u"アクセス権がありません。"_q).expect(u"アクセス権がありません。"_q);
    EXPECT_FALSE(screen.display(april, endOfApril) || screen.chooseMonth(3));
    EXPECT_TRUE(screen.sheet.blnFileMode);
    saveCardFile(file, u"Kurbo.tmp"_q, grid, {u"S99"_q, u"9999"_q, selection[2], selection[3]});
    ASSERT_TRUE(load(file));
    EXPECT_EQ(shown(), u"S99 9999 2026/04/01 08:52"_q);
    insert("C03_Staff", "StaffCode, StaffName, Section, Display", u"'9999', '工藤四郎', 'S99', True"_q);
    ASSERT_TRUE(load(file));
    EXPECT_EQ(screen.people().last().name, u"工藤四郎"_q);
    EXPECT_TRUE(screen.chooseStaff(u"1003"_q)) << "back to the own card";
    EXPECT_NE(screen.people().last().code, u"9999"_q);
    EXPECT_EQ(screen.chosen().section, u"S01"_q);
}

TEST_F(CardFile, RefusesOtherFilesAndStaysInFileMode) {
    saved();
    GridModel other;
    other.reset({.rows = 5, .columns = 27});
    const QString totals = desk.file(u"totals.krb"_q);
    saveCardFile(totals, u"Total.tmp"_q, other, {u"S01"_q, u""_q, u"2026/04"_q, u"2026/05"_q});
    const QString narrow = desk.file(u"narrow.krb"_q);
    saveCardFile(narrow, u"Kurbo.tmp"_q, other, {u"S01"_q, u"1001"_q, april, endOfApril});
    const QString before = shown();
    for (const QString& wrong : {totals, narrow, path}) {
        desk.prompts.expect(u"ファイル形式が異なります。"_q);
        EXPECT_FALSE(load(wrong));
        EXPECT_EQ(shown(), before);
    }
    desk.prompts.expectFile(totals).expect(u"ファイル形式が異なります。"_q);
    EXPECT_FALSE(screen.saveKrb(april, endOfApril)) << "a file of the other screen isn't spoilt";
    EXPECT_EQ(loadCardFile(totals, u"Total.tmp"_q, 27, other)[3], u"2026/05"_q);
    EXPECT_TRUE(QDir(desk.folder.path()).entryList({u"*.tmp"_q}).isEmpty());
}

} // namespace
} // namespace kurbo::test
