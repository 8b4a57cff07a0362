#include "card/edit/card_checks.h"

#include "card/card_grid.h"
#include "card/edit/card_entries.h"
#include "card/edit/card_times.h"
#include "month/figure_texts.h"

#include <array>

namespace kurbo {
namespace {

struct NamedColumn {
    CardColumn column;
    const char16_t* name;
};

constexpr std::array leaveNames{NamedColumn{CardColumn::Paid, u"有給休暇"},
                                NamedColumn{CardColumn::Special, u"特別休暇"},
                                NamedColumn{CardColumn::Compens, u"代休"}};
// Sums that are not called by their column's heading.
constexpr std::array sumNames{
    NamedColumn{CardColumn::Plan, u"出勤日数合計"}, NamedColumn{CardColumn::Enter, u"実働時間合計"},
    NamedColumn{CardColumn::Leave, u"有給休暇残数"}, NamedColumn{CardColumn::LegalOver, u"法定内残業合計"}};

Period periodOf(const QString& start, const QString& end) {
    const auto from = parseSlashDate(start);
    const auto to = parseSlashDate(end);
    if (!from || !to)
        throw Complaint(
            QStringLiteral("期間が不正です。開始日付と終了日付を西暦年でyyyy/mm/dd形式(半角)で入力して下さい。"));
    if (*to < *from) throw Complaint(QStringLiteral("開始日付が終了日付以降に設定されています。"));
    return {*from, *to};
}

// One changed day row.
class DayCheck final {
  public:
    DayCheck(const GridModel& grid, int row) : grid_(grid), row_(row), day_(dayOfRow(cell(CardColumn::Date))) {}

    void run() const {
        if (!isPlanText(cell(CardColumn::Plan))) refuse(QStringLiteral("の予定が不正です。") + planDemand());
        checkTimes();
        for (const auto& leave : leaveNames) {
            const QString word = cell(leave.column);
            if (word.isEmpty() || isLeaveWord(word)) continue;
            refuse(lines(u'の' + QString::fromUtf16(leave.name) + QStringLiteral("が不正です。"), listDemand()));
        }
    }

  private:
    [[nodiscard]] QString cell(CardColumn column) const { return cardText(grid_, row_, column); }
    [[noreturn]] void refuse(const QString& why) const { throw Complaint(cell(CardColumn::Date) + why); }

    void checkTimes() const {
        const QString enterText = cell(CardColumn::Enter);
        const QString leaveText = cell(CardColumn::Leave);
        const auto enter = day_ ? enterTime(*day_, enterText) : std::nullopt;
        const auto leave = day_ ? leaveTime(*day_, leaveText) : std::nullopt;
        if (!enterText.isEmpty() && !enter) refuse(lines(QStringLiteral("の出社時刻が不正です。"), enterDemand()));
        if (!leaveText.isEmpty() && !leave)
            refuse(lines(QStringLiteral("の退社時刻が不正です。"), leaveDemand(), QString(), nextDayDemand()));
        if (enter && leave && *leave < *enter)
            refuse(lines(QStringLiteral("の出退社時刻が不正です。"),
                         QStringLiteral("退社時刻は出社時刻以降に設定して下さい。")));
    }

    const GridModel& grid_;
    int row_;
    std::optional<Day> day_;
};

QString sumName(const GridModel& grid, CardColumn column) {
    for (const auto& sum : sumNames)
        if (sum.column == column) return QString::fromUtf16(sum.name);
    return cardText(grid, 0, column) + QStringLiteral("合計");
}

void checkSums(const GridModel& grid, const clsWorkTime& rules) {
    for (const QuantityFacts& facts : quantities) {
        const CardColumn column = cardColumnOf(facts.id);
        const SumForm form = sumForm(facts, rules.plngCountUnit);
        const QString sum = cardText(grid, finalSumRow, column);
        // A time difference is never typed.
        const bool typed = column != CardColumn::LegalOver || !rules.pbleFlexTime;
        if (!typed || sum.isEmpty() || isSum(form, sum)) continue;
        throw Complaint(sumName(grid, column) + QStringLiteral("が不正です。") + sumDemand(form));
    }
}

} // namespace

std::optional<Period> checkedPeriod(const Context& context, const QString& start, const QString& end) {
    return guarded(context, u"frmKurbo", u"checkedPeriod", std::optional<Period>(),
                   [&] { return std::optional(periodOf(start, end)); });
}

bool CheckDayly(const Context& context, const CardSheet& sheet, const QString& start, const QString& end) {
    return guarded(context, u"frmKurbo", u"CheckDayly", false, [&] {
        if (sheet.blnFileMode)
            throw Complaint(QStringLiteral("タイムカードファイルを呼出した状態で更新はできません。"));
        (void)periodOf(start, end);
        for (int row = firstCardDay; row < sheet.grid.Rows(); ++row)
            if (sheet.grid.RowStatus(row) == GridStatus::Modified) DayCheck(sheet.grid, row).run();
        return true;
    });
}

bool CheckMonthly(const Context& context, const CardSheet& sheet, const clsWorkTime& rules) {
    return guarded(context, u"frmKurbo", u"CheckMonthly", false, [&] {
        if (sheet.blnFileMode)
            throw Complaint(QStringLiteral("タイムカードファイルを呼出した状態で月次更新はできません。"));
        checkSums(sheet.grid, rules);
        return true;
    });
}

QString ListMissingPunch(const GridModel& grid) {
    QStringList dates;
    for (int row = firstCardDay; row < grid.Rows(); ++row) {
        const QString date = cardText(grid, row, CardColumn::Date);
        const bool entered = !cardText(grid, row, CardColumn::Enter).isEmpty();
        const bool left = !cardText(grid, row, CardColumn::Leave).isEmpty();
        if (entered != left) dates.append(date);
        if (!cardText(grid, row, CardColumn::AbsentDay).isEmpty()) dates.append(date);
    }
    if (dates.isEmpty()) return {};
    QString list;
    for (qsizetype i = 0; i < dates.size(); ++i) {
        list += dates[i] + QStringLiteral(", ");
        if (i % 2 != 0) list += QStringLiteral("\r\n");
    }
    const bool wholeLine = dates.size() % 2 == 0;
    return lines(QStringLiteral("注意! 下記日付の打刻がありません。"), list.chopped(wholeLine ? 4 : 2));
}

} // namespace kurbo
