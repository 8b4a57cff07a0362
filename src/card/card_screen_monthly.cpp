#include "card/card_checks.h"
#include "card/card_screen.h"
#include "card/monthly.h"

namespace kurbo {

// One of the two approvals.
struct CardScreen::Mark {
    bool CardScreen::*given;
    bool (*store)(const Context&, Connection&, const QString& staff, Day end, bool approved);
};

// The record is that of the chosen month: another month's card is not saved there.
bool CardScreen::mayUpdateMonthly() const {
    return alive_ && !sheet.blnFileMode && periodOfMonth(year_, month_, rules_.plngCloseDay()) == period_ &&
           (monthUnsaved_ || sheet.blnMonthChanged);
}

bool CardScreen::mayApproveSuperior() const {
    return alive_ && approvable_ && client_.session.access.has(Right::WriteApproval);
}

// The period of the chosen month into the screen; false for a bad close day.
bool CardScreen::rebuildPeriod() {
    const auto period = periodOfMonth(year_, month_, rules_.plngCloseDay());
    if (period) setPeriod(*period);
    return period.has_value();
}

bool CardScreen::isCardSaved(const QString& demand) const {
    if (sheet.blnCardChanged)
        client_.context.prompts.exclaim(
            lines(QStringLiteral("タイムカードの追加・変更が保存されていません。"), demand));
    return !sheet.blnCardChanged;
}

// Missing punches warn and never forbid.
bool CardScreen::agreesWithMissing(const QString& question) const {
    const QString text =
        lines(question, QString(), QStringLiteral("よろしいですか？"), QString(), ListMissingPunch(sheet.grid));
    return client_.context.prompts.ask({{}, text, Icon::Question, Buttons::OkCancel, Answer::Ok}) == Answer::Ok;
}

bool CardScreen::adjust() {
    Prompts& prompts = client_.context.prompts;
    if (sheet.blnFileMode) {
        prompts.exclaim(QStringLiteral("タイムカードファイルを呼出した状態で時間調整はできません。"));
        return false;
    }
    if (!hasName() ||
        !isCardSaved(QStringLiteral("タイムカードの追加・変更を更新後、集計結果の調整を行って下さい。")) ||
        !agreesWithMissing(QStringLiteral("集計結果の調整を行います。")))
        return false;
    // A card of another range would give the chosen month sums that aren't its own.
    const auto period = periodOfMonth(year_, month_, rules_.plngCloseDay());
    const bool adjusted = period && (*period == period_ || redraw(*period)) &&
                          AdjustMonthly(client_.context, connection(), sheet, rules_, staff_);
    if (adjusted)
        setPeriod(*period);
    else
        prompts.exclaim(QStringLiteral("集計結果の調整に失敗しました。"));
    return adjusted;
}

bool CardScreen::updateMonthly() {
    if (!hasName() || !isCardSaved(QStringLiteral("タイムカードの追加・変更を更新後、月次更新を行って下さい。")) ||
        !CheckMonthly(client_.context, sheet, rules_) ||
        !agreesWithMissing(QStringLiteral("月次集計の最終保存データを更新します。")))
        return false;
    const auto period = periodOfMonth(year_, month_, rules_.plngCloseDay());
    if (!period || !UpdateMonthly(client_.context, connection(), sheet, rules_, {staff_, section_, *period})) {
        client_.context.prompts.exclaim(QStringLiteral("月次集計の最終保存データを更新できませんでした。"));
        return false;
    }
    setPeriod(*period);
    sheet.blnMonthChanged = monthUnsaved_ = false;
    personalApproval_ = superiorApproval_ = false;
    approvable_ = true;
    return true;
}

bool CardScreen::approvePersonal(bool approved, const QString& start, const QString& end) {
    return approve({&CardScreen::personalApproval_, &UpdatePersonal}, approved, start, end);
}

bool CardScreen::approveSuperior(bool approved, const QString& start, const QString& end) {
    return approve({&CardScreen::superiorApproval_, &UpdateSuperior}, approved, start, end);
}

bool CardScreen::approve(const Mark& mark, bool approved, const QString& start, const QString& end) {
    Prompts& prompts = client_.context.prompts;
    if (sheet.blnFileMode) {
        prompts.exclaim(QStringLiteral("タイムカードファイルを呼出した状態で承認はできません。"));
        return false;
    }
    if (!hasName() || !isCardSaved(QStringLiteral("タイムカードの追加・変更を更新後、承認を行って下さい。")))
        return false;
    const QString question = approved ? QStringLiteral("月次集計の最終保存データを承認します。")
                                      : QStringLiteral("月次集計の最終保存データの承認を取り消します。");
    if (prompts.ask({{},
                     lines(question, QString(), QStringLiteral("よろしいですか？")),
                     Icon::Question,
                     Buttons::OkCancel,
                     approved ? Answer::Ok : Answer::Cancel}) != Answer::Ok)
        return false;
    const bool dated = parseSlashDate(start) && parseSlashDate(end);
    if ((dated || rebuildPeriod()) && storeMark(mark, approved)) return true;
    prompts.exclaim(approved ? QStringLiteral("月次集計の最終保存データの承認に失敗しました。")
                             : QStringLiteral("月次集計の最終保存データの承認取り消しに失敗しました。"));
    return false;
}

bool CardScreen::storeMark(const Mark& mark, bool approved) {
    const bool stored = mark.store(client_.context, connection(), staff_, period_.to, approved);
    if (stored) this->*mark.given = approved;
    return stored;
}

} // namespace kurbo
