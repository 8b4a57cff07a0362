#include "totals/csv/csv_record.h"

#include "base/csv_line.h"
#include "base/day.h"
#include "base/failure.h"
#include "base/system/code_page.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace kurbo {
namespace {

enum class Kind { Code, Year, Month, Count, Minutes, Balance, Days, Mark, Term };

// A figure has neither member.
struct Field {
    const char16_t* title = nullptr;
    Kind kind = Kind::Code;
    QString MonthRecord::*text = nullptr;
    bool MonthRecord::*mark = nullptr;
};

constexpr std::array before{
    Field{.title = u"社員ｺｰﾄﾞ", .kind = Kind::Code, .text = &MonthRecord::staff},
    Field{.title = u"部課ｺｰﾄﾞ", .kind = Kind::Code, .text = &MonthRecord::section},
    Field{.title = u"年", .kind = Kind::Year, .text = &MonthRecord::year},
    Field{.title = u"月", .kind = Kind::Month, .text = &MonthRecord::month},
};
constexpr std::array behind{
    Field{.title = u"本人", .kind = Kind::Mark, .mark = &MonthRecord::personalApproval},
    Field{.title = u"所長", .kind = Kind::Mark, .mark = &MonthRecord::superiorApproval},
    Field{.title = u"集計期間", .kind = Kind::Term, .text = &MonthRecord::term},
};

// The balance is the one number without quotes.
constexpr Kind kindOf(const QuantityFacts& facts) {
    if (facts.id == Quantity::PaidTotal) return Kind::Balance;
    if (facts.unit() == Unit::Days) return Kind::Days;
    return facts.unit() == Unit::Time ? Kind::Minutes : Kind::Count;
}

constexpr auto fields = [] {
    std::array<Field, before.size() + quantityCount + behind.size()> all{};
    auto place = std::ranges::copy(before, all.begin()).out;
    for (const QuantityFacts& facts : quantities)
        *place++ = {.title = facts.heading, .kind = kindOf(facts), .text = nullptr, .mark = nullptr};
    std::ranges::copy(behind, place);
    return all;
}();
constexpr std::size_t firstFigure = before.size();
constexpr int maxCodeLength = 10;         // bytes
constexpr int maxNumberLength = 60;       // the longest single without an exponent is shorter
constexpr qsizetype maxLineLength = 1024; // bytes

QString singleText(double number) {
    std::array<char, maxNumberLength> digits{};
    const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), static_cast<float>(number),
                                            std::chars_format::fixed);
    return error == std::errc() ? QString::fromLatin1(digits.data(), end - digits.data()) : QString();
}

std::optional<Value> singleOfText(const QString& text) {
    const auto isSign = [](QChar sign) { return (sign >= u'0' && sign <= u'9') || sign == u'.' || sign == u'-'; };
    if (text.size() > maxNumberLength || !std::ranges::all_of(text, isSign)) return {};
    const QByteArray digits = text.toLatin1();
    float number = 0;
    const char* const last = digits.constData() + digits.size();
    const auto [end, error] = std::from_chars(digits.constData(), last, number, std::chars_format::fixed);
    if (error != std::errc() || end != last || !std::isfinite(number)) return {};
    return static_cast<double>(number);
}

// Only in the one way in which it is written.
std::optional<Value> wholeOfText(const QString& text, int low, int high) {
    const int number = text.toInt();
    if (number < low || number > high || QString::number(number) != text) return {};
    return number;
}

std::optional<Value> figureOfText(Kind kind, const QString& text) {
    if (kind == Kind::Count)
        return wholeOfText(text, std::numeric_limits<std::int16_t>::min(), std::numeric_limits<std::int16_t>::max());
    if (kind == Kind::Minutes) return wholeOfText(text, Minutes::min().count(), Minutes::max().count());
    return singleOfText(text);
}

bool isTerm(const QString& text) {
    constexpr qsizetype dateLength = 10;
    const auto from = parseSlashDate(text.left(dateLength));
    const auto to = parseSlashDate(text.mid(dateLength + 1));
    return from && to && *from <= *to && slashDate(*from) + u'-' + slashDate(*to) == text;
}

bool isText(Kind kind, const QString& text) {
    switch (kind) {
    case Kind::Code:
        return !text.isEmpty() && text == text.trimmed() && byteLength(text) <= maxCodeLength;
    case Kind::Year:
        return parseDateId(text + QStringLiteral("0101")).has_value();
    case Kind::Month:
        return parseDateId(QStringLiteral("2000") + text + QStringLiteral("01")).has_value();
    default:
        return text.isEmpty() || isTerm(text);
    }
}

std::optional<bool> markOf(const QString& text) {
    const QString lower = text.toLower();
    if (lower == u"true" || lower == u"-1") return true;
    if (lower == u"false" || lower == u"0") return false;
    return {};
}

// Text fields stand in quotes, the one number without them, unless it takes the place of an empty cell.
bool isQuotedRight(Kind kind, const CsvCell& cell) {
    if (kind != Kind::Balance) return cell.quoted;
    return !cell.quoted || cell.text == u"0";
}

// Puts a cell into its place; false when it isn't of the field's kind.
bool put(MonthRecord& record, std::size_t place, const CsvCell& cell) {
    const Field& field = fields[place];
    if (!isQuotedRight(field.kind, cell)) return false;
    const auto isForeign = [](QChar sign) {
        return sign == QChar::ReplacementCharacter || sign.category() == QChar::Other_Control;
    };
    if (std::ranges::any_of(cell.text, isForeign)) return false;
    if (field.text) {
        record.*field.text = cell.text;
        return isText(field.kind, cell.text);
    }
    if (field.mark) {
        const auto mark = markOf(cell.text);
        record.*field.mark = mark.value_or(false);
        return mark.has_value();
    }
    // A balance in quotes is the sign of an empty cell, and no balance of 0.
    if (field.kind == Kind::Balance && cell.quoted) return true;
    const auto figure = figureOfText(field.kind, cell.text);
    record.figures[place - firstFigure] = figure.value_or(Value());
    return figure.has_value();
}

// Gives what is at fault, the field or the line as a whole; the empty text when all is well.
QString readLine(const QByteArray& bytes, MonthRecord& record) {
    if (bytes.size() > maxLineLength) return QStringLiteral("行の長さ");
    CsvLine line(fromCodePage(bytes));
    for (std::size_t place = 0; place < fields.size(); ++place) {
        const auto cell = line.next();
        if (!cell || !put(record, place, *cell)) return QString::fromUtf16(fields[place].title);
    }
    return line.atEnd() ? QString() : QStringLiteral("項目数");
}

QString cellText(const MonthRecord& record, std::size_t place) {
    const Field& field = fields[place];
    if (field.text) return csvQuoted(record.*field.text);
    if (field.mark) return csvQuoted(record.*field.mark ? QStringLiteral("True") : QStringLiteral("False"));
    const Value& figure = record.figures[place - firstFigure];
    if (figure.isNull()) return csvQuoted(QStringLiteral("0"));
    if (field.kind == Kind::Balance) return singleText(figure.real());
    return csvQuoted(field.kind == Kind::Days ? singleText(figure.real()) : QString::number(figure.integer()));
}

[[noreturn]] void refuseToWrite(const MonthRecord& record, const QString& why) {
    throw Complaint(lines(QStringLiteral("CSVﾌｧｲﾙに保存できないデータがあります。"),
                          QStringLiteral("社員ｺｰﾄﾞ：") + record.staff,
                          QStringLiteral("年月：") + record.year + u'/' + record.month, why));
}

bool comesBack(const QString& text) {
    const auto bytes = toCodePage(text);
    return bytes && fromCodePage(*bytes) == text;
}

QString firstForeign(const QString& text) {
    for (const char32_t character : text.toUcs4()) {
        const QString one = QString::fromUcs4(&character, 1);
        if (!comesBack(one)) return one;
    }
    return {};
}

QByteArray writtenLine(const MonthRecord& record) {
    QStringList cells;
    for (std::size_t place = 0; place < fields.size(); ++place) cells.append(cellText(record, place));
    const QString line = cells.join(u',');
    if (!comesBack(line)) refuseToWrite(record, QStringLiteral("使用できない文字：") + firstForeign(line));
    const QByteArray bytes = toCodePage(line).value_or(QByteArray());
    MonthRecord reread;
    const QString wrong = readLine(bytes, reread);
    if (!wrong.isEmpty()) refuseToWrite(record, QStringLiteral("項目：") + wrong);
    return bytes;
}

} // namespace

QByteArray csvBytes(const QList<MonthRecord>& months) {
    QByteArray bytes;
    for (const MonthRecord& month : months) bytes += writtenLine(month) + "\r\n";
    return bytes;
}

QList<MonthRecord> readCsv(const QByteArray& bytes, const QString& file) {
    QList<MonthRecord> months;
    for (qsizetype from = 0; from < bytes.size();) {
        const qsizetype feed = bytes.indexOf('\n', from);
        const qsizetype end = feed < 0 ? bytes.size() : feed;
        QByteArray line = bytes.mid(from, end - from);
        if (line.endsWith('\r')) line.chop(1);
        months.append(MonthRecord());
        const QString wrong = readLine(line, months.last());
        if (!wrong.isEmpty())
            throw Complaint(lines(QStringLiteral("データ形式に誤りがあります。"), QStringLiteral("ﾌｧｲﾙ名：") + file,
                                  QStringLiteral("行：") + QString::number(months.size()),
                                  QStringLiteral("項目：") + wrong));
        from = end + 1;
    }
    return months;
}

} // namespace kurbo
