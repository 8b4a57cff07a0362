#include "session/login.h"

#include "support/sample_company.h"

namespace kurbo::test {
namespace {

class LogIn : public SampleCompany {
  protected:
    LogIn() {
        connection.close();
        client.openHome();
    }
    LoginResult attempt(const QString& staff, const QString& password) {
        return login.attempt({isAdminCode(staff) ? QString() : u"s01"_q, staff, password});
    }

    Login login{client};
    const QString wrong = u"不正なパスワードです。正しいパスワードを入力して下さい。"_q;
    const QString last = u"不正なパスワードです。強制終了します。"_q;
};

} // namespace

TEST_F(LogIn, APersonsSession) {
    EXPECT_EQ(attempt(u"1001"_q, u"KURBO1"_q), LoginResult::Open) << "case does not matter";
    EXPECT_EQ(client.session.SessionSection + client.session.SessionStaff, u"S011001"_q);
    EXPECT_TRUE(client.session.EnterDelay == 30s && client.session.LeaveGain == 60s && client.session.access.CanPunch);
    EXPECT_EQ(attempt(u"admin"_q, u"admin"_q), LoginResult::Open);
    EXPECT_EQ(client.session.SessionStaff + client.session.SessionSection, u"ADMINADMIN"_q);
    EXPECT_EQ(client.session.EnterDelay, 0s) << "Null counts as 0";
    EXPECT_TRUE(client.session.access.IsAdmin && !client.session.access.CanPunch);
}

TEST_F(LogIn, TheThirdWrongPasswordInARowEnds) {
    desk.prompts.expect(wrong).expect(wrong).expect(wrong).expect(wrong).expect(last);
    EXPECT_EQ(attempt(u"1001"_q, u"x"_q), LoginResult::Refused);
    EXPECT_EQ(attempt(u"1002"_q, u"y"_q), LoginResult::Refused) << "the person does not matter";
    EXPECT_EQ(attempt(u"1001"_q, u"kurbo1"_q), LoginResult::Open);
    EXPECT_EQ(attempt(u"1001"_q, u"x"_q), LoginResult::Refused) << "the count starts again";
    EXPECT_EQ(attempt(u"1001"_q, QString()), LoginResult::Refused);
    EXPECT_EQ(attempt(u"1001"_q, u"kurbo1 "_q), LoginResult::Thrown);
    EXPECT_EQ(attempt(u"1001"_q, u"kurbo1"_q), LoginResult::Thrown) << "from then on nobody is admitted";
}

TEST_F(LogIn, WhomTheListsDoNotHoldIsRefusedWithoutAWordOfThePassword) {
    Connection& store = client.HomeConnection;
    store.execute(u"UPDATE C03_Staff SET F_Section = 'S02' WHERE (F_StaffCode = '1002');"_q);
    store.execute(u"DELETE * FROM C03_Staff WHERE (F_StaffCode = '1003');"_q);
    for (const QString& staff : {u"1002"_q, u"1003"_q, u"1004"_q, QString()})
        for (const QString& word : {u"kurbo1"_q, u"x"_q}) {
            desk.prompts.expect(u"不正な入力です。リストから選択して下さい。"_q);
            EXPECT_EQ(attempt(staff, word), LoginResult::Stopped) << staff;
        }
    EXPECT_EQ(client.session.SessionStaff, QString());
    store.execute(u"UPDATE C03_Staff SET F_StaffCode = 'pA', F_Display = True WHERE (F_StaffCode = '1004');"_q);
    store.execute(u"UPDATE M02_StaffInfo SET F_StaffCode = 'pA' WHERE (F_StaffCode = '1004');"_q);
    EXPECT_EQ(attempt(u"PA"_q, u"kurbo1"_q), LoginResult::Open);
    EXPECT_EQ(client.session.SessionSection + client.session.SessionStaff, u"S01pA"_q) << "as the store spells them";
}

TEST_F(LogIn, WithoutARightNobodyGetsIn) {
    desk.prompts.expect(u"エラー番号："_q).expect(wrong);
    EXPECT_EQ(attempt(u"1001"_q, u"' OR '1'='1"_q), LoginResult::Refused);
    desk.prompts.expect(u"佐藤次郎 さんのアクセス権が設定されていません。\r\n管理者に"_q);
    EXPECT_EQ(attempt(u"1003"_q, u"kurbo1"_q), LoginResult::Stopped);
}

} // namespace kurbo::test
