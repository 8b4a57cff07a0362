#include "totals/total_screen.h"

#include "screen/files/card_file.h"
#include "store/section_switch.h"

#include <algorithm>

namespace kurbo {
namespace {

Day firstDayOf(std::chrono::year_month month) {
    return Day{month / 1};
}

} // namespace

TotalScreen::TotalScreen(Client& client) : client_(client), rules_(sheet, client.session) {
    sheet.grid.setRules(&rules_);
}

bool TotalScreen::load() {
    question_.section = client_.session.SessionSection;
    question_.from = question_.to = monthOf(client_.context.clock.today());
    boxes = {slashMonth(question_.from), slashMonth(question_.to)};
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

// What every drawing from the store begins with: the selection, over the months of the boxes.
std::optional<TotalsQuestion> TotalScreen::asked() const {
    const auto span = checkedMonths(client_.context, boxes.start, boxes.end);
    if (!span) return {};
    TotalsQuestion question = question_;
    question.from = span->from;
    question.to = span->to;
    return question;
}

bool TotalScreen::draw(const std::optional<TotalsQuestion>& question) {
    return question && mayDiscard() && leaveFile() && ShowTotal(*question);
}

bool TotalScreen::ShowTotal(TotalsQuestion question) {
    const auto totals = kurbo::ShowTotal(client_.context, connection(), question, sheet);
    if (!totals) return false;
    hasSaved_ = std::ranges::any_of(totals->rows, &TotalRow::saved);
    question_ = question;
    boxes = {slashMonth(question.from), slashMonth(question.to)};
    alive_ = true;
    ++spanChanges_;
    return true;
}

// What stood in the grid no longer holds: without new totals it is empty.
bool TotalScreen::ShowTotalOrNothing(const TotalsQuestion& question) {
    if (ShowTotal(question)) return true;
    sheet.show({.byStaff = sheet.byStaff, .countUnit = sheet.plngCountUnit, .rows = {}, .faults = {}});
    hasSaved_ = false;
    return false;
}

bool TotalScreen::reload() {
    return leaveFile() && ShowTotalOrNothing(asked().value_or(question_));
}

bool TotalScreen::mayDiscard() const {
    return !sheet.changed ||
           client_.context.prompts.confirm(QStringLiteral("集計データは変更されています。変更を破棄しますか？"));
}

bool TotalScreen::chooseSection(const QString& section) {
    auto question = asked();
    if (!question || !mayDiscard()) return false;
    question->section = section;
    question->staff.clear();
    const bool there = guarded(client_.context, u"frmTotal", u"dcbSection_Change", false, [&] {
        const Day last = addMonths(firstDayOf(question->to), 1) - std::chrono::days(1);
        if (!switchSection(client_, section, firstDayOf(question->from), last)) return false;
        question_.section = section;
        question_.staff.clear();
        readPeople();
        return true;
    });
    return there && ShowTotalOrNothing(*question);
}

bool TotalScreen::chooseStaff(const QString& staff) {
    auto question = asked();
    if (!question || !mayDiscard()) return false;
    question->section = listSection_;
    question->staff = staff;
    return ShowTotal(*question);
}

bool TotalScreen::chooseMonth(int month) {
    TotalsQuestion question = question_;
    question.from = question.to = question.to.year() / std::chrono::month(static_cast<unsigned>(month));
    return draw(question);
}

bool TotalScreen::moveYears(int years) {
    auto question = asked();
    if (!question) return false;
    question->from += std::chrono::years(years);
    question->to += std::chrono::years(years);
    return draw(question);
}

bool TotalScreen::chooseOrder(bool byStaff) {
    if (refusesFileMode(QStringLiteral("集計方法の選択"))) return false;
    auto question = asked();
    if (question) question->byStaff = byStaff;
    return draw(question);
}

bool TotalScreen::display() {
    return draw(asked());
}

bool TotalScreen::update() {
    if (!CheckData(client_.context, sheet)) return false;
    const auto question = asked();
    if (!question || !confirmsUpdate()) return false;
    if (!UpdateTotal(client_.context, connection(), sheet)) {
        client_.context.prompts.exclaim(QStringLiteral("追加・変更を更新できませんでした。"));
        return false;
    }
    return ShowTotalOrNothing(*question);
}

// Corrections of months that were only calculated go with the new drawing: that is told before.
bool TotalScreen::confirmsUpdate() const {
    Prompts& prompts = client_.context.prompts;
    const ChangedMonths changed = changedMonths(sheet);
    if (changed.saved == 0 && changed.unsaved > 0) {
        prompts.exclaim(lines(QStringLiteral("変更した月は月次更新されていないため、保存できません。"),
                              QStringLiteral("タイムカードで月次更新を行ってから変更して下さい。")));
        return false;
    }
    QString what = QStringLiteral("追加・変更を更新します。");
    if (changed.unsaved > 0)
        what = lines(what,
                     QStringLiteral("月次更新されていない%1件の変更は保存されず、失われます。").arg(changed.unsaved));
    return prompts.sure(what, changed.unsaved > 0 ? Answer::Cancel : Answer::Ok);
}

bool TotalScreen::deleteMonths() {
    Prompts& prompts = client_.context.prompts;
    if (refusesFileMode(QStringLiteral("削除"))) return false;
    const auto question = asked();
    if (!question) return false;
    const SavedMonths months{question->staff, question->section, {question->from, question->to}};
    const int count = CountTotal(client_.context, connection(), months);
    if (count < 0) return false;
    if (count == 0) {
        prompts.exclaim(lines(QStringLiteral("表示期間(%1～%2)には").arg(boxes.start, boxes.end),
                              QStringLiteral("保存された月次集計データが無いため、"),
                              QStringLiteral("データを削除できません。")));
        return false;
    }
    if (!mayDiscard() || !confirmsDelete(*question)) return false;
    if (!DeleteTotal(client_.context, connection(), months)) {
        prompts.exclaim(QStringLiteral("月次集計データの削除に失敗しました。"));
        return false;
    }
    return ShowTotalOrNothing(*question);
}

// Months that were typed and not shown yet are named.
bool TotalScreen::confirmsDelete(const TotalsQuestion& question) const {
    QString what = lines(QStringLiteral("表示されている月次集計データを削除します。"),
                         QStringLiteral("削除したデータは復活できません。有給休暇残数は変わりません。"));
    if (question.from != question_.from || question.to != question_.to)
        what = lines(what, QStringLiteral("期間：%1～%2").arg(boxes.start, boxes.end));
    return client_.context.prompts.sure(what, Answer::Cancel);
}

bool TotalScreen::refusesFileMode(const QString& command) const {
    return kurbo::refusesFileMode(client_.context.prompts, sheet.blnFileMode, command);
}

bool TotalScreen::mayDelete() const {
    return client_.session.access.has(Right::DeleteMyData) && client_.session.access.has(Right::DeleteOtherData);
}

bool TotalScreen::mayExchange() const {
    return client_.session.access.has(Right::WriteOtherMonthly);
}

} // namespace kurbo
