#include "card/card_screen.h"

#include "card/card_grid.h"
#include "card/edit/card_checks.h"
#include "card/edit/card_update.h"
#include "month/loaders.h"
#include "screen/files/card_file.h"
#include "store/section_switch.h"

namespace kurbo {
namespace {

bool isFirstOfMonth(Day day) {
    return dayOfMonth(day) == 1;
}

// The last day of a whole month stays that, also of a February.
Period yearsLater(Period period, int years) {
    constexpr int monthsOfYear = 12;
    const Day behind = period.to + std::chrono::days(1);
    const bool wholeMonths = isFirstOfMonth(period.from) && isFirstOfMonth(behind);
    return {addMonths(period.from, years * monthsOfYear),
            wholeMonths ? addMonths(behind, years * monthsOfYear) - std::chrono::days(1)
                        : addMonths(period.to, years * monthsOfYear)};
}

Period oneMonthFrom(Day from) {
    return {from, addMonths(from, 1) - std::chrono::days(1)};
}

} // namespace

CardScreen::CardScreen(Client& client)
    : client_(client),
      reader_{client.session.access},
      cells_(sheet, reader_, chosen_.rules),
      month_(client, sheet, chosen_, reader_) {
    sheet.grid.setRules(&cells_);
}

bool CardScreen::load() {
    chosen_.section = client_.session.SessionSection;
    chosen_.staff = client_.session.SessionStaff;
    clsWorkTime rules;
    if (!readLists() || !loadRules(chosen_.staff, rules)) return false;
    const auto base = baseDate();
    if (!base) return false;
    const auto first = parseSlashDate(PeriodStartDate(*base, rules.plngCloseDay(), client_.context.clock.today()));
    if (!first) return false;
    choosePeriod(oneMonthFrom(*first));
    return ShowKurbo(chosen_.staff, chosen_.period, rules);
}

bool CardScreen::readLists() {
    return guarded(client_.context, u"frmKurbo", u"Form_Load", false, [this] {
        sections_ = displayedSections(connection());
        readPeople();
        return true;
    });
}

void CardScreen::readPeople() {
    people_ = displayedStaff(connection(), chosen_.section);
    listSection_ = chosen_.section;
}

bool CardScreen::loadRules(const QString& staff, clsWorkTime& rules) const {
    const Context& context = client_.context;
    return GetWorkStyle(context, connection(), rules) && GetStaffInfo(context, connection(), rules, staff) &&
           GetWorkTime(context, connection(), rules, staff);
}

// Today, or the calendar's first day when the month from today on has none.
std::optional<Day> CardScreen::baseDate() const {
    const Day today = client_.context.clock.today();
    const Period month = oneMonthFrom(today);
    const int days = ExistCalendar(client_.context, connection(), month.from, month.to);
    if (days > 0) return today;
    return days == 0 ? GetFirstDate(client_.context, connection()) : std::nullopt;
}

bool CardScreen::hasCalendarIn(Period period) const {
    const int days = ExistCalendar(client_.context, connection(), period.from, period.to);
    if (days == 0) client_.context.prompts.exclaim(noCalendarText());
    return days > 0;
}

// The month of a period is the month of its end.
void CardScreen::choosePeriod(Period period) {
    chosen_.setPeriod(period);
    chosen_.month = monthOf(period.to);
}

bool CardScreen::ShowKurbo(const QString& staff, Period period, clsWorkTime& rules) {
    auto card = makeCard(client_.context, connection(), rules, staff, period);
    if (!card) return false;
    chosen_.rules = rules;
    reader_.blnMyCard = staff == client_.session.SessionStaff;
    reader_.cardShown = true;
    month_.drawn({card->wholePeriod, card->personalApproval, card->superiorApproval});
    sheet.show(*std::move(card));
    ++drawings_;
    chosen_.drawn = period;
    chosen_.setPeriod(period);
    return true;
}

void CardScreen::leave() {
    leaveSection(client_);
}

bool CardScreen::mayDiscard() const {
    const bool discarded =
        (!sheet.blnCardChanged && !sheet.blnMonthChanged) ||
        client_.context.prompts.confirm(QStringLiteral("タイムカードは変更されています。変更を破棄しますか？"));
    return discarded && (!mayLeaveDay || mayLeaveDay());
}

bool CardScreen::mayClose() const {
    Prompts& prompts = client_.context.prompts;
    if (sheet.blnCardChanged &&
        !prompts.confirm(QStringLiteral("タイムカードは変更されています。変更を破棄しますか？")))
        return false;
    return !sheet.blnMonthChanged ||
           prompts.confirm(QStringLiteral("月次データ（合計）は変更されています。変更を破棄しますか？"));
}

bool CardScreen::chooseSection(const QString& section) {
    if (!mayDiscard()) return false;
    return guarded(client_.context, u"frmKurbo", u"dcbSection_Change", false, [&] {
        if (!switchSection(client_, section, chosen_.period.from, chosen_.period.to)) return false;
        chosen_.section = section;
        chosen_.staff.clear();
        people_.clear();
        reader_.cardShown = false;
        sheet.drawn();
        readPeople();
        return true;
    });
}

bool CardScreen::chooseStaff(const QString& staff) {
    if (!mayDiscard()) return false;
    if (staff.isEmpty()) {
        chosen_.staff.clear();
        reader_.cardShown = false;
        sheet.drawn();
        return true;
    }
    clsWorkTime rules;
    if (!loadRules(staff, rules)) return false;
    const auto period = periodOfMonth(chosen_.month, rules.plngCloseDay());
    if (!period || !hasCalendarIn(*period) || !ShowKurbo(staff, *period, rules)) return false;
    chosen_.section = listSection_;
    chosen_.staff = staff;
    return true;
}

bool CardScreen::chooseMonth(int month) {
    if (!hasName(client_.context, chosen_) || !mayDiscard() || !leaveFile()) return false;
    const auto wanted = chosen_.month.year() / std::chrono::month(static_cast<unsigned>(month));
    const auto period = periodOfMonth(wanted, chosen_.rules.plngCloseDay());
    if (!period || !hasCalendarIn(*period) || !redraw(*period)) return false;
    chosen_.month = wanted;
    return true;
}

// Two boxes that hold no dates stand for the period of the chosen month.
bool CardScreen::moveYears(int years, const QString& start, const QString& end) {
    if (!hasName(client_.context, chosen_) || !mayDiscard() || !leaveFile()) return false;
    const auto from = parseSlashDate(start);
    const auto to = parseSlashDate(end);
    auto period = from && to ? std::optional(Period{*from, *to}) : chosen_.periodOfChosenMonth();
    if (!period) return false;
    *period = yearsLater(*period, years);
    if (!hasCalendarIn(*period) || !redraw(*period)) return false;
    chosen_.month += std::chrono::years(years);
    return true;
}

bool CardScreen::display(const QString& start, const QString& end) {
    const auto period = checkedPeriod(client_.context, start, end);
    return period && hasName(client_.context, chosen_) && mayDiscard() && leaveFile() && hasCalendarIn(*period) &&
           redraw(*period);
}

bool CardScreen::update(const QString& start, const QString& end) {
    Prompts& prompts = client_.context.prompts;
    if (!hasName(client_.context, chosen_) || !CheckDayly(client_.context, sheet, start, end)) return false;
    if (!prompts.sure(QStringLiteral("追加・変更を更新します。"))) return false;
    if (!UpdateDayly(client_.context, connection(), sheet, chosen_.staff)) {
        prompts.exclaim(QStringLiteral("追加・変更を更新できませんでした。"));
        return false;
    }
    const auto period = checkedPeriod(client_.context, start, end);
    return period && drawStored(*period);
}

bool CardScreen::deletePeriod(const QString& start, const QString& end) {
    Prompts& prompts = client_.context.prompts;
    if (refusesFileMode(prompts, sheet.blnFileMode, QStringLiteral("削除"))) return false;
    const auto period = checkedPeriod(client_.context, start, end);
    if (!period || !hasName(client_.context, chosen_) || !mayDiscard()) return false;
    const QString what =
        lines(QStringLiteral("表示期間(%1～%2)の出退勤データ及び外出データを削除します。").arg(start, end),
              QStringLiteral("削除したデータは復活できません。"));
    if (!prompts.sure(what, Answer::Cancel)) return false;
    if (!DeleteKurbo(client_.context, connection(), chosen_.staff, period->from, period->to)) {
        prompts.exclaim(QStringLiteral("出退勤データの削除に失敗しました。"));
        return false;
    }
    return drawStored(*period);
}

// What stands in the store is not in the grid yet: until it is, nothing of it may be written again.
bool CardScreen::drawStored(Period period) {
    sheet.drawn();
    reader_.cardShown = false;
    return redraw(period);
}

// The balance may have followed a month that was saved since.
bool CardScreen::redraw(Period period) {
    clsWorkTime rules = chosen_.rules;
    return GetStaffInfo(client_.context, connection(), rules, chosen_.staff) && ShowKurbo(chosen_.staff, period, rules);
}

int CardScreen::todayRow() const {
    const Day today = client_.context.clock.today();
    for (int row = firstCardDay; const CardEntry* const day = sheet.dayAt(row); ++row)
        if (day->day.facts.date == today) return row;
    return 0;
}

bool CardScreen::mayChooseOthers() const {
    return client_.session.access.has(Right::ReadOtherKurbo);
}

bool CardScreen::mayDelete() const {
    return hasRight(reader_, Right::DeleteMyData, Right::DeleteOtherData);
}

bool CardScreen::mayGoOut() const {
    return hasRight(reader_, Right::ReadMyGoOut, Right::ReadOtherGoOut);
}

} // namespace kurbo
