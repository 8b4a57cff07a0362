#include "settings/work_time/time_texts.h"

#include "base/day.h"
#include "base/failure.h"
#include "base/field_tests.h"
#include "base/numbers.h"

namespace kurbo {

std::optional<int> minuteOfDay(const QString& text) {
    const auto clock = parseClock(text);
    if (!clock || clock->count() % 60 != 0) return {};
    return static_cast<int>(clock->count() / 60);
}

QString asBandTime(const QString& text) {
    const auto minute = minuteOfDay(text);
    if (!minute) return text;
    const auto two = [](int number) { return QString::number(number).rightJustified(2, u'0'); };
    return two(*minute / 60) + u':' + two(*minute % 60);
}

QString timeDemand() {
    return QStringLiteral("時刻をhh:mm形式(00:00～23:59)で入力して下さい。");
}

QString orderDemand(const QString& start, const QString& end, bool late) {
    const QString demand = QStringLiteral("終了時刻を開始時刻以降に設定して下さい。");
    if (!late || minuteOfDay(end) == minuteOfDay(start)) return demand;
    return lines(demand, QStringLiteral("翌日にまたがる時間帯は、%1～00:00 と 00:00～%2 の二つに分けて入力します。")
                             .arg(asBandTime(start), asBandTime(end)));
}

bool isBehind(const QString& end, const QString& start) {
    return minuteOfDay(end) == 0 || minuteOfDay(end) > minuteOfDay(start);
}

bool isLimit(const QString& text) {
    constexpr int shortest = 4;
    constexpr int mostMinutes = 59;
    const qsizetype colon = text.size() - 3;
    const QString minutes = text.right(2);
    return text.size() >= shortest && text.indexOf(u':') == colon &&
           IsIntegerText(text.left(colon), IntegerMode::NotNegative) &&
           IsIntegerText(minutes, IntegerMode::NotNegative) && *numberOf(minutes) <= mostMinutes;
}

} // namespace kurbo
