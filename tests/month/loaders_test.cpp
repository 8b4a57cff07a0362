#include "month/loaders.h"

#include "support/sample_company.h"

namespace kurbo::test {
namespace {

class Loaders : public SampleCompany {
  protected:
    Loaders() {
        run(u"DELETE * FROM M01_CorpInfo"_q);
        run(u"INSERT INTO M01_CorpInfo (F_WorkStyle, F_FlexStandard, F_AmHolidayWork, F_AmFlexStandard, "
            u"F_PmHolidayWork, "
            "F_RoundMethod, F_RoundEnter, F_RoundLeave, F_RoundHour, F_RoundUnit, F_CountUnit, F_Diff, F_Early) "
            "VALUES (0, '07:30', 2, '04:00', 3, 0, 0, 1, 1, 15, 0, True, True)"_q);
        run(u"UPDATE M02_StaffInfo SET F_AmHoliday = 1, F_PmHoliday = 1"_q);
        run(u"DELETE * FROM M03_WeekdayStyle WHERE F_WeekdayCode = 1"_q);
        run(u"INSERT INTO M03_WeekdayStyle (F_WeekdayCode, F_WeekdayName, F_StartWork0, F_EndWork0, F_StartWork2, "
            u"F_EndWork2, "
            "F_StartFlex0, F_EndFlex0, F_StartFlex2, F_EndFlex2, F_StartLegalOver0, F_EndLegalOver0, F_StartOver0, "
            "F_EndOver0, F_StartOver2, F_EndOver2, F_StartEarly0) VALUES (1, '日勤', '09:00', '12:00', '13:00', "
            "'17:30', "
            "'07:00', '09:00', '18:00', '20:00', '17:30', '18:00', '18:00', '22:00', '22:00', '00:00', '05:00')"_q);
        run(u"INSERT INTO M04_HolidayStyle (F_HolidayCode, F_StartWork1, F_EndWork1) VALUES (1, '09:00', '17:00')"_q);
        run(u"INSERT INTO M05_AmHolidayStyle (F_AmHolidayCode, F_StartWork0, F_EndWork0, F_StartEarly1, F_EndEarly1) "
            "VALUES (1, '13:00', '17:30', '06:00', '08:00')"_q);
        run(u"INSERT INTO M06_PmHolidayStyle (F_PmHolidayCode, F_StartWork0, F_EndWork0, F_StartOver3, F_EndOver3) "
            "VALUES (1, '09:00', '12:00', '15:00', '16:00')"_q);
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
    EXPECT_FALSE(rules.pbleFlexTime);
    EXPECT_EQ(rules.plngAmHolidayWork, 2);
    EXPECT_EQ(rules.plngPmHolidayWork, 3);
    EXPECT_EQ(rules.plngRoundEnter, 0);
    EXPECT_EQ(rules.plngRoundLeave, 1);
    EXPECT_EQ(rules.plngRoundHour, 0) << "not read";
    EXPECT_EQ(rules.plngRoundUnit(), 15min);
    EXPECT_EQ(rules.plngCountUnit, 0);
    EXPECT_TRUE(rules.pbleEnableDiff && rules.pbleEnableEarly && !rules.pbleEnableOver);
    EXPECT_EQ(rules.plngEnterDelay, 30s);
    EXPECT_EQ(rules.plngLeaveGain, 60s);
    EXPECT_EQ(rules.psngPaidTotal, 20.0F);
    EXPECT_TRUE(has(DayType::Weekday, BandKind::Work, 0));
    EXPECT_FALSE(has(DayType::Weekday, BandKind::Work, 2)) << "a gap ends the work bands";
    EXPECT_TRUE(has(DayType::Weekday, BandKind::Over, 2)) << "and is skipped in the others";
    EXPECT_FALSE(has(DayType::Weekday, BandKind::Flex, 0));
    EXPECT_FALSE(has(DayType::Weekday, BandKind::Early, 0)) << "half a pair";
    EXPECT_TRUE(has(DayType::Weekday, BandKind::LegalOver, 0));
    EXPECT_TRUE(has(DayType::Holiday, BandKind::Work, 1));
    EXPECT_TRUE(has(DayType::AmHoliday, BandKind::Early, 1));
    EXPECT_TRUE(has(DayType::PmHoliday, BandKind::Over, 3));
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
    struct Case {
        const char16_t* change;
        const char16_t* fault;
    };
    for (const auto& [change, fault] :
         {Case{u"M01_CorpInfo SET F_RoundLeave = Null", u"時間計算方法設定に不備があります。\r\n管理者に勤務形態設定"},
          Case{u"M01_CorpInfo SET F_CountUnit = Null", u"時間計算方法設定に不備があります。"},
          Case{u"M01_CorpInfo SET F_AmFlex = True, F_AmFlexStandard = Null", u"勤務形態設定に不備があります。"},
          Case{u"M01_CorpInfo SET F_WorkStyle = Null", u"勤務形態設定に不備があります。\r\n管理者に勤務形態設定"},
          Case{u"M01_CorpInfo SET F_RoundUnit = 0", u"端数処理単位が設定されていません。"},
          Case{u"M02_StaffInfo SET F_CloseDay = Null", u"社員設定に不備があります。\r\n管理者に社員設定"},
          Case{u"M02_StaffInfo SET F_CloseDay = 28", u"タイムカード締日に不正な日付"},
          Case{u"M02_StaffInfo SET F_Weekday = 99", u"平日勤務時間設定に不備があります。\r\n管理者に勤務時間設定"},
          Case{u"M03_WeekdayStyle SET F_EndWork0 = Null", u"平日勤務時間で就業時間が設定されていません。"},
          Case{u"M03_WeekdayStyle SET F_EndWork0 = '08:00'", u"勤務終了時刻が開始時刻より前"},
          Case{u"M06_PmHolidayStyle SET F_StartWork0 = Null", u"午後休日勤務時間で就業時間が設定されていません。"}}) {
        const Transaction undone(connection);
        run(u"UPDATE "_q + QString::fromUtf16(change));
        desk.prompts.expect(QString::fromUtf16(fault));
        EXPECT_FALSE(load()) << QString::fromUtf16(change);
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
