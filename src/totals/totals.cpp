#include "totals/totals.h"

#include "card/card_cells.h"
#include "engine/loaders.h"
#include "totals/month_pass.h"
#include "totals/people_rules.h"
#include "totals/total_records.h"

#include <algorithm>
#include <map>
#include <set>

using std::chrono::year_month;

namespace kurbo {
namespace {

// The person has closed the progress, or a loader has said why it failed.
struct GivenUp {};
// The rules of the last person can't be loaded.
struct BadRules {};

struct StaffMember {
    QString code;
    QString name;
    QString section;
    QString order; // at least four digits
};

int numberOf(std::chrono::year year) {
    return static_cast<int>(year);
}
int numberOf(std::chrono::month month) {
    return static_cast<int>(static_cast<unsigned>(month));
}

class Calculation final {
  public:
    Calculation(const Context& context, Connection& connection, const TotalsQuestion& question)
        : context_(context), connection_(connection), question_(question) {
        totals_.byStaff = question.byStaff || !question.staff.isEmpty();
    }

    Totals run() {
        const Shown shown(context_.progress, QStringLiteral("処理中です・・・"), whole);
        succeed(GetWorkStyle(context_, connection_, style_));
        totals_.countUnit = style_.plngCountUnit;
        hideColumns();
        {
            const Reading reading(connection_);
            readStaff();
            totals_.rows = readSavedMonths(connection_, question_, totals_.byStaff);
        }
        std::vector<Missing> missing = missingMonths();
        loadRules(missing);
        makeMonths(connection_, people_, context_.clock.today(),
                   [this](int percent) { step(loaded + percent * (whole - loaded) / 100); });
        totals_.rows.reserve(totals_.rows.size() + missing.size());
        for (const Missing& month : missing) addCalculated(month);
        sortRows();
        return std::move(totals_);
    }

  private:
    // What the progress counts to, and where it stands when the rules of all people are loaded.
    static constexpr int whole = 1000;
    static constexpr int loaded = 200;

    struct Missing {
        std::size_t member;
        year_month month;
        std::size_t person = 0; // the place among those whose rules are loaded
        std::size_t period = 0;
    };

    static void succeed(bool done) {
        if (!done) throw GivenUp();
    }
    void step(int value) {
        context_.progress.step(value);
        succeed(!context_.progress.stopped());
    }

    void hideColumns() {
        constexpr auto first = static_cast<std::size_t>(TotalColumn::LegalOver);
        for (std::size_t i = 0; i < sumSwitches.size(); ++i) totals_.hidden[first + i] = !(style_.*sumSwitches[i]);
        for (const TotalColumn column : {TotalColumn::Order, TotalColumn::Staff})
            totals_.hidden[static_cast<std::size_t>(column)] = true;
        totals_.hidden[static_cast<std::size_t>(TotalColumn::Difference)] = !style_.pbleEnableDiff;
    }

    void readStaff() {
        const QString fields = QStringLiteral("SELECT F_StaffCode, F_StaffName, F_Section, F_Order FROM C03_Staff ");
        Rows rows = question_.staff.isEmpty()
                        ? connection_.rows(
                              fields + QStringLiteral("WHERE (F_Section = ?) AND (F_Display = True) ORDER BY F_Order;"),
                              {question_.section})
                        : connection_.rows(fields + QStringLiteral("WHERE (F_StaffCode = ?);"), {question_.staff});
        while (rows.next()) staff_.push_back({rows.text(0), rows.text(1), rows.text(2), orderText(rows, 3)});
    }

    // Month by month, in the order of the people.
    [[nodiscard]] std::vector<Missing> missingMonths() const {
        std::set<std::pair<QString, year_month>> saved;
        for (const TotalRow& row : totals_.rows) saved.emplace(row.staff, row.month);
        std::vector<Missing> missing;
        for (year_month month = question_.from; month <= question_.to; month += std::chrono::months(1))
            for (std::size_t i = 0; i < staff_.size(); ++i)
                if (!saved.contains({staff_[i].code, month})) missing.push_back({i, month});
        return missing;
    }

    // Of everybody who misses a month, once and in one lock.
    void loadRules(std::vector<Missing>& missing) {
        if (missing.empty()) return;
        try {
            const Reading reading(connection_);
            PeopleRules rules(connection_, style_);
            std::vector<std::optional<std::size_t>> places(staff_.size());
            for (Missing& month : missing) {
                auto& place = places[month.member];
                if (!place) {
                    place = people_.size();
                    addPerson(staff_[month.member].code, rules);
                }
                addPeriod(month, *place);
            }
        } catch (const BadRules&) {
            sayBadRules(people_.back().staff);
        }
    }

    void addPerson(const QString& code, PeopleRules& rules) {
        PersonMonths& person = people_.emplace_back();
        person.staff = code;
        try {
            person.rules = rules.read(code);
        } catch (const Complaint&) {
            throw BadRules();
        } catch (const Fault&) {
            throw BadRules();
        }
        step(static_cast<int>(people_.size() * loaded / staff_.size()));
    }

    // The loaders say what is wrong, now that no other client waits for the person to read it.
    void sayBadRules(const QString& code) {
        clsWorkTime rules = style_;
        if (GetStaffInfo(context_, connection_, rules, code)) (void)GetWorkTime(context_, connection_, rules, code);
        throw GivenUp();
    }

    void addPeriod(Missing& month, std::size_t place) {
        PersonMonths& person = people_[place];
        month.person = place;
        month.period = person.periods.size();
        person.periods.push_back(
            *periodOfMonth(numberOf(month.month.year()), numberOf(month.month.month()), person.rules.plngCloseDay()));
    }

    void addCalculated(const Missing& month) {
        const StaffMember& member = staff_[month.member];
        const PersonMonths& person = people_[month.person];
        const Period& period = person.periods[month.period];
        const Figures& sum = person.sums[month.period];
        TotalRow row;
        row.staff = member.code;
        row.name = member.name;
        row.section = member.section;
        row.month = month.month;
        row.term = termOf(period);
        row.key = totalKey(member.order, month.month, totals_.byStaff);
        setFigures(row, sum, person.rules);
        totals_.rows.push_back(std::move(row));
    }

    // The rows are large: their places are sorted, and each is moved once.
    void sortRows() {
        std::vector<TotalRow*> places;
        places.reserve(totals_.rows.size());
        for (TotalRow& row : totals_.rows) places.push_back(&row);
        std::ranges::stable_sort(places, {}, &TotalRow::key);
        std::vector<TotalRow> sorted;
        sorted.reserve(places.size());
        for (TotalRow* row : places) sorted.push_back(std::move(*row));
        totals_.rows = std::move(sorted);
    }

    // People of one close day share the text.
    QString termOf(const Period& period) {
        QString& text = terms_[{period.from, period.to}];
        if (text.isEmpty()) text = slashDate(period.from) + u'-' + slashDate(period.to);
        return text;
    }

    static void setFigures(TotalRow& row, const Figures& sum, const clsWorkTime& rules) {
        constexpr std::int32_t half = 50;
        auto figure = row.figures.begin();
        *figure++ = sum.workDays;
        *figure++ = sum.work;
        *figure++ = hundredths(static_cast<double>(rules.psngPaidTotal)) - sum.paidHalves * half;
        for (const auto& minutes : timeColumns) *figure++ = sum.*minutes;
        for (const auto& halves : leaveColumns) *figure++ = sum.*halves * half;
        for (const auto& count : countColumns) *figure++ = sum.*count;
        if (rules.pbleFlexTime) row.difference = sum.difference;
    }

    const Context& context_;
    Connection& connection_;
    const TotalsQuestion& question_;
    clsWorkTime style_;
    std::vector<StaffMember> staff_;
    std::vector<PersonMonths> people_;
    std::map<std::pair<Day, Day>, QString> terms_;
    Totals totals_;
};

} // namespace

FigureForm figureForm(std::size_t figure) {
    const auto column = static_cast<TotalColumn>(figure + firstFigure);
    if (column == TotalColumn::PaidTotal || (column >= TotalColumn::Paid && column <= TotalColumn::Compens))
        return FigureForm::Days;
    return column == TotalColumn::WorkDay || column >= TotalColumn::AbsentDay ? FigureForm::Count : FigureForm::Hours;
}

std::optional<Totals> calculateTotals(const Context& context, Connection& connection, const TotalsQuestion& question) {
    return guarded(context, u"frmTotal", u"ShowTotal", std::optional<Totals>(), [&]() -> std::optional<Totals> {
        try {
            return Calculation(context, connection, question).run();
        } catch (const GivenUp&) {
            return {};
        }
    });
}

} // namespace kurbo
