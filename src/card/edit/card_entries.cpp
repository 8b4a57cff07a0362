#include "card/edit/card_entries.h"

#include "base/system/code_page.h"
#include "screen/fields/field_tests.h"

namespace kurbo {

bool isPlanText(const QString& text) {
    constexpr int mostBytes = 30;
    return byteLength(text) <= mostBytes;
}

bool isLeaveWord(const QString& text) {
    return !leaveCode(text).isEmpty();
}

bool isNumberText(const QString& text) {
    return IsSingleByte(text) && isNumeric(text);
}

bool isHourText(const QString& text) {
    const qsizetype colon = text.size() - 3;
    return colon >= 0 && text[colon] == u':' && IsSingleByte(text) && IsIntegerText(text.left(colon)) &&
           IsIntegerText(text.right(2));
}

SumForm sumForm(CardColumn column, int countUnit) {
    const bool hours = column == CardColumn::Enter || (column >= CardColumn::LegalOver && column <= CardColumn::Absent);
    if (hours) return countUnit == 0 ? SumForm::Number : SumForm::Hours;
    return column >= CardColumn::Plan && column <= CardColumn::EarlyLeave ? SumForm::Number : SumForm::None;
}

bool isSum(SumForm form, const QString& text) {
    return form == SumForm::Hours ? isHourText(text) : form == SumForm::Number && isNumberText(text);
}

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

QString sumDemand(SumForm form) {
    if (form == SumForm::Number) return QStringLiteral("数値(半角)を入力して下さい。");
    return lines(QStringLiteral("時間を入力して下さい。"), QStringLiteral("時間はh:mm形式(半角)で入力します。"),
                 QStringLiteral("例：30時間30分の場合は下記の様に入力します。"), QStringLiteral("    30:30"));
}

} // namespace kurbo
