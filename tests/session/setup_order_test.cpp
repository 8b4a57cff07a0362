#include "session/setup_order.h"

#include "store/file/database_file.h"
#include "support/sample_company.h"

namespace kurbo::test {
namespace {

// A fresh site, filled step by step.
class SetupOrder : public SampleCompany {
  protected:
    SetupOrder() {
        connection.close();
        createDatabase(desk.file(u"fresh.mdb"_q));
        connection.open(desk.file(u"fresh.mdb"_q), databasePassword());
    }
    bool allowed(Setting setting) { return settingAllowed(desk.context, connection, setting); }
};

} // namespace

TEST_F(SetupOrder, EachSettingNeedsTheOneBefore) {
    desk.prompts.expect(u"設定メニューの表示順序に従い"_q);
    EXPECT_TRUE(allowed(Setting::Corp)) << "opens all the same";
    EXPECT_EQ(desk.prompts.last().icon, Icon::Information);
    for (const auto& [setting, message, fill] :
         {std::tuple{Setting::Section, u"会社情報が登録されていません。\r\n会社情報を登録してから、部課"_q,
                     "C01_Corp (F_Corp) VALUES ('見本')"},
          {Setting::Staff, u"部課情報が登録されていません。\r\n"_q,
           "C02_Section (F_SectionCode, F_SectionName) VALUES ('S1', '総務')"},
          {Setting::WorkStyle, u"社員情報が登録されていません。\r\n"_q,
           "C03_Staff (F_StaffCode, F_StaffName) VALUES ('1', '山田')"},
          {Setting::Calendar, u"カレンダーを設定して下さい。"_q, "M01_CorpInfo (F_WorkStyle) VALUES (0)"},
          {Setting::Access, u"勤務時間が設定されていません。\r\n"_q,
           "M03_WeekdayStyle (F_WeekdayCode, F_WeekdayName) VALUES (1, '日勤')"},
          {Setting::Access, u"時間調整が設定されていません。\r\n"_q,
           "M07_AdjustHours (F_AdjustCode, F_AdjustName) VALUES (1, '通常')"},
          {Setting::User, u"アクセス権が設定されていません。\r\n"_q,
           "M08_Access (F_AccessCode, F_AccessName) VALUES (1, '一般')"}}) {
        desk.prompts.expect(message);
        EXPECT_FALSE(allowed(setting)) << message;
        EXPECT_EQ(desk.prompts.last().icon, Icon::Exclamation);
        connection.execute(u"INSERT INTO "_q + QString::fromUtf8(fill));
    }
    for (const Setting setting : {Setting::Corp, Setting::Section, Setting::Staff, Setting::WorkStyle,
                                  Setting::WorkTime, Setting::Access, Setting::User, Setting::Calendar})
        EXPECT_TRUE(allowed(setting));
    connection.close();
    desk.prompts.expect(u"エラー番号："_q);
    EXPECT_FALSE(allowed(Setting::User)) << "a failed test is reported once, and nothing is said to be missing";
    EXPECT_EQ(desk.prompts.last().title, u"Kurbo.Store－IsAccessOK"_q);
}

TEST_F(SetupOrder, ANewSiteIsToldOfItsAdministrator) {
    desk.prompts.expect(u"部課を空のままにして、氏名に ADMIN、パスワードに ADMIN と入力します。"_q);
    greetNewSite(desk.context, connection);
    EXPECT_EQ(desk.prompts.last().icon, Icon::Information);
    connection.execute(u"UPDATE M02_StaffInfo SET F_Password = 'other'"_q);
    greetNewSite(desk.context, connection);
    connection.execute(u"UPDATE M02_StaffInfo SET F_Password = 'ADMIN'"_q);
    connection.execute(u"INSERT INTO C03_Staff (F_StaffCode, F_StaffName) VALUES ('1', '山田')"_q);
    greetNewSite(desk.context, connection);
}

TEST_F(SetupOrder, TheCardNeedsMoreThanThirtyDaysInItsFirstMonth) {
    const auto fill = [this](Day from, int days) {
        connection.execute(u"DELETE * FROM T01_Calendar"_q);
        for (int i = 0; i < days; ++i) {
            const Day day = from + std::chrono::days(i);
            insert("T01_Calendar", "DateID, Date", u"%1, #%2#"_q.arg(dateId(day), slashDate(day)));
        }
    };
    desk.prompts.expect(u"カレンダーが作成されていません。"_q).expect(u"カレンダーが作成されていません。"_q);
    EXPECT_FALSE(cardAllowed(desk.context, connection)) << "an empty calendar";
    fill(*makeDay(2026, 4, 1), 365);
    EXPECT_FALSE(cardAllowed(desk.context, connection)) << "April has 30 days, however many follow";
    fill(*makeDay(2026, 1, 1), 31);
    EXPECT_TRUE(cardAllowed(desk.context, connection));
    EXPECT_TRUE(moveAllowed(desk.context, connection));
    fill(today, 1);
    desk.prompts.expect(u"移動するデータがありません。"_q);
    EXPECT_FALSE(moveAllowed(desk.context, connection));
}

} // namespace kurbo::test
