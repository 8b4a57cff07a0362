#include "settings/work_style/work_style.h"

#include "settings/listing.h"
#include "support/sample_company.h"
#include "support/table.h"

namespace kurbo::test {
namespace {

class WorkStyleTest : public SampleCompany {
  protected:
    [[nodiscard]] static QString refusal(const WorkStyle& style) {
        return refusalOf([&] { checkWorkStyle(style); });
    }
    [[nodiscard]] static WorkStyle good() {
        WorkStyle style;
        style.flex = true;
        style.standard = u"08:00"_q;
        style.am = {true, 2, true, u"03:30"_q};
        style.pm = {true, 1, true, u"04:00"_q};
        style.roundUnit = u"15"_q;
        style.roundEnter = 1;
        style.countUnit = 0;
        style.display.fill(true);
        return style;
    }
    // The stored row, one field after another.
    [[nodiscard]] QString row() {
        QString fields = u"F_WorkStyle FlexStandard AmHolidayWork AmFlex AmFlexStandard PmHolidayWork RoundMethod "
                         "RoundEnter RoundLeave RoundHour CountUnit RoundUnit Diff LegalOver EarlyLeave"_q;
        return asked(u"SELECT %1 FROM M01_CorpInfo"_q.arg(fields.replace(u" "_q, u" & ' ' & F_"_q)));
    }
};

TEST_F(WorkStyleTest, TheFirstRuleThatFailsIsTold) {
    // The standard times of whole days, mornings and afternoons, the unit of rounding, and what is said.
    for (const QStringList& row : rowsOf(R"(
__:__ | __:__ | 04:00 | 15  | 平日勤務の標準労働時間が入力されていません。
25:00 | 03:30 | 04:00 | 15  | 平日勤務の標準労働時間が不正です。時間をhh:mm形式で入力します。
08:00 | __:__ | 04:00 | 15  | 午前休日の標準労働時間が入力されていません。
08:00 | 03:30 | 1_:00 | 15  | 午後休日の標準労働時間が不正です。時間をhh:mm形式で入力します。
08:00 | 03:30 | 04:00 |     | 端数処理単位が入力されていません。
08:00 | 03:30 | 04:00 | 61  | 端数処理単位が不正です。端数処理単位は1～60の範囲で入力します。
08:00 | 03:30 | 04:00 | 60  |
)")) {
        WorkStyle style = good();
        style.standard = row[0];
        style.am.standard = row[1];
        style.pm.standard = row[2];
        style.roundUnit = row[3];
        EXPECT_EQ(refusal(style), row[4]) << row.join(u'|');
    }
    WorkStyle off = good();
    off.flex = off.am.flex = off.pm.exists = false;
    off.standard = off.am.standard = off.pm.standard = u"99:99"_q;
    EXPECT_EQ(refusal(off), QString()) << "what is switched off is not looked at";
}

TEST_F(WorkStyleTest, WhatTheChoicesLeaveWithoutAMeaningBecomesNull) {
    writeWorkStyle(connection, good());
    EXPECT_EQ(row(), u"1 08:00 3 -1 03:30 2 0 1 0  0 15 -1 0 -1"_q);
    WorkStyle style = good();
    style.flex = style.am.exists = false;
    style.byMonth = true;
    style.roundHour = 1;
    writeWorkStyle(connection, style);
    EXPECT_EQ(row(), u"0  0 0  2 1   1 1 15 0 -1 -1"_q);
}

TEST_F(WorkStyleTest, AnEmptyCompanyGetsItsRowAndReadsItBack) {
    connection.execute(u"DELETE * FROM M01_CorpInfo"_q);
    writeWorkStyle(connection, good());
    const WorkStyle style = readWorkStyle(connection);
    EXPECT_EQ(style.am.standard + QString::number(style.pm.work) + style.roundUnit, u"03:30115"_q);
    EXPECT_FALSE(style.display[WorkStyle::legalOver]);
}

TEST_F(WorkStyleTest, TheListingTellsTheControls) {
    EXPECT_TRUE(workStyleListing(good()).join(u'\n').contains(
        u"  午前休日勤務の取扱：ｶｳﾝﾄしない\n        午後休日勤務：ﾌﾚｯｸｽ勤務 (標準労働時間：04:00)\n"
        "  午後休日勤務の取扱：休日出勤扱い\n        端数処理方法：1日単位\n            出社時刻：切上\n"_q));
}

} // namespace
} // namespace kurbo::test
