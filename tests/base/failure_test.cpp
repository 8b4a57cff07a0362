#include "base/error_log.h"
#include "base/system/code_page.h"
#include "base/system/files.h"
#include "support/desk.h"

#include <stdexcept>

namespace kurbo::test {

TEST(Guarded, ComplaintIsShownAndNotLogged) {
    Desk desk;
    desk.prompts.expect(u"選択した部課が登録されていません。"_q);
    const QString result = guarded(desk.context, u"basKurbo", u"GetDbPath", u"ERROR"_q,
                                   []() -> QString { throw Complaint(u"選択した部課が登録されていません。"_q); });
    EXPECT_EQ(result + desk.prompts.last().title, u"ERRORKurbo"_q);
    EXPECT_EQ(desk.prompts.last().icon, Icon::Exclamation);
    EXPECT_FALSE(QFileInfo::exists(desk.file(u"Error.log"_q)));
}

TEST(Guarded, FaultIsShownOnceWithItsNumberAndLogged) {
    Desk desk;
    const auto fail = [&desk] {
        return guarded(desk.context, u"frmLogin", u"RecordEnter", false,
                       []() -> bool { throw Fault(3043, u"Kurbo.Store"_q, u"ディスク\"X\"の〜\r\n障害"_q); });
    };
    desk.prompts.expect(u"エラー番号：3043\r\nディスク\"X\"の〜\r\n障害"_q).expect(u"エラー番号：3043"_q);
    EXPECT_FALSE(fail());
    EXPECT_EQ(desk.prompts.last().title, u"Kurbo.Store－RecordEnter"_q);
    EXPECT_EQ(desk.prompts.last().icon, Icon::Critical);
    const QString line =
        u"\"2026/04/15\",\"frmLogin\",\"RecordEnter\",\"Kurbo.Store\",3043,\"ディスク\"X\"の～ 障害\"\r\n"_q;
    EXPECT_EQ(fromCodePage(readFile(desk.file(u"Error.log"_q))), line);
    EXPECT_FALSE(fail());
    EXPECT_EQ(fromCodePage(readFile(desk.file(u"Error.log"_q))), line + line);
}

TEST(Guarded, AnyOtherExceptionIsAFaultOfTheProgramAndTheLogFailsInSilence) {
    Desk desk;
    const AsNobody nobody;
    desk.prompts.expect(u"out of paper"_q);
    EXPECT_EQ(guarded(desk.context, u"m", u"p", -1, []() -> int { throw std::runtime_error("out of paper"); }), -1);
    EXPECT_FALSE(QFileInfo::exists(desk.file(u"Error.log"_q)));
}

} // namespace kurbo::test
