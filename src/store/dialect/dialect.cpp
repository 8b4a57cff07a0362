#include "store/dialect/dialect.h"

#include "store/dialect/dialect_lexer.h"
#include "store/engine_fault.h"

#include <algorithm>
#include <array>
#include <ranges>
#include <string_view>

namespace kurbo {
namespace {

// Words that end an operand of "&".
constexpr std::array clauseWords{u"SELECT",  u"DISTINCT", u"FROM", u"WHERE",  u"AND",    u"OR",     u"NOT",   u"IN",
                                 u"BETWEEN", u"LIKE",     u"IS",   u"AS",     u"ON",     u"INNER",  u"JOIN",  u"OUTER",
                                 u"GROUP",   u"ORDER",    u"BY",   u"HAVING", u"UNION",  u"ALL",    u"SET",   u"INTO",
                                 u"VALUES",  u"ASC",      u"DESC", u"UPDATE", u"DELETE", u"INSERT", u"LIMIT", u"CASE",
                                 u"WHEN",    u"THEN",     u"ELSE", u"END"};

struct Function {
    std::u16string_view dialect;
    std::u16string_view engine;
    bool givesText = true;
};

// The engine knows some of these names with another meaning, so each goes to a function of ours.
constexpr std::array functions{Function{.dialect = u"Left", .engine = u"kurbo_left"},
                               Function{.dialect = u"Mid", .engine = u"kurbo_mid"},
                               Function{.dialect = u"Right", .engine = u"kurbo_right"},
                               Function{.dialect = u"Format", .engine = u"kurbo_format"},
                               Function{.dialect = u"CLng", .engine = u"kurbo_clng", .givesText = false},
                               Function{.dialect = u"CDate", .engine = u"kurbo_cdate", .givesText = false},
                               Function{.dialect = u"Len", .engine = u"length", .givesText = false}};

bool isComparison(const Token& token) {
    static const QStringList comparisons{QStringLiteral("="), QStringLiteral("<>"), QStringLiteral("<"),
                                         QStringLiteral(">"), QStringLiteral("<="), QStringLiteral(">=")};
    return token.kind == TokenKind::Operator && comparisons.contains(token.text);
}

const Function* functionOf(const Token& token) {
    const auto found =
        std::ranges::find_if(functions, [&token](const Function& function) { return token.is(function.dialect); });
    return found == functions.end() ? nullptr : &*found;
}

QString engineName(const Function& function) {
    return QString::fromUtf16(function.engine.data(), static_cast<qsizetype>(function.engine.size()));
}

class Translator final {
  public:
    Translator(QStringView statement, QList<Token> tokens) : statement_(statement), tokens_(std::move(tokens)) {}

    QString run() {
        const QString sql = sequence();
        if (at_ != tokens_.size()) throw syntaxFault(statement_);
        return sql;
    }

  private:
    [[nodiscard]] bool more() const { return at_ < tokens_.size(); }
    [[nodiscard]] const Token& here() const { return tokens_[at_]; }
    [[nodiscard]] bool nextIsOpen() const {
        return at_ + 1 < tokens_.size() && tokens_[at_ + 1].kind == TokenKind::Open;
    }

    // Tokens up to the closing parenthesis of this level, or the end.
    QString sequence() {
        QString sql;
        while (more() && here().kind != TokenKind::Close) {
            if (endsOperand()) {
                flush(sql);
                boundary(sql);
            } else if (here().kind == TokenKind::Operator && here().text == u"&") {
                operands_.append(std::exchange(operand_, QString()));
                ++at_;
            } else {
                item();
            }
        }
        flush(sql);
        return sql;
    }

    [[nodiscard]] bool endsOperand() const {
        const Token& token = here();
        if (token.kind == TokenKind::Comma || isComparison(token)) return true;
        if (token.kind != TokenKind::Word) return false;
        // LEFT and RIGHT are joins, unless they are functions.
        if ((token.is(u"LEFT") || token.is(u"RIGHT")) && !nextIsOpen()) return true;
        return std::ranges::any_of(clauseWords, [&token](const char16_t* word) { return token.is(word); });
    }

    // Writes the operand in hand, or the operands of a joined text, in which Null is empty.
    void flush(QString& sql) {
        if (operands_.isEmpty()) {
            sql += operand_;
        } else {
            operands_.append(operand_);
            for (QString& operand : operands_) operand = QStringLiteral("ifnull(") + operand + QStringLiteral(",'')");
            sql += QStringLiteral(" (") + operands_.join(QStringLiteral("||")) + QStringLiteral(" COLLATE NOCASE)");
        }
        operands_.clear();
        operand_.clear();
    }

    void boundary(QString& sql) {
        const Token token = here();
        ++at_;
        if (token.is(u"DELETE")) skipStar();
        if (token.is(u"SET")) assigning_ = true;
        if (token.is(u"WHERE")) assigning_ = false;
        if (isComparison(token) && !assigning_ && more() && here().is(u"True") &&
            (token.text == u"=" || token.text == u"<>")) {
            ++at_;
            sql += token.text == u"=" ? u"<>0" : u"=0";
            return;
        }
        sql += u' ' + token.text;
    }

    // "DELETE * FROM", and "DELETE T.* FROM".
    void skipStar() {
        if (more() && here().kind == TokenKind::Word && here().text.endsWith(u'.')) ++at_;
        if (more() && here().text == u"*") ++at_;
    }

    void item() {
        const Token token = here();
        if (const Function* function = nextIsOpen() ? functionOf(token) : nullptr) {
            at_ += 2;
            operand_ += QStringLiteral(" (") + engineName(*function);
            group();
            operand_ += function->givesText ? QStringLiteral(" COLLATE NOCASE)") : QStringLiteral(")");
            return;
        }
        if (token.kind == TokenKind::Open) {
            ++at_;
            group();
            return;
        }
        operand_ += u' ' + rendered(token);
        ++at_;
    }

    // Each level stands on the stack, here and in the engine.
    void group() {
        constexpr int deepest = 50;
        if (depth_ >= deepest) throw syntaxFault(statement_);
        Translator inner(statement_, tokens_);
        inner.at_ = at_;
        inner.depth_ = depth_ + 1;
        const QString sql = inner.sequence();
        if (!inner.more()) throw syntaxFault(statement_);
        at_ = inner.at_ + 1;
        operand_ += u'(' + sql.trimmed() + u')';
    }

    [[nodiscard]] QString rendered(const Token& token) const {
        if (token.kind == TokenKind::Text || token.kind == TokenKind::Date)
            return u'\'' + QString(token.text).replace(u'\'', QStringLiteral("''")) + u'\'';
        if (token.kind == TokenKind::Operator && token.text == u"/") return QStringLiteral("*1.0/");
        if (token.kind != TokenKind::Word) return token.text;
        if (token.is(u"True")) return QStringLiteral("-1");
        if (token.is(u"False")) return QStringLiteral("0");
        // In "SET table.field = value" the engine allows no table.
        if (assigning_ && at_ + 1 < tokens_.size() && tokens_[at_ + 1].text == u"=")
            return token.text.section(u'.', -1);
        return token.text;
    }

    QStringView statement_;
    QList<Token> tokens_;
    qsizetype at_ = 0;
    int depth_ = 0;
    bool assigning_ = false;
    QString operand_;
    QStringList operands_;
};

// The index of `word` outside of parentheses, or -1; the last one when it stands more than once.
qsizetype topLevel(const QList<Token>& tokens, QStringView word) {
    int depth = 0;
    qsizetype found = -1;
    for (qsizetype i = 0; i < tokens.size(); ++i) {
        if (tokens[i].kind == TokenKind::Open) ++depth;
        if (tokens[i].kind == TokenKind::Close) --depth;
        if (depth == 0 && tokens[i].is(word)) found = i;
    }
    return found;
}

// The table of a plain SELECT over one table.
QString onlyTable(const QList<Token>& tokens) {
    const qsizetype from = topLevel(tokens, u"FROM");
    if (from < 0 || from + 1 >= tokens.size() || tokens[from + 1].kind != TokenKind::Word) return {};
    for (const QStringView word : {u"UNION", u"DISTINCT", u"GROUP", u"JOIN"})
        if (topLevel(tokens, word) >= 0) return {};
    const bool listed = from + 2 < tokens.size() && tokens[from + 2].kind == TokenKind::Comma;
    return listed ? QString() : tokens[from + 1].text;
}

Translation translation(QStringView statement, const QList<Token>& tokens) {
    const bool reads = !tokens.isEmpty() && tokens.first().is(u"SELECT");
    const bool writes = !tokens.isEmpty() &&
                        (tokens.first().is(u"INSERT") || tokens.first().is(u"UPDATE") || tokens.first().is(u"DELETE"));
    if (!reads && !writes) throw syntaxFault(statement);
    return {Translator(statement, tokens).run().toUtf8(), reads, reads ? onlyTable(tokens) : QString()};
}

// The terms of an ORDER BY, turned round.
QList<Token> turned(const QList<Token>& terms) {
    static const Token descending{TokenKind::Word, QStringLiteral("DESC")};
    QList<Token> result;
    int depth = 0;
    bool wasDescending = false;
    const auto endTerm = [&] {
        if (!wasDescending) result.append(descending);
        wasDescending = false;
    };
    for (const Token& token : terms) {
        if (token.kind == TokenKind::Open) ++depth;
        if (token.kind == TokenKind::Close) --depth;
        if (depth == 0 && token.is(u"DESC")) {
            wasDescending = true;
        } else if (!(depth == 0 && token.is(u"ASC"))) {
            if (depth == 0 && token.kind == TokenKind::Comma) endTerm();
            result.append(token);
        }
    }
    endTerm();
    return result;
}

} // namespace

Translation translated(QStringView statement) {
    return translation(statement, tokensOf(statement));
}

Translation translatedFromLast(QStringView statement) {
    const QList<Token> tokens = tokensOf(statement);
    const qsizetype order = topLevel(tokens, u"ORDER");
    if (order < 0) throw syntaxFault(statement);
    return translation(statement, tokens.first(order + 2) + turned(tokens.mid(order + 2)));
}

Translation translatedWithRowId(QStringView statement) {
    QList<Token> tokens = tokensOf(statement);
    const QString table = tokens.isEmpty() || !tokens.first().is(u"SELECT") ? QString() : onlyTable(tokens);
    if (table.isEmpty()) throw syntaxFault(statement);
    tokens.insert(1, Token{TokenKind::Word, table + QStringLiteral(".rowid")});
    tokens.insert(2, Token{TokenKind::Comma, QStringLiteral(",")});
    return translation(statement, tokens);
}

} // namespace kurbo
