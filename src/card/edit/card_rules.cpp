#include "card/edit/card_rules.h"

#include "base/failure.h"
#include "card/card_cells.h"
#include "card/card_grid.h"
#include "card/edit/card_demands.h"
#include "month/figure_texts.h"

#include <algorithm>
#include <array>

namespace kurbo {
namespace {

struct EditRight {
    CardColumn column;
    Right my;
    Right other;
};

constexpr std::array dayRights{
    EditRight{CardColumn::Plan, Right::WriteMyPlan, Right::WriteOtherPlan},
    EditRight{CardColumn::Enter, Right::WriteMyTime, Right::WriteOtherTime},
    EditRight{CardColumn::Leave, Right::WriteMyTime, Right::WriteOtherTime},
    EditRight{CardColumn::Paid, Right::WriteMyPaid, Right::WriteOtherPaid},
    EditRight{CardColumn::Special, Right::WriteMySpecial, Right::WriteOtherSpecial},
    EditRight{CardColumn::Compens, Right::WriteMyCompens, Right::WriteOtherCompens},
};

// What is corrected in the sum of each column from 3 on; columns 3 to 5 hold other sums than their days.
constexpr std::array sumNames{
    u"出勤日数の合計",     u"実働時間の合計", u"有給休暇残数",   u"法定内残業の合計", u"普通残業の合計",
    u"深夜残業の合計",     u"早出勤務の合計", u"休日出勤の合計", u"休日深夜の合計",   u"法定休日出勤の合計",
    u"法定休日深夜の合計", u"欠勤時間の合計", u"有給休暇の合計", u"特別休暇の合計",   u"代休の合計",
    u"欠勤回数の合計",     u"遅刻回数の合計", u"早退回数の合計",
};

constexpr int firstSum = static_cast<int>(CardColumn::Plan);
constexpr int lastSum = static_cast<int>(CardColumn::EarlyLeave);

bool isLeaveKind(CardColumn column) {
    return column >= CardColumn::Paid && column <= CardColumn::Compens;
}

QString helpHint() {
    return QStringLiteral("(詳細はF1ｷｰを押してﾍﾙﾌﾟを参照して下さい)");
}

QString closed() {
    return QStringLiteral("編集できません");
}

QString dayTip(CardColumn column) {
    const QString seconds = QStringLiteral("に変更があれば修正します(ﾀﾞﾌﾞﾙｸﾘｯｸで詳細時刻表示)");
    const QString choose = QStringLiteral("区分を選択します") + helpHint();
    switch (column) {
    case CardColumn::Plan:
        return QStringLiteral("予定を入力します");
    case CardColumn::Enter:
        return QStringLiteral("出社時刻") + seconds;
    case CardColumn::Leave:
        return QStringLiteral("退社時刻") + seconds;
    case CardColumn::Paid:
        return QStringLiteral("有給休暇") + choose;
    case CardColumn::Special:
        return QStringLiteral("特別休暇") + choose;
    case CardColumn::Compens:
        return QStringLiteral("代休") + choose;
    default:
        return {};
    }
}

QString sumTip(int column, bool flexible) {
    if (column < firstSum || column > lastSum) return {};
    if (flexible && column == static_cast<int>(CardColumn::LegalOver)) return closed();
    return QString::fromUtf16(sumNames[static_cast<std::size_t>(column - firstSum)]) +
           QStringLiteral("に変更があれば修正します") + helpHint();
}

QString refused(const QString& demand) {
    return QStringLiteral("不正な入力です。") + demand;
}

QString timeDemand(const QString& demand) {
    return lines(refused(QStringLiteral("時刻を入力して下さい。")), demand);
}

QString dayRefusal(CardColumn column) {
    if (column == CardColumn::Plan) return refused(planDemand());
    if (column == CardColumn::Enter) return timeDemand(enterDemand());
    return column == CardColumn::Leave ? timeDemand(lines(leaveDemand(), nextDayDemand())) : refused(listDemand());
}

} // namespace

bool hasRight(const CardReader& reader, Right my, Right other) {
    return reader.access.has(reader.blnMyCard ? my : other);
}

QString CardRules::PaidKindList() const {
    QString list = QStringLiteral("|#0;全日");
    if (rules_.plngAmHolidayWork != 0) list += QStringLiteral("|#1;午前");
    if (rules_.plngPmHolidayWork != 0) list += QStringLiteral("|#2;午後");
    return list;
}

// A time difference is never typed.
bool CardRules::mayEdit(int row, int column) const {
    if (sheet_.blnFileMode || !reader_.cardShown || row < 1) return false;
    if (row < firstCardDay) {
        const bool difference = column == static_cast<int>(CardColumn::LegalOver) && rules_.pbleFlexTime;
        return column >= firstSum && column <= lastSum && !difference && !sheet_.grid.RowHidden(row) &&
               hasRight(reader_, Right::WriteMyMonthly, Right::WriteOtherMonthly);
    }
    const auto found = std::ranges::find(dayRights, static_cast<CardColumn>(column), &EditRight::column);
    return found != dayRights.end() && hasRight(reader_, found->my, found->other);
}

QString CardRules::comboList(int row, int column) const {
    return row >= firstCardDay && isLeaveKind(static_cast<CardColumn>(column)) ? PaidKindList() : QString();
}

QString CardRules::refusal(int row, int column, const QString& text) const {
    const auto own = static_cast<CardColumn>(column);
    if (row < firstCardDay) {
        const QuantityFacts* const facts = quantityAt(own);
        if (!facts) return refused(sumDemand(SumForm::Hours));
        const SumForm form = sumForm(*facts, rules_.plngCountUnit);
        return isSum(form, text) ? QString() : refused(sumDemand(form));
    }
    const CardEntry* const day = sheet_.dayAt(row);
    return !day || day->takes(own, text) ? QString() : dayRefusal(own);
}

void CardRules::edited(int row, int column) {
    const QString text = sheet_.grid.TextMatrix(row, column);
    const auto own = static_cast<CardColumn>(column);
    if (CardEntry* const day = sheet_.dayAt(row)) {
        day->read(own, text);
        sheet_.blnCardChanged = true;
    } else {
        if (const QuantityFacts* const facts = row == finalSumRow ? quantityAt(own) : nullptr)
            sheet_.finals[placeOf(facts->id)] = readFigure(*facts, text, rules_.plngCountUnit);
        sheet_.blnMonthChanged = true;
    }
    if (sheet_.onEdit) sheet_.onEdit();
}

QString CardRules::tip(int row, int column) const {
    if (row < 1) return {};
    const QString text =
        row < firstCardDay ? sumTip(column, rules_.pbleFlexTime) : dayTip(static_cast<CardColumn>(column));
    return text.isEmpty() ? closed() + helpHint() : text;
}

// A cell that others may edit has a tip of what it takes.
QString CardRules::closedTip(int row, int column) const {
    const QString own = tip(row, column);
    return own.startsWith(closed()) ? own : closed() + helpHint();
}

QString CardRules::scrollTip(int row) const {
    const auto date = [this](int at) { return sheet_.grid.TextMatrix(at, static_cast<int>(CardColumn::Date)); };
    return date(row) + QStringLiteral(" / ") + date(sheet_.grid.Rows() - 1);
}

bool CardRules::isJapanese(int column) const {
    const auto own = static_cast<CardColumn>(column);
    return own == CardColumn::Plan || isLeaveKind(own);
}

QString CardRules::detail(int row, int column) const {
    const bool enter = column == static_cast<int>(CardColumn::Enter);
    if (!enter && column != static_cast<int>(CardColumn::Leave)) return {};
    const CardEntry* const entry = sheet_.dayAt(row);
    const auto punch = !entry ? std::nullopt : enter ? entry->storedEnter : entry->storedLeave;
    if (!punch) return {};
    const Day day = dayOf(*punch);
    return slashDate(day) + shortDate(day).mid(8) +
           (enter ? QStringLiteral(" 出社時刻 : ") : QStringLiteral(" 退社時刻 : ")) + slashMoment(*punch).mid(11);
}

} // namespace kurbo
