#include "card/card_cells.h"

#include "month/figure_texts.h"
#include "month/month_figures.h"
#include "month/saved_figures.h"
#include "store/readers.h"

#include <algorithm>
#include <array>

namespace kurbo {
namespace {

constexpr int index(CardColumn column) {
    return static_cast<int>(column);
}

QStringList blankRow() {
    return QStringList(cardColumns);
}

QStringList headings(const QString& first) {
    QStringList line{QStringLiteral("No"),
                     QStringLiteral("日付"),
                     QStringLiteral("休日"),
                     QStringLiteral("予定（メモ）"),
                     QStringLiteral("出社時刻"),
                     QStringLiteral("退社時刻"),
                     first};
    line += quantityHeadings().mid(static_cast<qsizetype>(placeOf(firstOfDay)) + 1);
    return line << QStringLiteral("実働時間") << QStringLiteral("詳細出社") << QStringLiteral("詳細退社")
                << QStringLiteral("ID");
}

const QStringList& headingsFor(bool flexible) {
    static const QStringList ofFixed = headings(QString::fromUtf16(factsOf(firstOfDay).heading));
    static const QStringList ofFlexible = headings(QStringLiteral("時間差"));
    return flexible ? ofFlexible : ofFixed;
}

// The texts of all minutes of a day in one form, written once: a card repeats them, and shares them at no cost.
template <typename Write>
QList<QString> textsOfDay(Write write) {
    QList<QString> texts;
    texts.reserve(wholeDay / Minutes(1));
    for (Minutes minutes{}; minutes < wholeDay; ++minutes) texts.append(write(minutes));
    return texts;
}

const QList<QString>& hourTexts(int unit) {
    static const QList<QString> decimal = textsOfDay([](Minutes m) { return FormatHours(m, 0, false); });
    static const QList<QString> sexagesimal = textsOfDay([](Minutes m) { return FormatHours(m, 1, false); });
    return unit == 0 ? decimal : sexagesimal;
}

// The numbers of a long card's rows.
QString numberText(int number) {
    static const QList<QString> numbers = textsOfDay([](Minutes m) { return QString::number(m.count()); });
    return number < numbers.size() ? numbers[number] : QString::number(number);
}

QString typeText(QChar type) {
    if (type == u'0') return QStringLiteral("0");
    return type == u'3' ? QStringLiteral("3") : QString(type);
}

QString timeText(Moment moment) {
    static const QList<QString> clocks = textsOfDay([](Minutes m) { return hourMinute(Moment{} + m); });
    return clocks[static_cast<qsizetype>((moment - dayOf(moment)).count() / 60)];
}

QString leaveText(Moment leave, Day day) {
    if (dayOf(leave) == day) return timeText(leave);
    return u'(' + slashDate(dayOf(leave)).mid(5) + u')' + hourMinute(leave);
}

class CellWriter final {
  public:
    explicit CellWriter(const clsWorkTime& rules) : rules_(rules), hours_(hourTexts(rules.plngCountUnit)) {}

    [[nodiscard]] QStringList day(int number, const CardDay& day, const Figures& figures) const {
        QStringList row = blankRow();
        QString* const cells = row.data();
        writeFacts(cells, number, day);
        writeTimes(cells, figures);
        if (figures.work != Minutes{}) cells[index(CardColumn::WorkTime)] = hours(figures.work);
        return row;
    }

    [[nodiscard]] QStringList captions() const {
        QStringList row = blankRow();
        row[index(CardColumn::Date)] = rules_.pbleFlexTime ? QStringLiteral("ﾌﾚｯｸｽ勤務") : QStringLiteral("普通勤務");
        for (const QuantityFacts& facts : quantities)
            if (!facts.shown) row[index(cardColumnOf(facts.id))] = u'(' + QString::fromUtf16(facts.heading) + u')';
        return row;
    }

    [[nodiscard]] QStringList sums(const QString& caption, const FigureList& figures) const {
        QStringList row = blankRow();
        row[index(CardColumn::Date)] = caption;
        for (const QuantityFacts& facts : quantities)
            row[index(cardColumnOf(facts.id))] = figureText(figures[placeOf(facts.id)], rules_.plngCountUnit);
        return row;
    }
    [[nodiscard]] QString difference(Minutes difference) const {
        return FormatHours(difference, rules_.plngCountUnit, true);
    }

  private:
    [[nodiscard]] QString hours(Minutes minutes) const {
        return minutes >= Minutes{} && minutes < wholeDay ? hours_[minutes.count()]
                                                          : FormatHours(minutes, rules_.plngCountUnit, false);
    }

    static void writeFacts(QString* cells, int number, const CardDay& day) {
        const DayFacts& facts = day.facts;
        cells[index(CardColumn::No)] = numberText(number);
        cells[index(CardColumn::Date)] = shortDate(facts.date);
        if (!facts.type.isNull()) cells[index(CardColumn::Holiday)] = typeText(facts.type);
        cells[index(CardColumn::Plan)] = day.plan;
        if (facts.enter) cells[index(CardColumn::Enter)] = timeText(*facts.enter);
        if (facts.leave) cells[index(CardColumn::Leave)] = leaveText(*facts.leave, facts.date);
        cells[index(CardColumn::Paid)] = leaveWord(facts.paid);
        cells[index(CardColumn::Special)] = leaveWord(facts.special);
        cells[index(CardColumn::Compens)] = leaveWord(facts.compens);
        if (facts.enter) cells[index(CardColumn::FullEnter)] = slashMoment(*facts.enter);
        if (facts.leave) cells[index(CardColumn::FullLeave)] = slashMoment(*facts.leave);
        if (day.kurboId) cells[index(CardColumn::Id)] = QString::number(*day.kurboId);
    }

    void writeTimes(QString* cells, const Figures& figures) const {
        forEachOfDay([&](const QuantityFacts& facts, auto member) {
            using Figure = std::remove_cvref_t<decltype(figures.*member)>;
            if (facts.id < firstOfDay || figures.*member == Figure()) return;
            QString& cell = cells[index(cardColumnOf(facts.id))];
            if constexpr (std::is_same_v<Figure, Minutes>) cell = hours(figures.*member);
            if constexpr (std::is_same_v<Figure, Count>) cell = QStringLiteral("1");
        });
        if (figures.difference != Minutes{} && figures.legalOver == Minutes{})
            cells[index(CardColumn::LegalOver)] = difference(figures.difference);
    }

    const clsWorkTime& rules_;
    const QList<QString>& hours_;
};

bool isWholePeriod(const clsWorkTime& rules, Period span, Day today) {
    const int startDay = rules.plngCloseDay() == 31 ? 1 : rules.plngCloseDay() + 1;
    return span.to == addMonths(span.from, 1) - std::chrono::days(1) && dayOfMonth(span.from) == startDay &&
           span.to <= today;
}

QString savedMonthStatement() {
    return QStringLiteral("SELECT ") + quantityFields() +
           QStringLiteral(", F_PersonalApproval, F_SuperiorApproval FROM T05_Approved "
                          "WHERE (F_Staff = ?) AND (F_Year = ?) AND (F_Month = ?);");
}

constexpr int monthDigits = 6; // of a date's id

// What counts for the month, once it has been saved. Gives the days of paid leave that the person's balance has lost by
// that: those of the newest saved month, so that saving it again takes them once.
double readSavedMonth(Connection& connection, const QString& staff, Day end, Card& card, FigureList& figures) {
    static const QString statement = savedMonthStatement();
    const QString id = dateId(end);
    Rows month = connection.rows(statement, {staff, id.left(4), id.mid(4, 2)});
    if (!month.next()) return 0;
    figures = readMonthFigures(month);
    constexpr int behind = quantityCount;
    card.saved = true;
    card.personalApproval = month.yes(behind);
    card.superiorApproval = month.yes(behind + 1);
    const bool followed = !month.isNull(static_cast<int>(placeOf(Quantity::PaidTotal))) &&
                          !hasLaterMonth(connection, staff, id.left(monthDigits));
    return followed ? month.real(static_cast<int>(placeOf(Quantity::Paid))) : 0;
}

// The quantities by their switches, the first as it is used; the last three columns are for the program.
std::array<bool, cardColumns> hiddenColumns(const clsWorkTime& rules) {
    std::array<bool, cardColumns> hidden{};
    for (const QuantityFacts& facts : dayQuantities)
        hidden[static_cast<std::size_t>(cardColumnOf(facts.id))] = !(rules.*facts.shown);
    if (rules.pbleFlexTime) hidden[static_cast<std::size_t>(CardColumn::LegalOver)] = !rules.pbleEnableDiff;
    for (const CardColumn column : {CardColumn::FullEnter, CardColumn::FullLeave, CardColumn::Id})
        hidden[static_cast<std::size_t>(column)] = true;
    return hidden;
}

CardFigures figuresOf(Connection& connection, clsWorkTime& rules, const QString& staff, const CardDays& read,
                      Day today) {
    std::vector<DayFacts> facts;
    facts.reserve(read.days.size());
    for (const CardDay& day : read.days) facts.push_back(day.facts);
    std::optional<Moment> carry;
    if (!facts.empty())
        carry = carryInto(rules, facts.front(), leaveBeyond(connection, staff, Moment{facts.front().date}));
    CardFigures figures = calculateDays(rules, facts, read.next, carry, today);
    roundSums(rules, figures.sum);
    return figures;
}

void writeDays(Card& card, const CellWriter& cells, std::vector<CardDay>& days, const std::vector<Figures>& figures) {
    card.days.reserve(static_cast<qsizetype>(days.size()));
    card.entries.reserve(days.size());
    for (std::size_t i = 0; i < days.size(); ++i) {
        card.days.append(cells.day(static_cast<int>(i) + 1, days[i], figures[i]));
        CardEntry& entry = card.entries.emplace_back(std::move(days[i]));
        entry.absent = figures[i].absentDays != Count(0);
    }
}

// `balance`: days of paid leave at the beginning.
void writeSums(Card& card, const CellWriter& cells, const clsWorkTime& rules, const Figures& sum, double balance,
               const FigureList& finals) {
    card.sums = monthFigures(sum, hundredths(balance));
    card.summary = {cells.captions(), cells.sums(QStringLiteral("合計(実働)"), card.sums),
                    cells.sums(QStringLiteral("合計(最終)"), finals)};
    if (rules.pbleFlexTime) card.summary[1][index(CardColumn::LegalOver)] = cells.difference(sum.difference);
}

Card cardOf(const Context& context, Connection& connection, clsWorkTime& rules, const QString& staff, Period span) {
    const Reading reading(connection);
    CardDays read = readCardDays(connection, staff, span);
    const Day today = context.clock.today();
    const CardFigures figures = figuresOf(connection, rules, staff, read, today);
    Card card;
    card.headings = headingsFor(rules.pbleFlexTime);
    card.countUnit = rules.plngCountUnit;
    card.wholePeriod = isWholePeriod(rules, span, today);
    double balance = rules.psngPaidTotal;
    FigureList finals;
    if (card.wholePeriod) balance += readSavedMonth(connection, staff, span.to, card, finals);
    const CellWriter cells(rules);
    writeSums(card, cells, rules, figures.sum, balance, finals);
    writeDays(card, cells, read.days, figures.days);
    card.hidden = hiddenColumns(rules);
    return card;
}

} // namespace

std::optional<Card> makeCard(const Context& context, Connection& connection, clsWorkTime& rules, const QString& staff,
                             Period span) {
    return guarded(context, u"frmKurbo", u"ShowKurbo", std::optional<Card>(),
                   [&] { return std::optional(cardOf(context, connection, rules, staff, span)); });
}

} // namespace kurbo
