#include "store/dialect/dialect_lexer.h"

#include "base/day.h"
#include "store/engine_fault.h"

namespace kurbo {
namespace {

bool startsWord(QChar c) {
    return c.isLetter() || c == u'_';
}

bool inWord(QChar c) {
    return c.isLetterOrNumber() || c == u'_' || c == u'.';
}

class Lexer final {
  public:
    explicit Lexer(QStringView text) : text_(text) {}

    QList<Token> all() {
        QList<Token> tokens;
        for (;;) {
            while (at_ < text_.size() && text_[at_].isSpace()) ++at_;
            if (at_ == text_.size() || text_[at_] == u';') return tokens;
            tokens.append(next());
        }
    }

    [[nodiscard]] qsizetype position() const { return at_; }

  private:
    Token next() {
        const qsizetype from = at_;
        Token token = read();
        token.from = from;
        token.past = at_;
        return token;
    }

    Token read() {
        const QChar c = text_[at_];
        if (c == u'\'' || c == u'"') return {TokenKind::Text, quoted(c)};
        if (c == u'#') return {TokenKind::Date, date()};
        if (c == u'[') return bracketed();
        if (startsWord(c)) return {TokenKind::Word, run(inWord)};
        if (c.isDigit()) return {TokenKind::Number, number()};
        ++at_;
        switch (c.unicode()) {
        case u'?':
            return {TokenKind::Place, QString(c)};
        case u',':
            return {TokenKind::Comma, QString(c)};
        case u'(':
            return {TokenKind::Open, QString(c)};
        case u')':
            return {TokenKind::Close, QString(c)};
        default:
            return {TokenKind::Operator, operatorFrom(c)};
        }
    }

    QString run(bool (*belongs)(QChar)) {
        const qsizetype from = at_;
        while (at_ < text_.size() && belongs(text_[at_])) ++at_;
        return text_.mid(from, at_ - from).toString();
    }

    // A doubled quote stands for one.
    QString quoted(QChar quote) {
        QString value;
        for (++at_; at_ < text_.size(); ++at_) {
            if (text_[at_] == quote) {
                if (at_ + 1 == text_.size() || text_[at_ + 1] != quote) {
                    ++at_;
                    return value;
                }
                ++at_;
            }
            value += text_[at_];
        }
        throw syntaxFault(text_);
    }

    QString date() {
        const qsizetype close = text_.indexOf(u'#', at_ + 1);
        const auto moment = close < 0 ? std::nullopt : parseSlashMoment(text_.mid(at_ + 1, close - at_ - 1).trimmed());
        if (!moment) throw syntaxFault(text_);
        at_ = close + 1;
        return QString::fromStdString(isoText(*moment));
    }

    Token bracketed() {
        const qsizetype close = text_.indexOf(u']', at_);
        if (close < 0) throw syntaxFault(text_);
        const qsizetype from = std::exchange(at_, close + 1);
        QString name = text_.mid(from, at_ - from).toString();
        // [Table].[Field]
        if (at_ + 1 < text_.size() && text_[at_] == u'.') {
            ++at_;
            name += u'.' + (text_[at_] == u'[' ? bracketed().text : run(inWord));
        }
        return {TokenKind::Word, name};
    }

    QString number() {
        const auto exponentSign = [this] {
            return (text_[at_] == u'+' || text_[at_] == u'-') && text_[at_ - 1].toLower() == u'e';
        };
        const qsizetype from = at_;
        while (at_ < text_.size() && (text_[at_].isLetterOrNumber() || text_[at_] == u'.' || exponentSign())) ++at_;
        return text_.mid(from, at_ - from).toString();
    }

    QString operatorFrom(QChar c) {
        static const QString known = QStringLiteral("<>=!&+-*/%");
        if (!known.contains(c)) throw syntaxFault(text_);
        const QChar second = at_ < text_.size() ? text_[at_] : QChar();
        const bool two = (c == u'<' && (second == u'>' || second == u'=')) || (c == u'>' && second == u'=') ||
                         (c == u'!' && second == u'=');
        if (!two) return QString(c);
        ++at_;
        return QString(c) + second;
    }

    QStringView text_;
    qsizetype at_ = 0;
};

} // namespace

QList<Token> tokensOf(QStringView statement) {
    return Lexer(statement).all();
}

QStringList splitStatements(QStringView text) {
    QStringList statements;
    while (!text.isEmpty()) {
        Lexer lexer(text);
        const bool blank = lexer.all().isEmpty();
        if (!blank) statements.append(text.left(lexer.position()).trimmed().toString());
        text = text.mid(lexer.position() + 1);
    }
    return statements;
}

} // namespace kurbo
