// Card files on the card's screen.

#include "card/card_grid.h"
#include "card/card_screen.h"
#include "card/edit/card_checks.h"
#include "card/edit/card_times.h"
#include "screen/files/card_file.h"
#include "screen/files/foreign_file.h"
#include "store/section_switch.h"

#include <QFileInfo>

#include <algorithm>

namespace kurbo {
namespace {

QString cardMember() {
    return QStringLiteral("Kurbo.tmp");
}

void checkDates(const QStringList& selection) {
    if (!parseSlashDate(selection[2]) || !parseSlashDate(selection[3])) throw foreignFile();
}

// The days of a card's image.
std::vector<CardEntry> entriesOf(const GridModel& image) {
    std::vector<CardEntry> days;
    for (int row = firstCardDay; row < image.Rows(); ++row) {
        CardDay day;
        day.facts.date = dayOfRow(cardText(image, row, CardColumn::Date)).value_or(Day());
        day.facts.enter = parseSlashMoment(cardText(image, row, CardColumn::FullEnter));
        day.facts.leave = parseSlashMoment(cardText(image, row, CardColumn::FullLeave));
        days.emplace_back(std::move(day));
    }
    return days;
}

QList<CodeName> withNames(QList<CodeName> list, const QList<CodeName>& names) {
    for (const CodeName& name : names)
        if (std::ranges::find(list, name.code, &CodeName::code) == list.end()) list.append(name);
    return list;
}

} // namespace

bool CardScreen::saveKrb(const QString& start, const QString& end) {
    if (!hasName(client_.context, chosen_) || !checkedPeriod(client_.context, start, end)) return false;
    const auto file = client_.context.prompts.saveFile(cardFileFilter(), QStringLiteral("krb"));
    return file && guarded(client_.context, u"frmKurbo", u"SaveKurbo", false, [&] {
               saveCardFile(*file, cardMember(), sheet.grid, {chosen_.section, chosen_.staff, start, end});
               return true;
           });
}

bool CardScreen::loadKrb() {
    if (!mayDiscard()) return false;
    const auto file = client_.context.prompts.openFile(cardFileFilter());
    return file && guarded(client_.context, u"frmKurbo", u"LoadKurbo", false, [&] {
               // From now on, also after a failure, the screen only shows until a card is drawn from the store.
               sheet.drawn();
               sheet.blnFileMode = true;
               file_ = {};
               const QStringList selection = loadCardFile(*file, cardMember(), cardColumns, sheet.grid, checkDates);
               sheet.days = entriesOf(sheet.grid);
               chosen_.section = selection[0];
               chosen_.staff = selection[1];
               choosePeriod({*parseSlashDate(selection[2]), *parseSlashDate(selection[3])});
               month_.forgetApprovals();
               file_.name = QFileInfo(*file).fileName();
               readFileNames();
               return true;
           });
}

// Only to be shown: whoever is chosen out of the lists is asked for as ever.
void CardScreen::readFileNames() {
    const auto name = [this](const QString& statement, const QString& code) {
        const auto found = connection().firstValue(statement, {code});
        return found ? QList<CodeName>{{code, found->text()}} : QList<CodeName>();
    };
    file_.section =
        name(QStringLiteral("SELECT F_SectionName FROM C02_Section WHERE (F_SectionCode = ?);"), chosen_.section);
    file_.person = name(QStringLiteral("SELECT F_StaffName FROM C03_Staff WHERE (F_StaffCode = ?);"), chosen_.staff);
}

QList<CodeName> CardScreen::sections() const {
    return sheet.blnFileMode ? withNames(sections_, file_.section) : sections_;
}

QList<CodeName> CardScreen::people() const {
    return sheet.blnFileMode ? withNames(people_, file_.person) : people_;
}

// A card file may name anybody: before that person's card is drawn from the store, the right to see it is asked for.
bool CardScreen::leaveFile() {
    if (!sheet.blnFileMode) return true;
    return guarded(client_.context, u"frmKurbo", u"LoadKurbo", false, [this] {
        const Session& session = client_.session;
        const bool own = chosen_.staff == session.SessionStaff && chosen_.section == session.SessionSection;
        if (own)
            leaveSection(client_);
        else if (!switchSection(client_, chosen_.section, chosen_.period.from, chosen_.period.to))
            return false;
        readPeople();
        const bool known = std::ranges::find(people_, chosen_.staff, &CodeName::code) != people_.end();
        if (!own && !known)
            throw Complaint(QStringLiteral("アクセス権がありません。管理者にアクセス権の設定を依頼して下さい。"));
        clsWorkTime rules;
        if (!loadRules(chosen_.staff, rules)) return false;
        chosen_.rules = rules;
        return true;
    });
}

} // namespace kurbo
