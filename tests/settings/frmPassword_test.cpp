#include "settings/people/frmPassword.h"

#include "support/window.h"

namespace kurbo::test {
namespace {

using FrmPassword = Window<frmPassword>;

TEST_F(FrmPassword, StepsShowOneAfterTheOther) {
    open(u"1001"_q);
    EXPECT_EQ(form->windowTitle(), u"Kurbo－パスワード変更"_q);
    desk.prompts.expect(u"現在登録されているパスワードを入力して下さい。"_q);
    QTest::mouseClick(&of<QWidget>("txtNewPassword"), Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_TRUE(of<QWidget>("txtOldPassword").hasFocus());
    desk.prompts.expect(u"不正なパスワードです。正しいパスワードを入力して下さい。"_q);
    type("txtOldPassword", u"wrong"_q);
    press(Qt::Key_Tab);
    EXPECT_TRUE(of<QWidget>("txtOldPassword").hasFocus());
    EXPECT_EQ(of("txtOldPassword").text(), QString());
    type("txtOldPassword", u"kurbo1"_q);
    press(Qt::Key_Tab);
    EXPECT_TRUE(of<QWidget>("txtNewPassword").hasFocus());
    EXPECT_FALSE(of<QWidget>("txtConfirm").isVisible());
    const int height = form->height();
    desk.prompts.expect(u"不正な入力です。パスワードは半角英数字10文字以内で入力します。"_q);
    type("txtNewPassword", u"a b"_q);
    press(Qt::Key_Tab);
    type("txtNewPassword", u"abc"_q);
    EXPECT_TRUE(of<QWidget>("lblConfirm").isVisible());
    QCoreApplication::processEvents();
    EXPECT_EQ(form->height(), height);
    type("txtConfirm", u"abd"_q);
    EXPECT_TRUE(of<QWidget>("cmdOK").isEnabled());
    desk.prompts.expect(u"確認用パスワードが新しいパスワードと異なります。"_q);
    press(Qt::Key_Return);
    EXPECT_EQ(of("txtNewPassword").text() + of("txtConfirm").text(), u"abc"_q);
    EXPECT_TRUE(of<QWidget>("txtConfirm").hasFocus());
    EXPECT_FALSE(of<QWidget>("cmdOK").isEnabled());
    type("txtConfirm", u"abc"_q);
    of("txtNewPassword").clear();
    EXPECT_FALSE(of<QWidget>("txtConfirm").isVisible());
    EXPECT_EQ(of("txtConfirm").text(), QString());
    type("txtNewPassword", u"abc"_q);
    const QString leave = u"パスワードは変更されています。変更を破棄しますか？"_q;
    desk.prompts.expect(leave, Answer::No);
    press(Qt::Key_Escape);
    ASSERT_TRUE(form->isVisible());
    type("txtConfirm", u"abc"_q);
    click("cmdOK");
    QCoreApplication::processEvents();
    EXPECT_TRUE(!form || !form->isVisible());
    EXPECT_EQ(asked(u"SELECT F_Password FROM M02_StaffInfo WHERE (F_StaffCode = '1001')"_q), u"abc"_q);
}

TEST_F(FrmPassword, AFailedWriteLeavesTheDialog) {
    open(u"1001"_q);
    type("txtOldPassword", u"kurbo1"_q);
    type("txtNewPassword", u"abc"_q);
    type("txtConfirm", u"abc"_q);
    connection.engine("CREATE TRIGGER Refused BEFORE UPDATE ON M02_StaffInfo BEGIN SELECT RAISE(ABORT, 'no'); END");
    desk.prompts.expect(u"エラー番号："_q).expect(u"新しいパスワードの登録に失敗しました。"_q);
    click("cmdOK");
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(asked(u"SELECT F_Password FROM M02_StaffInfo WHERE (F_StaffCode = '1001')"_q), u"kurbo1"_q);
    desk.prompts.expect(u"変更を破棄しますか？"_q, Answer::Yes);
    click("cmdCancel");
    EXPECT_TRUE(!form || !form->isVisible());
}

} // namespace
} // namespace kurbo::test
