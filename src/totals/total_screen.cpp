#include "totals/total_screen.h"

#include "store/section_switch.h"
#include "totals/total_grid.h"

#include <algorithm>

namespace kurbo {
namespace {

Day firstDayOf(std::chrono::year_month month) {
    return Day{month / 1};
}

std::chrono::year_month monthOf(Day day) {
    const auto date = civil(day);
    return date.year() / date.month();
}

} // namespace

TotalScreen::TotalScreen(Client& client) : client_(client), rules_(sheet, client.session) {
    sheet.grid.setRules(&rules_);
}

bool TotalScreen::load() {
    question_.section = client_.session.SessionSection;
    question_.from = question_.to = monthOf(client_.context.clock.today());
    ++spanChanges_;
    return readLists() && ShowTotal(question_);
}

void TotalScreen::leave() {
    leaveSection(client_);
}

bool TotalScreen::readLists() {
    return guarded(client_.context, u"frmTotal", u"Form_Load", false, [this] {
        sections_ = displayedSections(connection());
        readPeople();
        return true;
    });
}

void TotalScreen::readPeople() {
    listSection_ = question_.section;
    people_ = displayedStaff(connection(), listSection_);
}

bool TotalScreen::ShowTotal(TotalsQuestion question) {
    const auto totals = calculateTotals(client_.context, connection(), question);
    if (!totals) return false;
    question.byStaff = totals->byStaff;
    fillTotalGrid(sheet.grid, *totals);
    sheet.grid.clearRowStatus();
    sheet.changed = sheet.blnFileMode = false;
    sheet.plngCountUnit = totals->countUnit;
    hasSaved_ = std::ranges::any_of(totals->rows, &TotalRow::saved);
    question_ = question;
    alive_ = true;
    ++spanChanges_;
    return true;
}

// What stood in the grid no longer holds: without new totals it is empty.
bool TotalScreen::ShowTotalOrNothing() {
    if (ShowTotal(question_)) return true;
    fillTotalGrid(sheet.grid, {});
    sheet.grid.clearRowStatus();
    sheet.changed = hasSaved_ = false;
    return false;
}

bool TotalScreen::reload() {
    return leaveFile() && ShowTotalOrNothing();
}

bool TotalScreen::mayDiscard() const {
    return !sheet.changed ||
           client_.context.prompts.confirm(QStringLiteral("集計データは変更されています。変更を破棄しますか？"));
}

bool TotalScreen::chooseSection(const QString& section) {
    if (!mayDiscard()) return false;
    const bool there = guarded(client_.context, u"frmTotal", u"dcbSection_Change", false, [&] {
        const Day last = addMonths(firstDayOf(question_.to), 1) - std::chrono::days(1);
        if (!switchSection(client_, section, firstDayOf(question_.from), last)) return false;
        question_.section = section;
        question_.staff.clear();
        readPeople();
        return true;
    });
    return there && ShowTotalOrNothing();
}

bool TotalScreen::chooseStaff(const QString& staff) {
    if (!mayDiscard()) return false;
    TotalsQuestion question = question_;
    question.section = listSection_;
    question.staff = staff;
    return ShowTotal(question);
}

bool TotalScreen::chooseMonth(int month) {
    if (!mayDiscard() || !leaveFile()) return false;
    TotalsQuestion question = question_;
    question.from = question.to = question.to.year() / std::chrono::month(static_cast<unsigned>(month));
    return ShowTotal(question);
}

bool TotalScreen::moveYears(int years) {
    if (!mayDiscard() || !leaveFile()) return false;
    TotalsQuestion question = question_;
    question.from += std::chrono::years(years);
    question.to += std::chrono::years(years);
    return ShowTotal(question);
}

bool TotalScreen::chooseOrder(bool byStaff) {
    if (refusesFileMode(QStringLiteral("集計方法の選択")) || !mayDiscard()) return false;
    TotalsQuestion question = question_;
    question.byStaff = byStaff;
    return ShowTotal(question);
}

bool TotalScreen::display(const QString& start, const QString& end) {
    const auto span = checkedMonths(client_.context, start, end);
    if (!span || !mayDiscard() || !leaveFile()) return false;
    TotalsQuestion question = question_;
    question.from = span->from;
    question.to = span->to;
    return ShowTotal(question);
}

bool TotalScreen::update() {
    Prompts& prompts = client_.context.prompts;
    if (!CheckData(client_.context, sheet)) return false;
    const QString question =
        lines(QStringLiteral("追加・変更を更新します。"), QString(), QStringLiteral("よろしいですか？"));
    if (prompts.ask({{}, question, Icon::Question, Buttons::OkCancel, Answer::Ok}) != Answer::Ok) return false;
    if (!UpdateTotal(client_.context, connection(), sheet, question_.byStaff)) {
        prompts.exclaim(QStringLiteral("追加・変更を更新できませんでした。"));
        return false;
    }
    return ShowTotalOrNothing();
}

bool TotalScreen::deleteMonths(const QString& start, const QString& end) {
    Prompts& prompts = client_.context.prompts;
    if (refusesFileMode(QStringLiteral("削除"))) return false;
    const auto span = checkedMonths(client_.context, start, end);
    if (!span) return false;
    const SavedMonths months{question_.staff, question_.section, *span};
    const int count = CountTotal(client_.context, connection(), months);
    if (count < 0) return false;
    if (count == 0) {
        prompts.exclaim(lines(QStringLiteral("表示期間(%1～%2)には").arg(start, end),
                              QStringLiteral("保存された月次集計データが無いため、"),
                              QStringLiteral("データを削除できません。")));
        return false;
    }
    const QString question =
        lines(QStringLiteral("表示されている月次集計データを削除します。"),
              QStringLiteral("削除したデータは復活できません。"), QString(), QStringLiteral("よろしいですか？"));
    if (prompts.ask({{}, question, Icon::Question, Buttons::OkCancel, Answer::Cancel}) != Answer::Ok) return false;
    if (!DeleteTotal(client_.context, connection(), months)) {
        prompts.exclaim(QStringLiteral("月次集計データの削除に失敗しました。"));
        return false;
    }
    return ShowTotalOrNothing();
}

bool TotalScreen::refusesFileMode(const QString& command) const {
    if (sheet.blnFileMode)
        client_.context.prompts.exclaim(
            QStringLiteral("タイムカードファイルを呼出した状態で%1はできません。").arg(command));
    return sheet.blnFileMode;
}

bool TotalScreen::mayDelete() const {
    return client_.session.access.has(Right::DeleteMyData) && client_.session.access.has(Right::DeleteOtherData);
}

bool TotalScreen::mayExchange() const {
    return client_.session.access.has(Right::WriteOtherMonthly);
}

} // namespace kurbo
