#include "card/card_screen.h"

#include "card/card_grid.h"
#include "card/card_office.h"

namespace kurbo::test {
namespace {

const QString noCalendar = u"カレンダーが作成されていません。"_q;
const QString discard = u"変更を破棄しますか？"_q;

class CardScreenTest : public CardOffice {
  protected:
    [[nodiscard]] QString period() const {
        return slashDate(screen.chosen().period.from) + u'-' + slashDate(screen.chosen().period.to);
    }
    [[nodiscard]] QString cell(int day, CardColumn column) const {
        return screen.sheet.grid.TextMatrix(firstCardDay + day - 1, static_cast<int>(column));
    }
    void type(int day, CardColumn column, const QString& text) {
        screen.sheet.grid.edit(firstCardDay + day - 1, static_cast<int>(column), text);
    }

    // Somebody looks at somebody's card, or at the own one.
    void look(const QString& reader, const QString& person = {}) {
        logIn(reader);
        ASSERT_TRUE(screen.load() && (person.isEmpty() || screen.chooseStaff(person)));
    }

    CardScreen screen{client};
};

TEST_F(CardScreenTest, WithoutACalendarOfTodayItsFirstDayCounts) {
    desk.clock.set(at(*makeDay(2030, 7, 1), 9, 0));
    look(u"1001"_q);
    EXPECT_EQ(period(), u"2026/01/01-2026/01/31"_q);
    EXPECT_EQ(screen.people().size(), 3) << "people who aren't displayed can't be chosen";
    EXPECT_FALSE(screen.mayChooseOthers() || screen.mayDelete());
}

TEST_F(CardScreenTest, MonthYearAndRangeAreShownOrPutBack) {
    look(u"1002"_q);
    EXPECT_TRUE(screen.chooseMonth(3));
    EXPECT_EQ(period(), u"2026/02/21-2026/03/20"_q);
    desk.prompts.expect(noCalendar);
    EXPECT_FALSE(screen.moveYears(1, u"2026/02/21"_q, u"2026/03/20"_q));
    EXPECT_EQ(period() + QString::number(static_cast<int>(screen.chosen().month.year())),
              u"2026/02/21-2026/03/202026"_q);
    EXPECT_TRUE(screen.display(u"2026/04/01"_q, u"2026/06/30"_q));
    EXPECT_EQ(static_cast<unsigned>(screen.chosen().month.month()), 3) << "the month buttons keep their state";
    EXPECT_FALSE(screen.month().isWholePeriod());
    desk.prompts.expect(u"期間が不正です。"_q).expect(noCalendar);
    EXPECT_FALSE(screen.display(u"2026/04/31"_q, u"2026/06/30"_q) || screen.display(u"2027/01/01"_q, u"2027/01/31"_q));
    EXPECT_EQ(period(), u"2026/04/01-2026/06/30"_q);
}

TEST_F(CardScreenTest, AYearStepKeepsAFebruaryWhole) {
    for (const Day last : {*makeDay(2027, 2, 28), *makeDay(2028, 2, 29)})
        connection.execute(u"INSERT INTO T01_Calendar (F_DateID, F_Date) VALUES (?, ?)"_q, {dateId(last), last});
    logIn(u"1001"_q);
    ASSERT_TRUE(screen.load() && screen.chooseMonth(2));
    EXPECT_TRUE(screen.moveYears(2, u"2026/02/01"_q, u"2026/02/28"_q));
    EXPECT_EQ(period(), u"2028/02/01-2028/02/29"_q);
    EXPECT_TRUE(screen.moveYears(-1, u"2028/02/01"_q, u"2028/02/29"_q));
    EXPECT_EQ(period(), u"2027/02/01-2027/02/28"_q);
}

TEST_F(CardScreenTest, AnotherPersonHasAnotherPeriodAndOtherRights) {
    look(u"1002"_q);
    EXPECT_FALSE(screen.mayDelete()) << "only others' data";
    EXPECT_TRUE(screen.chooseStaff(u"1001"_q));
    EXPECT_EQ(period(), u"2026/04/01-2026/04/30"_q);
    EXPECT_TRUE(screen.mayDelete());
    EXPECT_FALSE(screen.isOwnCard());
    type(1, CardColumn::Plan, u"出張"_q);
    desk.prompts.expect(discard, Answer::No);
    EXPECT_FALSE(screen.chooseStaff(u"1003"_q));
    EXPECT_EQ(screen.chosen().staff + cell(1, CardColumn::Plan), u"1001出張"_q);
    connection.execute(u"UPDATE M02_StaffInfo SET F_CloseDay = 29 WHERE (F_StaffCode = '1003')"_q);
    desk.prompts.expect(discard, Answer::Yes).expect(u"タイムカード締日"_q);
    EXPECT_FALSE(screen.chooseStaff(u"1003"_q));
    EXPECT_EQ(screen.chosen().staff, u"1001"_q);
    EXPECT_TRUE(screen.sheet.blnCardChanged) << "what was refused changed nothing";
}

TEST_F(CardScreenTest, UpdatesAndDeletesWhatIsShown) {
    look(u"1002"_q, u"1001"_q);
    type(6, CardColumn::Enter, u"09:05"_q);
    desk.prompts.expect(u"追加・変更を更新します。\r\n\r\nよろしいですか？"_q, Answer::Cancel)
        .expect(u"よろしいですか？"_q);
    EXPECT_FALSE(screen.update(u"2026/04/01"_q, u"2026/04/30"_q));
    EXPECT_TRUE(screen.update(u"2026/04/01"_q, u"2026/04/30"_q));
    EXPECT_FALSE(screen.sheet.blnCardChanged);
    type(7, CardColumn::Plan, u"出張"_q);
    desk.prompts.expect(discard, Answer::No)
        .expect(discard, Answer::Yes)
        .expect(u"表示期間(2026/04/01～2026/04/02)の"_q);
    EXPECT_FALSE(screen.deletePeriod(u"2026/04/01"_q, u"2026/04/02"_q));
    EXPECT_TRUE(screen.deletePeriod(u"2026/04/01"_q, u"2026/04/02"_q));
    EXPECT_EQ(desk.prompts.last().preset, Answer::Cancel);
    EXPECT_EQ(count(u"T02_Kurbo"_q), 2);
}

TEST_F(CardScreenTest, APunchBesideTheOpenCardIsNotDoubled) {
    look(u"1002"_q, u"1001"_q);
    type(6, CardColumn::Plan, u"出張"_q);
    addCard(9, *makeDay(2026, 4, 6), u"09:00"_q, {});
    desk.prompts.expect(u"よろしいですか？"_q).expect(u"2026/04/06のデータは"_q).expect(u"更新できませんでした。"_q);
    EXPECT_FALSE(screen.update(u"2026/04/01"_q, u"2026/04/30"_q));
    EXPECT_EQ(count(u"T02_Kurbo"_q), 4);
    EXPECT_EQ(cell(6, CardColumn::Plan), u"出張"_q) << "the correction is still there to be made again";
}

TEST_F(CardScreenTest, WhatIsStoredIsNotWrittenAgainWhenItCannotBeDrawn) {
    look(u"1002"_q, u"1001"_q);
    type(6, CardColumn::Plan, u"出張"_q);
    connection.execute(u"UPDATE T02_Kurbo SET F_Leave = #2026/04/01 01:00:00# WHERE (F_KurboID = 1)"_q);
    desk.prompts.expect(u"よろしいですか？"_q).expect(u"退社時刻が出社時刻より前"_q);
    EXPECT_FALSE(screen.update(u"2026/04/01"_q, u"2026/04/30"_q));
    EXPECT_EQ(count(u"T02_Kurbo"_q), 4);
    EXPECT_FALSE(screen.sheet.blnCardChanged || screen.sheet.grid.Editable(firstCardDay + 5, 3));
}

TEST_F(CardScreenTest, AnotherSitesSectionIsReadAndWrittenThere) {
    const QString other = addOtherSite();
    logIn(u"1002"_q);
    ASSERT_TRUE(screen.load() && screen.chooseMonth(3));
    EXPECT_TRUE(screen.month().mayApprovePersonal() && screen.month().mayAdjust() && screen.month().mayUpdate());
    EXPECT_TRUE(screen.chooseSection(u"S02"_q));
    EXPECT_EQ(screen.chosen().staff + screen.people().first().code, u"2001"_q);
    EXPECT_FALSE(screen.month().mayApprovePersonal() || screen.month().mayAdjust() || screen.month().mayUpdate())
        << "no name is chosen";
    EXPECT_FALSE(screen.sheet.grid.Editable(firstCardDay, 4)) << "the old card is only seen";
    ASSERT_TRUE(screen.chooseStaff(u"2001"_q));
    type(1, CardColumn::Enter, u"08:00"_q);
    desk.prompts.expect(u"よろしいですか？"_q);
    EXPECT_TRUE(screen.update(u"2026/04/01"_q, u"2026/04/30"_q));
    EXPECT_EQ(count(u"T02_Kurbo"_q), 3) << "the home file is left alone";
    EXPECT_TRUE(client.OtherConnection.hasRow(u"SELECT F_KurboID FROM T02_Kurbo WHERE (F_User = '2001')"_q));
    screen.leave();
    EXPECT_TRUE(client.CurrentConnection == &client.HomeConnection && !client.OtherConnection.isOpen());
}

TEST_F(CardScreenTest, ARefusedSectionLeavesThePlaceAsItWas) {
    const QString other = addOtherSite();
    look(u"1002"_q, u"1001"_q);
    const auto refused = [this](const QString& message) {
        desk.prompts.expect(message);
        EXPECT_FALSE(screen.chooseSection(u"S02"_q)) << message;
        EXPECT_EQ(screen.chosen().section + screen.chosen().staff + QString::number(screen.people().size()),
                  u"S0110013"_q);
        EXPECT_TRUE(client.CurrentConnection == &client.HomeConnection);
        EXPECT_TRUE(client.session.access.has(Right::DeleteOtherData));
    };
    client.OtherConnection.close();
    {
        Connection site;
        site.open(other, databasePassword());
        site.execute(u"DELETE * FROM M08_Access WHERE (F_Section = 'S02')"_q);
        refused(u"アクセス権がありません。管理者にアクセス権の設定を依頼して下さい。"_q);
    }
    client.OtherConnection.close();
    ASSERT_TRUE(QFile::remove(other));
    refused(u"選択した部課の情報を保存しているデータベースファイル\r\n  "_q + other);
    EXPECT_TRUE(screen.chooseStaff(u"1003"_q)) << "work goes on";
}

} // namespace
} // namespace kurbo::test
