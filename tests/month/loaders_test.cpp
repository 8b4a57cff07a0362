#include "month/loaders.h"

#include "support/sample_company.h"
#include "support/table.h"

namespace kurbo::test {
namespace {

class Loaders : public SampleCompany {
  protected:
    Loaders() {
        run(u"DELETE * FROM M01_CorpInfo"_q);
        insert("M01_CorpInfo",
               "WorkStyle, FlexStandard, AmHolidayWork, AmFlexStandard, PmHolidayWork, RoundMethod, RoundEnter, "
               "RoundLeave, RoundHour, RoundUnit, CountUnit, Diff, Early",
               u"0, '07:30', 2, '04:00', 3, 0, 0, 1, 1, 15, 0, True, True"_q);
        run(u"UPDATE M02_StaffInfo SET F_AmHoliday = 1, F_PmHoliday = 1"_q);
        run(u"UPDATE M03_WeekdayStyle SET F_EndWork0 = '12:00', F_StartWork2 = '13:00', F_EndWork2 = '17:30', "
            "F_StartFlex0 = '07:00', F_EndFlex0 = '09:00', F_StartFlex2 = '18:00', F_EndFlex2 = '20:00', "
            "F_StartLegalOver0 = '17:30', F_EndLegalOver0 = '18:00', F_StartOver0 = '18:00', F_EndOver0 = '22:00', "
            "F_StartOver2 = '22:00', F_EndOver2 = '00:00', "
            "F_StartEarly0 = '05:00'"_q);
        insert("M04_HolidayStyle", "HolidayCode, StartWork1, EndWork1", u"1, '09:00', '17:00'"_q);
        insert("M05_AmHolidayStyle", "AmHolidayCode, StartWork0, EndWork0, StartEarly1, EndEarly1",
               u"1, '13:00', '17:30', '06:00', '08:00'"_q);
        insert("M06_PmHolidayStyle", "PmHolidayCode, StartWork0, EndWork0, StartOver3, EndOver3",
               u"1, '09:00', '12:00', '15:00', '16:00'"_q);
    }
    void run(const QString& statement) { connection.execute(statement); }
    bool load() {
        rules = {};
        return GetWorkStyle(desk.context, connection, rules) &&
               GetStaffInfo(desk.context, connection, rules, u"1001"_q) &&
               GetWorkTime(desk.context, connection, rules, u"1001"_q);
    }
    [[nodiscard]] bool has(DayType day, BandKind kind, int index) const {
        return !rules.bands(day, kind).at(index).isEmpty();
    }
    clsWorkTime rules;
};

} // namespace

TEST_F(Loaders, AFixedCompany) {
    ASSERT_TRUE(load());
    EXPECT_TRUE(!rules.pbleFlexTime && rules.pbleEnableDiff && rules.pbleEnableEarly && !rules.pbleEnableOver);
    const int numbers[] = {rules.plngAmHolidayWork,      rules.plngPmHolidayWork, rules.plngRoundEnter,
                           rules.plngRoundLeave,         rules.plngRoundHour,     rules.plngCountUnit,
                           rules.plngRoundUnit().count()};
    EXPECT_EQ(std::vector(std::begin(numbers), std::end(numbers)), (std::vector{2, 3, 0, 1, 0, 0, 15}))
        << "rounding by the month is not read";
    EXPECT_TRUE(rules.plngEnterDelay == 30s && rules.plngLeaveGain == 60s && rules.psngPaidTotal == 20.0F);
    EXPECT_TRUE(has(DayType::Weekday, BandKind::Work, 0));
    EXPECT_FALSE(has(DayType::Weekday, BandKind::Work, 2)) << "a gap ends the work bands";
    EXPECT_TRUE(has(DayType::Weekday, BandKind::Over, 2)) << "and is skipped in the others";
    EXPECT_FALSE(has(DayType::Weekday, BandKind::Flex, 0));
    EXPECT_FALSE(has(DayType::Weekday, BandKind::Early, 0)) << "half a pair";
    EXPECT_TRUE(has(DayType::Weekday, BandKind::LegalOver, 0) && has(DayType::Holiday, BandKind::Work, 1));
    EXPECT_TRUE(has(DayType::AmHoliday, BandKind::Early, 1) && has(DayType::PmHoliday, BandKind::Over, 3));
}

TEST_F(Loaders, AFlexibleCompany) {
    run(u"UPDATE M01_CorpInfo SET F_WorkStyle = 1, F_RoundMethod = 1"_q);
    ASSERT_TRUE(load());
    EXPECT_EQ(rules.plngStandardTime(), 450min);
    EXPECT_EQ(rules.plngRoundHour, 1);
    EXPECT_EQ(rules.plngCountUnit, 1) << "rounding by the month shows hours and minutes";
    EXPECT_TRUE(has(DayType::Weekday, BandKind::Core, 0) && has(DayType::Weekday, BandKind::Core, 2));
    EXPECT_FALSE(has(DayType::Weekday, BandKind::Work, 0) || has(DayType::Weekday, BandKind::LegalOver, 0));
    EXPECT_TRUE(has(DayType::Weekday, BandKind::Flex, 0));
    EXPECT_FALSE(has(DayType::Weekday, BandKind::Flex, 2)) << "a gap ends the flexible bands";
    EXPECT_TRUE(has(DayType::AmHoliday, BandKind::Work, 0)) << "its own switch is off";
}

TEST_F(Loaders, HalfDaysThatTheCompanyLacksAreNotRead) {
    run(u"UPDATE M01_CorpInfo SET F_AmHolidayWork = Null, F_PmHolidayWork = 0"_q);
    run(u"DELETE * FROM M04_HolidayStyle"_q);
    ASSERT_TRUE(load());
    EXPECT_EQ(rules.plngAmHolidayWork, 0);
    EXPECT_FALSE(has(DayType::AmHoliday, BandKind::Work, 0) || has(DayType::PmHoliday, BandKind::Work, 0));
}

TEST_F(Loaders, FaultsOfTheSettingsAreTold) {
    for (const QStringList& row : rowsOf(R"(
M01_CorpInfo SET F_RoundLeave = Null         | 時間計算方法設定に不備があります。/n管理者に勤務形態設定
M01_CorpInfo SET F_AmFlex = True, F_AmFlexStandard = Null | 勤務形態設定に不備があります。
M01_CorpInfo SET F_WorkStyle = Null          | 勤務形態設定に不備があります。/n管理者に勤務形態設定
M01_CorpInfo SET F_RoundUnit = 0             | 端数処理単位が設定されていません。
M02_StaffInfo SET F_CloseDay = Null          | 社員設定に不備があります。/n管理者に社員設定
M02_StaffInfo SET F_CloseDay = 28            | タイムカード締日に不正な日付
M02_StaffInfo SET F_Weekday = 99             | 平日勤務時間設定に不備があります。/n管理者に勤務時間設定
M03_WeekdayStyle SET F_EndWork0 = Null       | 平日勤務時間で就業時間が設定されていません。
M03_WeekdayStyle SET F_EndWork0 = '08:00'    | 勤務終了時刻が開始時刻より前
M06_PmHolidayStyle SET F_StartWork0 = Null   | 午後休日勤務時間で就業時間が設定されていません。
)")) {
        const Transaction undone(connection);
        run(u"UPDATE "_q + row[0]);
        desk.prompts.expect(row[1]);
        EXPECT_FALSE(load()) << row[0];
    }
    run(u"UPDATE M01_CorpInfo SET F_WorkStyle = 1"_q);
    run(u"UPDATE M03_WeekdayStyle SET F_StartFlex0 = Null"_q);
    desk.prompts.expect(u"平日勤務時間でフレキシブルタイムが設定されていません。"_q);
    EXPECT_FALSE(load());
    run(u"DELETE * FROM M01_CorpInfo"_q);
    desk.prompts.expect(u"勤務形態設定に不備があります。"_q);
    EXPECT_FALSE(load());
}

} // namespace kurbo::test
