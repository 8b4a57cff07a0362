#include "settings/people/staff_settings.h"

#include "base/failure.h"
#include "month/loaders.h"
#include "support/sample_company.h"

#include <functional>

namespace kurbo::test {
namespace {

class StaffSettingsTest : public SampleCompany {
  protected:
    StaffSettingsTest() {
        for (const char* day : {"M04_HolidayStyle (F_HolidayCode", "M05_AmHolidayStyle (F_AmHolidayCode",
                                "M06_PmHolidayStyle (F_PmHolidayCode"})
            connection.execute(u"INSERT INTO %1) VALUES (1)"_q.arg(QLatin1String(day)));
        connection.execute(u"INSERT INTO M07_AdjustHours (F_AdjustCode, F_AdjustName) VALUES (9, '無')"_q);
        readCompanyStyle(connection, style);
        good = ShowStaff(connection, u"1001"_q, style);
        good.texts = {u"abc123"_q, u"20"_q, u"1.5"_q, QString(), u"30"_q};
        good.codes = {u"1"_q, u"1"_q, u"1"_q, u"1"_q, u"9"_q, u"1"_q};
    }
    [[nodiscard]] QString refusal(const StaffSettings& settings) {
        return refusalOf([&] { checkStaffSettings(settings, style); });
    }
    [[nodiscard]] QString stored(const QString& field, const QString& staff = QStringLiteral("1001")) {
        return asked(u"SELECT %1 FROM M02_StaffInfo WHERE (F_StaffCode = '%2')"_q.arg(field, staff));
    }

    clsWorkTime style;
    StaffSettings good;
};

TEST_F(StaffSettingsTest, TheFirstRuleThatFailsIsTold) {
    struct Case {
        StaffSettings::Field field;
        QString text;
        QString message;
    };
    const QString password = u"パスワードが不正です。パスワードは半角英数字10文字以内で入力します。"_q;
    const QString closeDay = u"タイムカード締日が不正です。タイムカード締日は1～27, 31(末締は31)の範囲で入力します。"_q;
    for (const Case& wrong : {
             Case{StaffSettings::Password, u" "_q, u"パスワードが入力されていません。"_q},
             Case{StaffSettings::Password, u"abcde123456"_q, password},
             Case{StaffSettings::Password, u"ａ"_q, password},
             Case{StaffSettings::Password, u"abcde12345"_q, {}},
             Case{StaffSettings::CloseDay, {}, u"締日が入力されていません。"_q},
             Case{StaffSettings::CloseDay, u"28"_q, closeDay},
             Case{StaffSettings::CloseDay, u"0"_q, closeDay},
             Case{StaffSettings::CloseDay, u"31"_q, {}},
             Case{StaffSettings::Paid, {}, u"有給休暇残数が入力されていません。"_q},
             Case{StaffSettings::Paid, u"x"_q, u"有給休暇残数が不正です。数値を入力して下さい。"_q},
             Case{StaffSettings::Paid, u"-1.5"_q, {}},
             Case{StaffSettings::EnterDelay, u"1000"_q,
                  u"出社時刻調整時間が不正です。出社時刻調整時間は0～999(秒)の範囲で入力します。"_q},
             Case{StaffSettings::LeaveGain, u"-1"_q,
                  u"退社時刻調整時間が不正です。退社時刻調整時間は0～999(秒)の範囲で入力します。"_q},
         }) {
        StaffSettings settings = good;
        settings.texts[wrong.field] = wrong.text;
        EXPECT_EQ(refusal(settings), wrong.message) << wrong.text;
    }
    EXPECT_EQ(staffFieldRefusal(StaffSettings::CloseDay, u"30"_q),
              u"不正な入力です。タイムカード締日は1～27, 31(末締は31)の範囲で入力します。"_q);
}

TEST_F(StaffSettingsTest, ChoicesAreNeededWhereTheCompanyHasThem) {
    const QStringList messages{u"平日勤務形態"_q,     u"休日勤務形態"_q, u"午前休日勤務形態"_q,
                               u"午後休日勤務形態"_q, u"時間調整方法"_q, u"アクセス権"_q};
    for (std::size_t i = 0; i < StaffSettings::choices; ++i) {
        StaffSettings settings = good;
        settings.codes[i].clear();
        EXPECT_EQ(refusal(settings), messages[static_cast<int>(i)] + u"が入力されていません。"_q);
    }
    style.plngAmHolidayWork = 0;
    StaffSettings settings = good;
    settings.codes[StaffSettings::AmHoliday].clear();
    EXPECT_EQ(refusal(settings), QString());
    connection.execute(u"UPDATE M02_StaffInfo SET F_AmHoliday = 7 WHERE (F_StaffCode = '1001')"_q);
    UpdateStaff(connection, u"1001"_q, settings, style);
    EXPECT_EQ(stored(u"F_AmHoliday"_q), u"7"_q);
}

TEST_F(StaffSettingsTest, TheFirstUpdateMakesTheRow) {
    DeleteStaff(connection, u"1001"_q);
    EXPECT_EQ(ShowStaff(connection, u"1001"_q, style).texts[StaffSettings::CloseDay], QString());
    good.texts[StaffSettings::Paid] = u"12.3"_q;
    UpdateStaff(connection, u"1001"_q, good, style);
    const StaffSettings read = ShowStaff(connection, u"1001"_q, style);
    EXPECT_EQ(read.texts, (std::array<QString, 5>{u"abc123"_q, u"20"_q, u"12.3"_q, u"0"_q, u"30"_q}));
    EXPECT_EQ(read.codes, good.codes);

    // What another administrator has taken away meanwhile can't be given.
    good.codes[StaffSettings::Adjust] = u"8"_q;
    good.texts[StaffSettings::CloseDay] = u"5"_q;
    EXPECT_THROW(UpdateStaff(connection, u"1001"_q, good, style), Complaint);
    EXPECT_EQ(stored(u"F_CloseDay"_q), u"20"_q);
    EXPECT_THROW(UpdateStaff(connection, u"9999"_q, good, style), Complaint);
    EXPECT_EQ(stored(u"F_CloseDay"_q, u"9999"_q), QString());
}

TEST_F(StaffSettingsTest, ButtonsStepAroundTheEnds) {
    struct Case {
        StaffSettings::Field field;
        const char16_t* from;
        const char16_t* up;
        const char16_t* down;
    };
    for (const Case& step :
         {Case{StaffSettings::CloseDay, u"1", u"2", u"31"}, Case{StaffSettings::CloseDay, u"26", u"27", u"25"},
          Case{StaffSettings::CloseDay, u"27", u"31", u"26"}, Case{StaffSettings::CloseDay, u"29", u"31", u"27"},
          Case{StaffSettings::CloseDay, u"31", u"1", u"27"}, Case{StaffSettings::CloseDay, u"x", u"1", u"31"},
          Case{StaffSettings::Paid, u"0.3", u"0.8", u"0"}, Case{StaffSettings::Paid, u"", u"0", u"0"},
          Case{StaffSettings::Paid, u"10", u"10.5", u"9.5"}, Case{StaffSettings::EnterDelay, u"999", u"0", u"998"},
          Case{StaffSettings::LeaveGain, u"0", u"1", u"999"}, Case{StaffSettings::LeaveGain, u"", u"0", u"999"}}) {
        const QString from = QString::fromUtf16(step.from);
        EXPECT_EQ(stepped(step.field, from, true), QString::fromUtf16(step.up)) << from;
        EXPECT_EQ(stepped(step.field, from, false), QString::fromUtf16(step.down)) << from;
    }
}

TEST_F(StaffSettingsTest, TheListingNeverTellsAPassword) {
    const QStringList lines = staffListing({u"S01"_q, u"総務部"_q}, {u"1001"_q, u"山田"_q}, good);
    EXPECT_EQ(lines.mid(0, 3),
              QStringList({u"  部課：S01 (総務部)"_q, u"  氏名：1001 (山田)"_q, u"         ﾊﾟｽﾜｰﾄﾞ：******"_q}));
    EXPECT_FALSE(lines.join(u' ').contains(u"abc123"_q));
    EXPECT_EQ(lines.last(), u"          ｱｸｾｽ権：1"_q);
}

} // namespace
} // namespace kurbo::test
