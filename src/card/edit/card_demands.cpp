#include "card/edit/card_demands.h"

#include "base/failure.h"

namespace kurbo {

QString planDemand() {
    return QStringLiteral("予定は全角15文字(半角30文字)以内で入力します。");
}

QString listDemand() {
    return QStringLiteral("リストから選択して下さい。");
}

QString enterDemand() {
    return lines(QStringLiteral("出社時刻はhh:mm形式(半角)で入力します。"),
                 QStringLiteral("例：8時48分に出社した場合は下記の様に入力します。"), QStringLiteral("    08:48"));
}

QString leaveDemand() {
    return lines(QStringLiteral("退社時刻はhh:mm形式(半角)で入力します。"),
                 QStringLiteral("例：18時12分に退社した場合は下記の様に入力します。"), QStringLiteral("    18:12"));
}

QString nextDayDemand() {
    return lines(QStringLiteral("勤務が翌日にまたがった場合の退社時刻には出社日の退社時刻"),
                 QStringLiteral("欄に(mm/dd)hh:mm形式(半角)で退社日付を加えて入力します。"),
                 QStringLiteral("例：1月30日からの勤務で翌1月31日の18:12に退社した場合は"),
                 QStringLiteral("1月30日の退社時刻欄に下記の様に入力します。"), QStringLiteral("    (01/31)18:12"));
}

} // namespace kurbo
