#include "card/card_month.h"

#include "card/card_grid.h"
#include "card/edit/card_checks.h"
#include "card/monthly.h"
#include "month/loaders.h"
#include "screen/files/card_file.h"

#include <algorithm>

namespace kurbo {
namespace {

bool isFinalEmpty(const CardSheet& sheet) {
    return std::ranges::all_of(sheet.finals, [](const FigureEntry& figure) { return figure.value.isNull(); });
}

} // namespace

// One of the two approvals.
struct CardMonth::Mark {
    bool CardMonth::*given;
    bool (*store)(const Context&, Connection&, const QString& staff, Day end, bool approved);
};

void CardMonth::drawn(const Drawn& card) {
    state_ = card.wholePeriod ? State::Drawn : State::NotWhole;
    personalApproval_ = card.personalApproval;
    superiorApproval_ = card.superiorApproval;
}

bool CardMonth::showsOwnMonth() const {
    return reader_.cardShown && isWholePeriod() && chosen_.periodOfChosenMonth() == chosen_.drawn;
}

// The record is that of the chosen month: sums of other days would stand there as its own.
bool CardMonth::isOwnMonth(const QString& command) const {
    if (!showsOwnMonth())
        client_.context.prompts.exclaim(
            lines(QStringLiteral("選択した月の期間が表示されていないため、%1はできません。").arg(command),
                  QStringLiteral("締日を過ぎた月を選択してから、やり直して下さい。")));
    return showsOwnMonth();
}

bool CardMonth::mayUpdate() const {
    return showsOwnMonth() && !sheet_.blnFileMode && (state_ == State::Drawn || sheet_.blnMonthChanged);
}

bool CardMonth::mayApprovePersonal() const {
    return reader_.cardShown && isWholePeriod() && reader_.blnMyCard;
}

bool CardMonth::mayApproveSuperior() const {
    return reader_.cardShown && isWholePeriod() && client_.session.access.has(Right::WriteApproval);
}

bool CardMonth::isCardSaved(const QString& demand) const {
    if (sheet_.blnCardChanged)
        client_.context.prompts.exclaim(
            lines(QStringLiteral("タイムカードの追加・変更が保存されていません。"), demand));
    return !sheet_.blnCardChanged;
}

// Missing punches warn and never forbid.
bool CardMonth::agreesWithMissing(const QString& question, Answer preset) const {
    const QString text =
        lines(question, QString(), QStringLiteral("よろしいですか？"), QString(), ListMissingPunch(sheet_));
    return client_.context.prompts.agrees(text, preset);
}

bool CardMonth::agreesToSave() const {
    const QString question = QStringLiteral("月次集計の最終保存データを更新します。");
    if (!isFinalEmpty(sheet_)) return agreesWithMissing(question, Answer::Ok);
    return agreesWithMissing(lines(question, QString(),
                                   QStringLiteral("時間調整が行われていないため、合計(最終)が空のまま保存されます。"),
                                   QStringLiteral("合計を保存するには、先に時間調整を行って下さい。有給休暇残数からは、"
                                                  "この月の有給が差し引かれません。")),
                             Answer::Cancel);
}

bool CardMonth::adjust() {
    Prompts& prompts = client_.context.prompts;
    if (refusesFileMode(prompts, sheet_.blnFileMode, QStringLiteral("時間調整")) ||
        !hasName(client_.context, chosen_) ||
        !isCardSaved(QStringLiteral("タイムカードの追加・変更を更新後、集計結果の調整を行って下さい。")) ||
        !isOwnMonth(QStringLiteral("時間調整")) ||
        !agreesWithMissing(QStringLiteral("集計結果の調整を行います。"), Answer::Ok))
        return false;
    if (!AdjustMonthly(client_.context, connection(), sheet_, chosen_.rules, chosen_.staff)) {
        prompts.exclaim(QStringLiteral("集計結果の調整に失敗しました。"));
        return false;
    }
    chosen_.setPeriod(chosen_.drawn);
    return true;
}

bool CardMonth::update() {
    if (!hasName(client_.context, chosen_) ||
        !isCardSaved(QStringLiteral("タイムカードの追加・変更を更新後、月次更新を行って下さい。")) ||
        !CheckMonthly(client_.context, sheet_, chosen_.rules) || !isOwnMonth(QStringLiteral("月次更新")) ||
        !agreesToSave())
        return false;
    if (!UpdateMonthly(client_.context, connection(), sheet_, chosen_.rules,
                       {chosen_.staff, chosen_.section, chosen_.drawn})) {
        client_.context.prompts.exclaim(QStringLiteral("月次集計の最終保存データを更新できませんでした。"));
        return false;
    }
    // The balance has followed; what the card shows of it holds.
    (void)GetStaffInfo(client_.context, connection(), chosen_.rules, chosen_.staff);
    chosen_.setPeriod(chosen_.drawn);
    sheet_.blnMonthChanged = false;
    state_ = State::JustSaved;
    for (int row = 1; row < firstCardDay; ++row) sheet_.grid.RowStatus(row, GridStatus::None);
    forgetApprovals();
    return true;
}

bool CardMonth::approvePersonal(bool approved, const QString& start, const QString& end) {
    return approve({&CardMonth::personalApproval_, &UpdatePersonal}, approved, start, end);
}

bool CardMonth::approveSuperior(bool approved, const QString& start, const QString& end) {
    return approve({&CardMonth::superiorApproval_, &UpdateSuperior}, approved, start, end);
}

bool CardMonth::approve(const Mark& mark, bool approved, const QString& start, const QString& end) {
    Prompts& prompts = client_.context.prompts;
    if (refusesFileMode(prompts, sheet_.blnFileMode, QStringLiteral("承認")) || !hasName(client_.context, chosen_) ||
        !isCardSaved(QStringLiteral("タイムカードの追加・変更を更新後、承認を行って下さい。")))
        return false;
    const bool dated = parseSlashDate(start) && parseSlashDate(end);
    if (!dated && !isOwnMonth(QStringLiteral("承認"))) return false;
    const QString question = approved ? QStringLiteral("月次集計の最終保存データを承認します。")
                                      : QStringLiteral("月次集計の最終保存データの承認を取り消します。");
    if (!prompts.sure(question, approved ? Answer::Ok : Answer::Cancel)) return false;
    chosen_.setPeriod(chosen_.drawn);
    if (storeMark(mark, approved)) return true;
    prompts.exclaim(approved ? QStringLiteral("月次集計の最終保存データの承認に失敗しました。")
                             : QStringLiteral("月次集計の最終保存データの承認取り消しに失敗しました。"));
    return false;
}

bool CardMonth::storeMark(const Mark& mark, bool approved) {
    const bool stored = mark.store(client_.context, connection(), chosen_.staff, chosen_.drawn.to, approved);
    if (stored) this->*mark.given = approved;
    return stored;
}

} // namespace kurbo
