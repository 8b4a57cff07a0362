#include "card/card_window.h"

#include <QCheckBox>
#include <QRadioButton>

namespace kurbo::test {
namespace {

class FrmKurboMonth : public CardWindow {
  protected:
    // In March 22 working days of three hours of overtime each, which are 66; 45 count. And a day of paid leave.
    FrmKurboMonth() {
        connection.execute(u"UPDATE M03_WeekdayStyle SET F_StartOver0 = '17:30', F_EndOver0 = '22:00'"_q);
        connection.execute(u"UPDATE M01_CorpInfo SET F_Over = True"_q);
        for (int day = 1; day <= 22; ++day) addCard(10 + day, *makeDay(2026, 3, day), u"09:00"_q, u"20:30"_q);
        addCard(43, *makeDay(2026, 3, 28), {}, {}, u"0"_q);
    }
    void show(int month) { click(qPrintable(u"optMonth_%1"_q.arg(month))); }
    void trigger(const char* action, const QString& question) {
        desk.prompts.expect(question);
        ASSERT_TRUE(of<QAction>(action).isEnabled()) << action;
        CardWindow::trigger(action);
    }
    // The box's word, "*" where it is bold, "-" where it is closed.
    [[nodiscard]] QString mark(const char* name) const {
        const auto& box = of<QCheckBox>(name);
        EXPECT_EQ(box.isChecked(), box.font().bold());
        return box.text() + (box.font().bold() ? u"*"_q : QString()) + (box.isEnabled() ? QString() : u"-"_q);
    }
    [[nodiscard]] QString marks() const { return mark("chkPersonal") + mark("chkSuperior"); }
    void approve(const char* box, const QString& question, Answer answer = Answer::Ok) {
        desk.prompts.expect(question, answer);
        of<QCheckBox>(box).click();
    }
};

const QString adjusting = u"集計結果の調整を行います。"_q;
const QString saving = u"月次集計の最終保存データを更新します。"_q;
const QString approving = u"月次集計の最終保存データを承認します。"_q;

TEST_F(FrmKurboMonth, AMonthIsAdjustedSavedApprovedAndCorrected) {
    openAs(u"1001"_q);
    EXPECT_FALSE(of<QAction>("mnuAdjust").isEnabled() || of<QAction>("mnuUpdateMonthly").isEnabled())
        << "April has not ended";
    show(3);
    EXPECT_EQ(marks(), u"未未-"_q);
    trigger("mnuAdjust", adjusting);
    EXPECT_EQ(cells().TextMatrix(daySumRow, 7) + u' ' + cells().TextMatrix(finalSumRow, 7), u"66:00 45:00"_q);
    trigger("mnuUpdateMonthly", saving);
    EXPECT_FALSE(of<QAction>("mnuUpdateMonthly").isEnabled());
    approve("chkPersonal", approving, Answer::Cancel);
    EXPECT_EQ(marks(), u"未未-"_q) << "put back";
    approve("chkPersonal", approving);
    EXPECT_EQ(marks(), u"済*未-"_q);
    EXPECT_EQ(asked(u"SELECT F_WorkDay & ' ' & F_Work & ' ' & F_PaidTotal & ' ' & F_Over FROM T05_Approved"_q),
              u"22 11220 19.0 2700"_q);
    ASSERT_TRUE(form->close());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    openAs(u"1002"_q);
    choose("dcbStaff", u"1001"_q);
    show(3);
    EXPECT_EQ(marks(), u"済*-未"_q);
    approve("chkSuperior", approving);
    EXPECT_EQ(marks(), u"済*-済*"_q);
    type(3, static_cast<int>(CardColumn::Leave), u"17:30"_q);
    press(Qt::Key_Return);
    approve("chkSuperior", u"タイムカードの追加・変更を更新後、承認を行って下さい。"_q);
    EXPECT_EQ(marks(), u"済*-済*"_q);
    trigger("mnuUpdate", u"追加・変更を更新します。"_q);
    EXPECT_EQ(marks(), u"済*-済*"_q) << "a corrected day leaves the record as it is";
    trigger("mnuUpdateMonthly", saving);
    EXPECT_EQ(marks(), u"未-未"_q);
}

} // namespace
} // namespace kurbo::test
