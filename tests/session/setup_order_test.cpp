#include "session/setup_order.h"

#include "store/file/database_file.h"
#include "support/sample_company.h"
#include "support/table.h"

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
    const QMap<QString, Setting> settings{{u"Section"_q, Setting::Section},     {u"Staff"_q, Setting::Staff},
                                          {u"WorkStyle"_q, Setting::WorkStyle}, {u"Calendar"_q, Setting::Calendar},
                                          {u"Access"_q, Setting::Access},       {u"User"_q, Setting::User}};
    for (const QStringList& row : rowsOf(R"(
Section   | 会社情報が登録されていません。/n会社情報を登録してから、部課 | C01_Corp (F_Corp) VALUES ('見本')
Staff     | 部課情報が登録されていません。/n   | C02_Section (F_SectionCode, F_SectionName) VALUES ('S1', '総務')
WorkStyle | 社員情報が登録されていません。/n   | C03_Staff (F_StaffCode, F_StaffName) VALUES ('1', '山田')
Calendar  | カレンダーを設定して下さい。       | M01_CorpInfo (F_WorkStyle) VALUES (0)
Access    | 勤務時間が設定されていません。/n   | M03_WeekdayStyle (F_WeekdayCode, F_WeekdayName) VALUES (1, '日勤')
Access    | 時間調整が設定されていません。/n   | M07_AdjustHours (F_AdjustCode, F_AdjustName) VALUES (1, '通常')
User      | アクセス権が設定されていません。/n | M08_Access (F_AccessCode, F_AccessName) VALUES (1, '一般')
)")) {
        desk.prompts.expect(row[1]);
        EXPECT_FALSE(allowed(settings[row[0]])) << row[1];
        connection.execute(u"INSERT INTO "_q + row[2]);
    }
    for (const Setting setting : {Setting::Corp, Setting::Section, Setting::Staff, Setting::WorkStyle,
                                  Setting::WorkTime, Setting::Access, Setting::User, Setting::Calendar})
        EXPECT_TRUE(allowed(setting));
    connection.close();
    desk.prompts.expect(u"エラー番号："_q);
    EXPECT_FALSE(allowed(Setting::User)) << "a failed test is reported once, and nothing is said to be missing";
}

TEST_F(SetupOrder, TheCardNeedsMoreThanThirtyDaysInItsFirstMonth) {
    desk.prompts.expect(u"カレンダーが作成されていません。"_q).expect(u"移動するデータがありません。"_q);
    const auto fill = [this](Day from, int days) {
        connection.execute(u"DELETE * FROM T01_Calendar"_q);
        for (Day day = from; day < from + std::chrono::days(days); day += std::chrono::days(1))
            insert("T01_Calendar", "DateID, Date", u"%1, #%2#"_q.arg(dateId(day), slashDate(day)));
    };
    fill(*makeDay(2026, 4, 1), 365);
    EXPECT_FALSE(cardAllowed(desk.context, connection)) << "April has 30 days, however many follow";
    fill(*makeDay(2026, 1, 1), 31);
    EXPECT_TRUE(cardAllowed(desk.context, connection) && moveAllowed(desk.context, connection));
    fill(today, 1);
    EXPECT_FALSE(moveAllowed(desk.context, connection));
}

} // namespace kurbo::test
