#include "totals/total_lines.h"

#include "engine/hours.h"
#include "month/figure_texts.h"

#include <QHash>
#include <QSet>

#include <map>

namespace kurbo {
namespace {

constexpr int at(TotalColumn column) {
    return static_cast<int>(column);
}

// Added figures; a column of Nulls adds to 0, rows without any figure add to nothing.
struct Sum {
    std::array<std::int64_t, quantityCount> figures{};
    std::optional<std::int64_t> difference;
    bool empty = true;

    void add(const TotalRow& row) {
        for (std::size_t i = 0; i < quantityCount; ++i) {
            figures[i] += countOf(row.figures[i]);
            empty = empty && !isKnown(row.figures[i]);
        }
        if (row.difference) difference = difference.value_or(0) + row.difference->count();
    }
};

// Nearly all leaves are whole or half days, and share their texts.
QString halfDays(std::int64_t hundredths) {
    static const auto halves = [] {
        QStringList texts;
        for (int i = 0; i < 100; ++i) texts.append(daysText(i * 0.5));
        return texts;
    }();
    const bool known = hundredths >= 0 && hundredths % 50 == 0 && hundredths / 50 < halves.size();
    return known ? halves[hundredths / 50] : daysText(static_cast<double>(hundredths) / 100);
}

QSet<QString> namesOfSeveral(const std::vector<TotalRow>& rows) {
    QHash<QString, QString> codes;
    QSet<QString> several;
    const TotalRow* before = nullptr;
    for (const TotalRow& row : rows) {
        if (before && before->staff == row.staff) continue;
        before = &row;
        const auto known = codes.constFind(row.name);
        if (known == codes.cend())
            codes.insert(row.name, row.staff);
        else if (*known != row.staff)
            several.insert(row.name);
    }
    return several;
}

class LineWriter final {
  public:
    explicit LineWriter(const Totals& totals) : totals_(totals), several_(namesOfSeveral(totals.rows)) {}

    [[nodiscard]] bool isOneGroup(const TotalRow& one, const TotalRow& other) const {
        return totals_.byStaff ? one.staff == other.staff : one.month == other.month;
    }
    [[nodiscard]] QString caption(const TotalRow& row) { return totals_.byStaff ? nameOf(row) : monthText(row.month); }

    [[nodiscard]] TotalLine month(const TotalRow& row, const QString& caption) {
        TotalLine line{LineKind::Month, caption, QStringList(totalColumns), &row};
        QString* const cells = line.cells.data();
        cells[at(TotalColumn::First)] = caption;
        cells[at(TotalColumn::Second)] = totals_.byStaff ? monthText(row.month) : nameOf(row);
        for (const QuantityFacts& facts : quantities)
            if (const MonthFigure& figure = row.figures[placeOf(facts.id)]; isKnown(figure))
                cells[at(totalColumnOf(facts.id))] = figureText(facts.unit(), countOf(figure));
        if (row.saved) {
            cells[at(TotalColumn::Personal)] = approval(row.personalApproval);
            cells[at(TotalColumn::Superior)] = approval(row.superiorApproval);
        }
        cells[at(TotalColumn::Term)] = row.term;
        cells[at(TotalColumn::Order)] = row.key;
        cells[at(TotalColumn::Staff)] = row.staff;
        if (row.difference) cells[at(TotalColumn::Difference)] = hours(row.difference->count(), true);
        return line;
    }

    [[nodiscard]] TotalLine sum(const Sum& sum, LineKind kind, const QString& group) {
        TotalLine line{kind, group, QStringList(totalColumns), nullptr};
        QString* const cells = line.cells.data();
        cells[at(TotalColumn::First)] = kind == LineKind::SubTotal ? group + subTotalMark() : group;
        if (sum.empty) return line;
        for (const QuantityFacts& facts : quantities)
            cells[at(totalColumnOf(facts.id))] = figureText(facts.unit(), sum.figures[placeOf(facts.id)]);
        if (sum.difference) cells[at(TotalColumn::Work)] += u'(' + hours(*sum.difference, true) + u')';
        return line;
    }

  private:
    [[nodiscard]] QString nameOf(const TotalRow& row) const {
        return several_.contains(row.name) ? QStringLiteral("%1 (%2)").arg(row.name, row.staff) : row.name;
    }

    // Written once and shared by all people.
    QString monthText(std::chrono::year_month month) {
        QString& text = months_[month];
        if (text.isEmpty()) text = yearMonthText(month);
        return text;
    }

    // As a box holds it.
    static QString approval(bool given) { return given ? QStringLiteral("-1") : QStringLiteral("0"); }

    [[nodiscard]] QString hours(std::int64_t minutes, bool withSign) const {
        return FormatHours(Minutes(minutes), totals_.countUnit, withSign);
    }

    // The sums of a person's month, which many people share.
    QString sharedHours(std::int64_t minutes) {
        if (minutes < 0 || minutes >= std::ssize(hours_)) return hours(minutes, false);
        QString& text = hours_[static_cast<std::size_t>(minutes)];
        if (text.isEmpty()) text = hours(minutes, false);
        return text;
    }

    [[nodiscard]] QString figureText(Unit unit, std::int64_t value) {
        switch (unit) {
        case Unit::Number:
            return value == 0 ? QStringLiteral("0") : QString::number(value);
        case Unit::Days:
            return halfDays(value);
        case Unit::Time:
            break;
        }
        return sharedHours(value);
    }

    const Totals& totals_;
    const QSet<QString> several_;
    std::map<std::chrono::year_month, QString> months_;
    std::vector<QString> hours_ = std::vector<QString>(std::size_t{250} * 60);
};

} // namespace

QString subTotalMark() {
    return QStringLiteral(" 小計");
}

QString totalHeadings(bool byStaff) {
    const QString first = byStaff ? QStringLiteral("|^氏名|^年月") : QStringLiteral("|^年月|^氏名");
    return first + u'|' + quantityHeadings(u"^").join(u'|') +
           QStringLiteral("|^本人|^所長|^集計期間|^順|^社員ｺｰﾄﾞ|^時間差");
}

std::vector<TotalLine> totalLines(const Totals& totals) {
    LineWriter writer(totals);
    std::vector<TotalLine> lines;
    lines.reserve(totals.rows.size() + totals.rows.size() / 8 + 2);
    Sum group;
    Sum all;
    const TotalRow* before = nullptr;
    QString caption;
    const auto endGroup = [&] {
        if (before) lines.push_back(writer.sum(group, LineKind::SubTotal, caption));
        group = {};
    };
    for (const TotalRow& row : totals.rows) {
        if (!before || !writer.isOneGroup(*before, row)) {
            endGroup();
            caption = writer.caption(row);
        }
        before = &row;
        lines.push_back(writer.month(row, caption));
        group.add(row);
        all.add(row);
    }
    endGroup();
    if (!lines.empty()) lines.push_back(writer.sum(all, LineKind::Total, QStringLiteral("合計")));
    return lines;
}

QString yearMonthText(std::chrono::year_month month) {
    return QStringLiteral("%1年 %2月")
        .arg(static_cast<int>(month.year()), 4, 10, QChar(u'0'))
        .arg(static_cast<unsigned>(month.month()), 2, 10, QChar(u'0'));
}

} // namespace kurbo
