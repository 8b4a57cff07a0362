#include "card/outings/rptGoOut.h"

#include "base/product.h"
#include "card/outings/go_out_sheet.h"
#include "screen/grid/grid_format.h"
#include "store/rows.h"

#include <array>

namespace kurbo {
namespace {

constexpr std::array columns{
    ReportColumn{u"F_Date", 14, -1, 1900, GridAlign::Centre},
    ReportColumn{u"F_Out", 5, -1, 1300, GridAlign::Centre},
    ReportColumn{u"F_In", 5, -1, 1300, GridAlign::Centre},
    ReportColumn{u"F_DestName", 30, -1, 4472, GridAlign::Left},
    ReportColumn{u"F_Expense", 20, -1, 1800, GridAlign::Right},
};
constexpr int lineHeight = 300;
constexpr int fontSize = 190;

QString longDate(Day day) {
    return slashDate(day).replace(4, 1, QStringLiteral("年 ")).replace(8, 1, QStringLiteral("月 ")) +
           QStringLiteral("日");
}

QString money(const QString& amount) {
    return formatted(amount, QStringLiteral("$#,###"));
}

QStringList recordOf(const Rows& row) {
    const auto day = row.moment(0);
    const auto time = [&row](int column) {
        const auto moment = row.moment(column);
        return moment ? hourMinute(*moment) : QString();
    };
    return {day ? formatted(slashMoment(*day), QStringLiteral("yyyy/mm/dd(aaa)")) : QString(), time(1), time(2),
            row.text(3), money(row.text(4))};
}

struct Outings {
    ReportRecords records{fieldsOf(columns)};
    std::int64_t expense = 0;
    // Those whose destination isn't known are not among the records.
    int unplaced = 0;
    std::int64_t unplacedExpense = 0;
};

void countUnplaced(Connection& connection, const QString& staff, Period period, Outings& outings) {
    Rows rows = connection.rows(
        QStringLiteral("SELECT T03_GoOut.F_Expense, T04_Destination.F_DestCode FROM (T02_Kurbo INNER JOIN T03_GoOut "
                       "ON T02_Kurbo.F_KurboID = T03_GoOut.F_KurboID) LEFT JOIN T04_Destination "
                       "ON T03_GoOut.F_Destination = T04_Destination.F_DestCode "
                       "WHERE (T02_Kurbo.F_DateID BETWEEN ? AND ?) AND (T02_Kurbo.F_User = ?);"),
        {dateId(period.from), dateId(period.to), staff});
    while (rows.next()) {
        if (!rows.isNull(1)) continue;
        ++outings.unplaced;
        outings.unplacedExpense += moneyOf(rows.text(0)).value_or(0);
    }
}

Outings readAll(Connection& connection, const QString& staff, Period period) {
    Outings outings;
    Rows rows = connection.rows(
        QStringLiteral("SELECT CDate(Left(T02_Kurbo.F_DateID, 4) & '/' & Mid(T02_Kurbo.F_DateID,5, 2) & '/' & "
                       "Right(T02_Kurbo.F_DateID, 2)) AS F_Date, T03_GoOut.F_Out, T03_GoOut.F_In, "
                       "T04_Destination.F_DestName, T03_GoOut.F_Expense "
                       "FROM T04_Destination INNER JOIN (T02_Kurbo INNER JOIN T03_GoOut ON T02_Kurbo.F_KurboID = "
                       "T03_GoOut.F_KurboID) ON T04_Destination.F_DestCode = T03_GoOut.F_Destination "
                       "WHERE (T02_Kurbo.F_DateID BETWEEN ? AND ?) AND (T02_Kurbo.F_User = ?) "
                       "ORDER BY T02_Kurbo.F_DateID, T03_GoOut.F_Order;"),
        {dateId(period.from), dateId(period.to), staff});
    while (rows.next()) {
        outings.records.AddNew(recordOf(rows));
        outings.expense += moneyOf(rows.text(4)).value_or(0);
    }
    countUnplaced(connection, staff, period, outings);
    return outings;
}

ReportSection pageHeader(const QString& heading, Period period) {
    ReportSection header;
    addTitle(header, QStringLiteral("外出出張明細"), heading.trimmed(), widthOf(columns));
    header.controls.push_back(label(QStringLiteral("lblPeriod"), longDate(period.from) + u'～' + longDate(period.to), 0,
                                    widthOf(columns),
                                    {.top = titleHeight, .height = 290, .fontSize = 200, .edges = NoEdge}));
    const RowLook look{.top = titleHeight + 340, .height = lineHeight, .fontSize = fontSize, .fill = headingPaper};
    addCaptions(header, columns, look, u"lbl",
                {QStringLiteral("日付"), QStringLiteral("外出時刻"), QStringLiteral("帰社時刻"),
                 QStringLiteral("外出先"), QStringLiteral("交通費")});
    for (ReportControl& control : header.controls)
        if (control.top == look.top) control.align = GridAlign::Centre;
    header.height = look.top + look.height;
    return header;
}

QString unplacedText(const Outings& outings) {
    const QString expense = money(moneyText(outings.unplacedExpense));
    return QStringLiteral("外出先の登録が無い外出が%1件あります%2。上の一覧と合計には含まれていません。")
        .arg(QString::number(outings.unplaced),
             expense.isEmpty() ? QString() : QStringLiteral("（交通費 %1）").arg(expense));
}

ReportSection reportFooter(const Outings& outings) {
    const RowLook look{.height = lineHeight, .fontSize = fontSize, .bold = true, .fill = sumPaper};
    ReportSection footer{.height = lineHeight};
    addCaptions(footer, columns, look, u"sum", {{}, {}, {}, QStringLiteral("合計"), money(moneyText(outings.expense))});
    if (outings.unplaced == 0) return footer;
    footer.controls.push_back(label(QStringLiteral("lblUnplaced"), unplacedText(outings), 0, widthOf(columns),
                                    {.top = lineHeight, .height = lineHeight, .fontSize = fontSize, .edges = NoEdge}));
    footer.height += lineHeight;
    return footer;
}

} // namespace

rptGoOut::rptGoOut(Connection& connection, const CodeName& section, const CodeName& staff, Period period,
                   Day printedOn) {
    ActiveReport_ReportStart(connection, reportHeading({}, section, staff), staff.code, period, printedOn);
}

void rptGoOut::ActiveReport_ReportStart(Connection& connection, const QString& heading, const QString& staff,
                                        Period period, Day printedOn) {
    Outings outings = readAll(connection, staff, period);
    ReportSection detail{.height = lineHeight};
    addFields(detail, columns, {.height = lineHeight, .fontSize = fontSize});
    run({.caption = productName() + QStringLiteral("－外出出張明細"),
         .documentName = reportDocumentName(),
         .printedOn = slashDate(printedOn),
         .fileName =
             reportFileName(QStringLiteral("外出出張明細"), staff, slashDate(period.from), slashDate(period.to)),
         .paper = a4Portrait,
         .PageHeader = pageHeader(heading, period),
         .Detail = std::move(detail),
         .ReportFooter = reportFooter(outings)},
        std::move(outings.records));
}

void rptGoOut::Detail_Format(ReportSection& section, int record) const {
    for (ReportControl& control : section.controls) control.fill = zebra(record);
}

std::unique_ptr<rptGoOut> makeGoOutReport(const Context& context, Connection& connection, const CodeName& section,
                                          const CodeName& staff, Period period) {
    return guarded(context, u"rptGoOut", u"ActiveReport_ReportStart", std::unique_ptr<rptGoOut>(), [&] {
        return std::make_unique<rptGoOut>(connection, section, staff, period, context.clock.today());
    });
}

} // namespace kurbo
