#include "settings/work_style/work_style.h"

#include "month/quantities.h"
#include "settings/listing.h"

namespace kurbo {
namespace {

QString label(const QString& words) {
    constexpr int width = 20;
    return listingLabel(words, width);
}

// The items that can be displayed, in the order of WorkStyle::display.
QStringList displayWords() {
    QStringList words{QStringLiteral("標準時間との差")};
    for (const QuantityFacts& facts : dayQuantities)
        words.append(QString::fromUtf16(*facts.tip ? facts.tip : facts.heading));
    return words;
}

QString flexText(const QString& standard) {
    return QStringLiteral("ﾌﾚｯｸｽ勤務 (標準労働時間：%1)").arg(standard);
}

QStringList halfDayLines(const QString& name, const WorkStyle::HalfDay& half, const QString& first) {
    const QString work = label(name + QStringLiteral("勤務"));
    if (!half.exists) return {work + QStringLiteral("無")};
    const QStringList works{first, QStringLiteral("休日出勤扱い"), QStringLiteral("ｶｳﾝﾄしない")};
    return {work + (half.flex ? flexText(half.standard) : QStringLiteral("普通勤務")),
            label(name + QStringLiteral("勤務の取扱")) + works.value(half.work)};
}

QStringList roundingLines(const WorkStyle& style) {
    const auto direction = [](const QString& name, int up) {
        return label(name) + (up == 0 ? QStringLiteral("切捨") : QStringLiteral("切上"));
    };
    if (style.byMonth)
        return {label(QStringLiteral("端数処理方法")) + QStringLiteral("1ヶ月単位"),
                direction(QStringLiteral("労働時間"), style.roundHour)};
    return {label(QStringLiteral("端数処理方法")) + QStringLiteral("1日単位"),
            direction(QStringLiteral("出社時刻"), style.roundEnter),
            direction(QStringLiteral("退社時刻"), style.roundLeave)};
}

} // namespace

QStringList workStyleListing(const WorkStyle& style) {
    QStringList listing{label(QStringLiteral("平日勤務")) +
                        (style.flex ? flexText(style.standard) : QStringLiteral("普通勤務"))};
    listing += halfDayLines(QStringLiteral("午前休日"), style.am, QStringLiteral("早出勤務扱い"));
    listing += halfDayLines(QStringLiteral("午後休日"), style.pm, QStringLiteral("残業扱い"));
    listing += roundingLines(style);
    listing.append(label(QStringLiteral("端数処理単位(分)")) + style.roundUnit);
    listing.append(label(QStringLiteral("時間表示")) +
                   QStringLiteral("%1進法表示").arg(style.countUnit == 0 ? 10 : 60));
    const std::size_t unused = style.flex ? WorkStyle::legalOver : WorkStyle::diff;
    const QStringList words = displayWords();
    for (std::size_t item = 0; item < style.display.size(); ++item)
        if (item != unused)
            listing.append(label(words[static_cast<qsizetype>(item)]) +
                           (style.display[item] ? QStringLiteral("表示する") : QStringLiteral("表示しない")));
    return listing;
}

} // namespace kurbo
