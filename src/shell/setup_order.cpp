#include "shell/setup_order.h"

#include "store/readers.h"

#include <array>

namespace kurbo {
namespace {

bool anyRow(const Context& context, Connection& connection, QStringView procedure, const QString& statement) {
    return guarded(context, u"frmLogin", procedure, false, [&] { return connection.hasRow(statement); });
}

using Test = bool (*)(const Context&, Connection&);

struct Step {
    Setting setting;
    Test test;
    const char16_t* problem;
    const char16_t* advice;
};

constexpr std::array steps{
    Step{Setting::Section, IsCorpOK, u"会社情報が登録されていません。",
         u"会社情報を登録してから、部課情報を登録して下さい。"},
    Step{Setting::Staff, IsSectionOK, u"部課情報が登録されていません。",
         u"部課情報を登録してから、社員情報を登録して下さい。"},
    Step{Setting::WorkStyle, IsStaffOK, u"社員情報が登録されていません。",
         u"社員情報を登録してから、勤務形態を設定して下さい。"},
    Step{Setting::WorkTime, IsWorkStyleOK, u"勤務形態が設定されていません。",
         u"勤務形態を設定してから、勤務時間を設定して下さい。"},
    Step{Setting::Access, IsWorkTimeOK, u"勤務時間が設定されていません。",
         u"勤務時間を設定してから、アクセス権を設定して下さい。"},
    Step{Setting::Access, IsAdjustOK, u"時間調整が設定されていません。",
         u"時間調整を設定してから、アクセス権を設定して下さい。"},
    Step{Setting::User, IsAccessOK, u"アクセス権が設定されていません。",
         u"アクセス権を設定してから、社員設定を行って下さい。"},
    Step{Setting::Calendar, IsWorkStyleOK, u"勤務形態が設定されていません。",
         u"勤務形態を設定してから、カレンダーを設定して下さい。"},
};

} // namespace

bool IsCorpOK(const Context& context, Connection& connection) {
    return anyRow(context, connection, u"IsCorpOK", QStringLiteral("SELECT F_Corp FROM C01_Corp;"));
}

bool IsSectionOK(const Context& context, Connection& connection) {
    return anyRow(context, connection, u"IsSectionOK",
                  QStringLiteral("SELECT F_SectionCode FROM C02_Section WHERE (F_SectionName <> '新しい部課');"));
}

bool IsStaffOK(const Context& context, Connection& connection) {
    return anyRow(context, connection, u"IsStaffOK",
                  QStringLiteral("SELECT F_StaffCode FROM C03_Staff WHERE (F_StaffName <> '新しい社員') "
                                 "AND (F_StaffName <> 'ADMIN');"));
}

bool IsWorkStyleOK(const Context& context, Connection& connection) {
    return anyRow(context, connection, u"IsWorkStyleOK", QStringLiteral("SELECT F_WorkStyle FROM M01_CorpInfo;"));
}

bool IsWorkTimeOK(const Context& context, Connection& connection) {
    return anyRow(
        context, connection, u"IsWorkTimeOK",
        QStringLiteral("SELECT F_WeekdayCode FROM M03_WeekdayStyle WHERE (F_WeekdayName <> '新しい勤務時間');"));
}

bool IsAdjustOK(const Context& context, Connection& connection) {
    return anyRow(context, connection, u"IsAdjustOK",
                  QStringLiteral("SELECT F_AdjustCode FROM M07_AdjustHours WHERE (F_AdjustName <> '新しい時間調整');"));
}

bool IsAccessOK(const Context& context, Connection& connection) {
    return anyRow(context, connection, u"IsAccessOK",
                  QStringLiteral("SELECT F_AccessCode FROM M08_Access WHERE (F_AccessName <> '新しいアクセス権');"));
}

bool settingAllowed(const Context& context, Connection& connection, Setting setting) {
    // The first setting opens in any case; on a new site the order is told.
    if (setting == Setting::Corp) {
        if (!IsCorpOK(context, connection))
            context.prompts.inform(
                QStringLiteral("設定メニューの表示順序に従い、会社情報登録から順次設定を行って下さい。"));
        return true;
    }
    for (const Step& step : steps) {
        if (step.setting != setting || step.test(context, connection)) continue;
        context.prompts.exclaim(lines(QString::fromUtf16(step.problem), QString::fromUtf16(step.advice)));
        return false;
    }
    return true;
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
