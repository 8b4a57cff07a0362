#include "session/setup_order.h"

#include "store/access.h"
#include "store/readers.h"

#include <array>

namespace kurbo {
namespace {

// A set-up test under its own name: whether the statement gives a row.
struct Test {
    const char16_t* name;
    const char16_t* statement;
};

constexpr Test corp{.name = u"IsCorpOK", .statement = u"SELECT F_Corp FROM C01_Corp;"};
constexpr Test section{
    .name = u"IsSectionOK",
    .statement = u"SELECT F_SectionCode FROM C02_Section WHERE (F_SectionName <> '新しい部課');",
};
constexpr Test staff{
    .name = u"IsStaffOK",
    .statement = u"SELECT F_StaffCode FROM C03_Staff WHERE (F_StaffName <> '新しい社員') "
                 u"AND (F_StaffName <> 'ADMIN');",
};
constexpr Test workStyle{.name = u"IsWorkStyleOK", .statement = u"SELECT F_WorkStyle FROM M01_CorpInfo;"};
constexpr Test workTime{
    .name = u"IsWorkTimeOK",
    .statement = u"SELECT F_WeekdayCode FROM M03_WeekdayStyle WHERE (F_WeekdayName <> '新しい勤務時間');",
};
constexpr Test adjust{
    .name = u"IsAdjustOK",
    .statement = u"SELECT F_AdjustCode FROM M07_AdjustHours WHERE (F_AdjustName <> '新しい時間調整');",
};
constexpr Test access{
    .name = u"IsAccessOK",
    .statement = u"SELECT F_AccessCode FROM M08_Access WHERE (F_AccessName <> '新しいアクセス権');",
};

// Nothing after a failure, which is reported.
std::optional<bool> passes(const Context& context, Connection& connection, const Test& test) {
    return guarded(context, u"frmLogin", test.name, std::optional<bool>(),
                   [&] { return connection.hasRow(QString::fromUtf16(test.statement)); });
}

struct Step {
    Setting setting;
    const Test& test;
    const char16_t* problem;
    const char16_t* advice;
};

constexpr std::array steps{
    Step{.setting = Setting::Section,
         .test = corp,
         .problem = u"会社情報が登録されていません。",
         .advice = u"会社情報を登録してから、部課情報を登録して下さい。"},
    Step{.setting = Setting::Staff,
         .test = section,
         .problem = u"部課情報が登録されていません。",
         .advice = u"部課情報を登録してから、社員情報を登録して下さい。"},
    Step{.setting = Setting::WorkStyle,
         .test = staff,
         .problem = u"社員情報が登録されていません。",
         .advice = u"社員情報を登録してから、勤務形態を設定して下さい。"},
    Step{.setting = Setting::WorkTime,
         .test = workStyle,
         .problem = u"勤務形態が設定されていません。",
         .advice = u"勤務形態を設定してから、勤務時間を設定して下さい。"},
    Step{.setting = Setting::Access,
         .test = workTime,
         .problem = u"勤務時間が設定されていません。",
         .advice = u"勤務時間を設定してから、アクセス権を設定して下さい。"},
    Step{.setting = Setting::Access,
         .test = adjust,
         .problem = u"時間調整が設定されていません。",
         .advice = u"時間調整を設定してから、アクセス権を設定して下さい。"},
    Step{.setting = Setting::User,
         .test = access,
         .problem = u"アクセス権が設定されていません。",
         .advice = u"アクセス権を設定してから、社員設定を行って下さい。"},
    Step{.setting = Setting::Calendar,
         .test = workStyle,
         .problem = u"勤務形態が設定されていません。",
         .advice = u"勤務形態を設定してから、カレンダーを設定して下さい。"},
};

} // namespace

bool settingAllowed(const Context& context, Connection& connection, Setting setting) {
    // The first setting opens in any case; on a new site the order is told.
    if (setting == Setting::Corp) {
        if (!passes(context, connection, corp).value_or(true))
            context.prompts.inform(
                QStringLiteral("設定メニューの表示順序に従い、会社情報登録から順次設定を行って下さい。"));
        return true;
    }
    for (const Step& step : steps) {
        if (step.setting != setting) continue;
        const auto passed = passes(context, connection, step.test);
        if (passed == true) continue;
        if (passed) context.prompts.exclaim(lines(QString::fromUtf16(step.problem), QString::fromUtf16(step.advice)));
        return false;
    }
    return true;
}

void greetNewSite(const Context& context, Connection& connection) {
    const bool isNew = guarded(context, u"frmLogin", u"Form_Load", false, [&] {
        const QString first = QStringLiteral("ADMIN");
        return !connection.hasRow(QString::fromUtf16(staff.statement)) && isPasswordOf(connection, first, first);
    });
    if (!isNew) return;
    context.prompts.inform(
        lines(QStringLiteral("新しいデータベースです。はじめに、管理者でログインして設定を行って下さい。"),
              QStringLiteral("部課を空のままにして、氏名に ADMIN、パスワードに ADMIN と入力します。"),
              QStringLiteral("ログインしたら、最初にパスワードを変更して下さい。")));
}

bool cardAllowed(const Context& context, Connection& connection) {
    constexpr int fewestDays = 31;
    const auto first = GetFirstDate(context, connection);
    if (!first) return false;
    const int days = ExistCalendar(context, connection, *first, addMonths(*first, 1) - std::chrono::days(1));
    if (days >= 0 && days < fewestDays) context.prompts.exclaim(noCalendarText());
    return days >= fewestDays;
}

bool moveAllowed(const Context& context, Connection& connection) {
    const auto first = GetFirstDate(context, connection);
    if (!first) return false;
    if (*first != context.clock.today()) return true;
    context.prompts.exclaim(QStringLiteral("移動するデータがありません。"));
    return false;
}

void warnOfOldRecords(const Context& context, Connection& connection) {
    constexpr int year = 365;
    if (RecordedDays(context, connection) > year)
        context.prompts.inform(lines(QStringLiteral("レコード数が１年分を超えています。"),
                                     QStringLiteral("管理者にデータ移動を依頼して下さい。")));
}

} // namespace kurbo
