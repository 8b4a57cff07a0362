#include "store/dialect/criterion.h"

#include "store/dialect/dialect_lexer.h"
#include "store/engine_fault.h"
#include "store/text_order.h"

#include <algorithm>
#include <compare>

namespace kurbo {
namespace {

Value literal(const Token& token, const Values& values, qsizetype& next) {
    switch (token.kind) {
    case TokenKind::Text:
        return token.text;
    case TokenKind::Date:
        return *parseIso(token.text.toStdString());
    case TokenKind::Number:
        if (token.text.contains(u'.')) return token.text.toDouble();
        return std::int64_t{token.text.toLongLong()};
    case TokenKind::Place:
        if (next < values.size()) return values[next++];
        break;
    case TokenKind::Word:
        if (token.is(u"True") || token.is(u"False")) return Value::yesNo(token.is(u"True"));
        break;
    default:
        break;
    }
    throw syntaxFault(token.text);
}

bool isText(const Value& value) {
    return std::holds_alternative<QString>(value.data());
}

// Below 0, 0 or above 0.
int compared(const Value& left, const Value& right) {
    const auto leftMoment = left.moment();
    const auto rightMoment = right.moment();
    if (leftMoment && rightMoment) return *leftMoment < *rightMoment ? -1 : (*leftMoment > *rightMoment ? 1 : 0);
    if (isText(left) || isText(right)) return compareText(left.text(), right.text());
    const double difference = left.real() - right.real();
    return difference < 0 ? -1 : (difference > 0 ? 1 : 0);
}

bool meets(const QString& sign, int order) {
    if (sign == u"=") return order == 0;
    if (sign == u"<>") return order != 0;
    if (sign == u"<") return order < 0;
    if (sign == u"<=") return order <= 0;
    if (sign == u">") return order > 0;
    return order >= 0;
}

} // namespace

Criterion::Criterion(const QString& text, const Values& values) {
    static const QStringList signs{QStringLiteral("="),  QStringLiteral("<>"), QStringLiteral("<"),
                                   QStringLiteral("<="), QStringLiteral(">"),  QStringLiteral(">=")};
    const QList<Token> tokens = tokensOf(text);
    qsizetype next = 0;
    for (qsizetype i = 0; i < tokens.size(); i += 4) {
        const bool joined = i == 0 || tokens[i - 1].is(u"AND");
        const bool whole = i + 2 < tokens.size();
        if (!joined || !whole || tokens[i].kind != TokenKind::Word || !signs.contains(tokens[i + 1].text))
            throw syntaxFault(text);
        comparisons_.append({tokens[i].text, tokens[i + 1].text, literal(tokens[i + 2], values, next)});
    }
    if (comparisons_.isEmpty()) throw syntaxFault(text);
}

bool Criterion::holds(const FieldValue& fieldValue) const {
    return std::ranges::all_of(comparisons_, [&](const Comparison& comparison) {
        const Value value = fieldValue(comparison.field);
        if (value.isNull() || comparison.value.isNull()) return false;
        return meets(comparison.sign, compared(value, comparison.value));
    });
}

} // namespace kurbo
