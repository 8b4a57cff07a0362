#pragma once

#include <QList>
#include <QString>

namespace kurbo {

enum class TokenKind { Word, Text, Date, Number, Place, Operator, Comma, Open, Close, End };

struct Token {
    TokenKind kind = TokenKind::End;
    // Word and operator as written; a text without its quotes; a date in the stored form.
    QString text;
    qsizetype from = 0; // first character in the statement
    qsizetype past = 0; // one past its last character

    [[nodiscard]] bool is(QStringView word) const {
        return kind == TokenKind::Word && word.compare(text, Qt::CaseInsensitive) == 0;
    }
};

// Cuts a statement, or a criterion of a filter, into tokens. Stops before the first semicolon outside of quotes.
// Throws the fault of a syntax error for an open quote, a date that is none, or a foreign character.
[[nodiscard]] QList<Token> tokensOf(QStringView statement);

// The statements of a text in which each is ended by a semicolon; blank ones are left out.
[[nodiscard]] QStringList splitStatements(QStringView text);

} // namespace kurbo
