#include "card/card_grid.h"
#include "card/card_screen.h"
#include "card/edit/card_checks.h"
#include "card/monthly.h"
#include "month/loaders.h"

#include <algorithm>

namespace kurbo {
namespace {

bool isFinalEmpty(const CardSheet& sheet) {
    return std::ranges::all_of(sheet.finals, [](const FigureEntry& figure) { return figure.value.isNull(); });
}

} // namespace

// One of the two approvals.
struct CardScreen::Mark {
    bool CardScreen::*given;
    bool (*store)(const Context&, Connection&, const QString& staff, Day end, bool approved);
};

bool CardScreen::showsOwnMonth() const {
    return isCardShown() && wholePeriod_ && periodOfMonth(year_, month_, rules_.plngCloseDay()) == drawn_;
}

// The record is that of the chosen month: sums of other days would stand there as its own.
bool CardScreen::isOwnMonth(const QString& command) const {
    if (!showsOwnMonth())
        client_.context.prompts.exclaim(
            lines(QStringLiteral("選択した月の期間が表示されていないため、%1はできません。").arg(command),
                  QStringLiteral("締日を過ぎた月を選択してから、やり直して下さい。")));
    return showsOwnMonth();
}

bool CardScreen::mayUpdateMonthly() const {
    return showsOwnMonth() && !sheet.blnFileMode && (monthUnsaved_ || sheet.blnMonthChanged);
}

bool CardScreen::mayApproveSuperior() const {
    return isCardShown() && approvable_ && client_.session.access.has(Right::WriteApproval);
}

bool CardScreen::isCardSaved(const QString& demand) const {
    if (sheet.blnCardChanged)
        client_.context.prompts.exclaim(
            lines(QStringLiteral("タイムカードの追加・変更が保存されていません。"), demand));
    return !sheet.blnCardChanged;
}

// Missing punches warn and never forbid.
bool CardScreen::agreesWithMissing(const QString& question, Answer preset) const {
    const QString text =
        lines(question, QString(), QStringLiteral("よろしいですか？"), QString(), ListMissingPunch(sheet));
    return client_.context.prompts.ask({{}, text, Icon::Question, Buttons::OkCancel, preset}) == Answer::Ok;
}

bool CardScreen::agreesToSave() const {
    const QString question = QStringLiteral("月次集計の最終保存データを更新します。");
    if (!isFinalEmpty(sheet)) return agreesWithMissing(question, Answer::Ok);
    return agreesWithMissing(lines(question, QString(),
                                   QStringLiteral("時間調整が行われていないため、合計(最終)が空のまま保存されます。"),
                                   QStringLiteral("合計を保存するには、先に時間調整を行って下さい。有給休暇残数からは、"
                                                  "この月の有給が差し引かれません。")),
                             Answer::Cancel);
}

bool CardScreen::adjust() {
    Prompts& prompts = client_.context.prompts;
    if (sheet.blnFileMode) {
        prompts.exclaim(QStringLiteral("タイムカードファイルを呼出した状態で時間調整はできません。"));
        return false;
    }
    if (!hasName() ||
        !isCardSaved(QStringLiteral("タイムカードの追加・変更を更新後、集計結果の調整を行って下さい。")) ||
        !isOwnMonth(QStringLiteral("時間調整")) ||
        !agreesWithMissing(QStringLiteral("集計結果の調整を行います。"), Answer::Ok))
        return false;
    if (!AdjustMonthly(client_.context, connection(), sheet, rules_, staff_)) {
        prompts.exclaim(QStringLiteral("集計結果の調整に失敗しました。"));
        return false;
    }
    setPeriod(drawn_);
    return true;
}

bool CardScreen::updateMonthly() {
    if (!hasName() || !isCardSaved(QStringLiteral("タイムカードの追加・変更を更新後、月次更新を行って下さい。")) ||
        !CheckMonthly(client_.context, sheet, rules_) || !isOwnMonth(QStringLiteral("月次更新")) || !agreesToSave())
        return false;
    if (!UpdateMonthly(client_.context, connection(), sheet, rules_, {staff_, section_, drawn_})) {
        client_.context.prompts.exclaim(QStringLiteral("月次集計の最終保存データを更新できませんでした。"));
        return false;
    }
    // The balance has followed; what the card shows of it holds.
    (void)GetStaffInfo(client_.context, connection(), rules_, staff_);
    setPeriod(drawn_);
    sheet.blnMonthChanged = monthUnsaved_ = false;
    for (int row = 1; row < firstCardDay; ++row) sheet.grid.RowStatus(row, GridStatus::None);
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
    const bool dated = parseSlashDate(start) && parseSlashDate(end);
    if (!dated && !isOwnMonth(QStringLiteral("承認"))) return false;
    const QString question = approved ? QStringLiteral("月次集計の最終保存データを承認します。")
                                      : QStringLiteral("月次集計の最終保存データの承認を取り消します。");
    if (prompts.ask({{},
                     lines(question, QString(), QStringLiteral("よろしいですか？")),
                     Icon::Question,
                     Buttons::OkCancel,
                     approved ? Answer::Ok : Answer::Cancel}) != Answer::Ok)
        return false;
    setPeriod(drawn_);
    if (storeMark(mark, approved)) return true;
    prompts.exclaim(approved ? QStringLiteral("月次集計の最終保存データの承認に失敗しました。")
                             : QStringLiteral("月次集計の最終保存データの承認取り消しに失敗しました。"));
    return false;
}

bool CardScreen::storeMark(const Mark& mark, bool approved) {
    const bool stored = mark.store(client_.context, connection(), staff_, drawn_.to, approved);
    if (stored) this->*mark.given = approved;
    return stored;
}

} // namespace kurbo
