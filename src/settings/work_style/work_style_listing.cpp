#include "settings/work_style/work_style.h"

namespace kurbo {
namespace {

constexpr std::array displayWords{
    u"      標準時間との差：", u"      法定内残業時間：", u"        普通残業時間：", u"        深夜残業時間：",
    u"        早出勤務時間：", u"        休日出勤時間：", u"        休日深夜時間：", u"    法定休日出勤時間：",
    u"    法定休日深夜時間：", u"            欠勤時間：", u"    有給休暇取得日数：", u"    特別休暇取得日数：",
    u"        代休取得日数：", u"            欠勤回数：", u"            遅刻回数：", u"            早退回数："};
static_assert(displayWords.size() == WorkStyle::displays);

QString flexText(const QString& standard) {
    return QStringLiteral("ﾌﾚｯｸｽ勤務 (標準労働時間：%1)").arg(standard);
}

QStringList halfDayLines(const QString& name, const WorkStyle::HalfDay& half, const QString& first) {
    const QString label = QStringLiteral("        %1勤務：").arg(name);
    if (!half.exists) return {label + QStringLiteral("無")};
    const QStringList works{first, QStringLiteral("休日出勤扱い"), QStringLiteral("ｶｳﾝﾄしない")};
    return {label + (half.flex ? flexText(half.standard) : QStringLiteral("普通勤務")),
            QStringLiteral("  %1勤務の取扱：").arg(name) + works.value(half.work)};
}

QStringList roundingLines(const WorkStyle& style) {
    const auto direction = [](const QString& name, int up) {
        return QStringLiteral("            %1：%2")
            .arg(name, up == 0 ? QStringLiteral("切捨") : QStringLiteral("切上"));
    };
    if (style.byMonth)
        return {QStringLiteral("        端数処理方法：1ヶ月単位"),
                direction(QStringLiteral("労働時間"), style.roundHour)};
    return {QStringLiteral("        端数処理方法：1日単位"), direction(QStringLiteral("出社時刻"), style.roundEnter),
            direction(QStringLiteral("退社時刻"), style.roundLeave)};
}

} // namespace

QStringList workStyleListing(const WorkStyle& style) {
    QStringList listing{QStringLiteral("            平日勤務：") +
                        (style.flex ? flexText(style.standard) : QStringLiteral("普通勤務"))};
    listing += halfDayLines(QStringLiteral("午前休日"), style.am, QStringLiteral("早出勤務扱い"));
    listing += halfDayLines(QStringLiteral("午後休日"), style.pm, QStringLiteral("残業扱い"));
    listing += roundingLines(style);
    listing.append(QStringLiteral("    端数処理単位(分)：") + style.roundUnit);
    listing.append(QStringLiteral("            時間表示：%1進法表示").arg(style.countUnit == 0 ? 10 : 60));
    const std::size_t unused = style.flex ? WorkStyle::legalOver : WorkStyle::diff;
    for (std::size_t item = 0; item < displayWords.size(); ++item)
        if (item != unused)
            listing.append(QString::fromUtf16(displayWords[item]) +
                           (style.display[item] ? QStringLiteral("表示する") : QStringLiteral("表示しない")));
    return listing;
}

} // namespace kurbo
