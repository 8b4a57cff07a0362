#include "base/system/code_page.h"

#include <QStringDecoder>
#include <QStringEncoder>

#include <array>
#include <utility>

namespace kurbo {
namespace {

constexpr auto codePageName = "windows-31j";

// Characters of other platforms' Japanese input, and the character that CP932 holds in their place.
constexpr std::array<std::pair<char16_t, char16_t>, 6> twins{{{u'\u301C', u'\uFF5E'},
                                                              {u'\u2212', u'\uFF0D'},
                                                              {u'\u2014', u'\u2015'},
                                                              {u'\u2016', u'\u2225'},
                                                              {u'\u00A5', u'\uFFE5'},
                                                              {u'\u203E', u'\uFFE3'}}};

QString folded(QString text) {
    for (const auto& [other, own] : twins) text.replace(QChar(other), QChar(own));
    return text;
}

// One character, which may be a surrogate pair, at `from`.
QString characterAt(const QString& text, qsizetype from) {
    const bool pair = text[from].isHighSurrogate() && from + 1 < text.size();
    return text.mid(from, pair ? 2 : 1);
}

std::optional<QByteArray> encoded(const QString& text) {
    QStringEncoder encoder(codePageName);
    QByteArray bytes = encoder.encode(text);
    if (encoder.hasError()) return {};
    return bytes;
}

} // namespace

std::optional<QByteArray> toCodePage(const QString& text, QString* missing) {
    const QString own = folded(text);
    auto bytes = encoded(own);
    if (bytes || !missing) return bytes;
    for (qsizetype i = 0; i < own.size();) {
        const QString character = characterAt(own, i);
        if (!encoded(character)) {
            *missing = character;
            break;
        }
        i += character.size();
    }
    return {};
}

QByteArray toCodePageVisibly(const QString& text) {
    const QString own = folded(text);
    if (auto bytes = encoded(own)) return *bytes;
    QByteArray result;
    for (qsizetype i = 0; i < own.size();) {
        const QString character = characterAt(own, i);
        result += encoded(character).value_or(QByteArrayLiteral("?"));
        i += character.size();
    }
    return result;
}

QString fromCodePage(const QByteArray& bytes) {
    QStringDecoder decoder(codePageName);
    return decoder.decode(bytes);
}

int byteLength(const QString& text) {
    int length = 0;
    for (qsizetype i = 0; i < text.size();) {
        const QString character = characterAt(text, i);
        const auto bytes = toCodePage(character);
        length += bytes ? static_cast<int>(bytes->size()) : 2;
        i += character.size();
    }
    return length;
}

} // namespace kurbo
