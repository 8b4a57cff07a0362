#include "paper/pdf_letters.h"

#include "paper/paper_painter.h"

#include <QHash>
#include <QRawFont>

#include <array>
#include <utility>

namespace kurbo {
namespace {

using Twins = QHash<char16_t, char16_t>;

// Characters that the code page holds as another one, which looks the same.
struct Twin {
    char16_t name;
    char16_t letter;
};
constexpr std::array codePageTwins{Twin{u'〜', u'～'}, Twin{u'−', u'－'}, Twin{u'—', u'―'}, Twin{u'‖', u'∥'}};

QList<quint32> glyphsFrom(const QRawFont& font, char16_t first, char16_t last) {
    QString letters;
    for (uint letter = first; letter <= last; ++letter) letters.append(QChar(letter));
    return font.glyphIndexesForString(letters);
}

// The letters whose glyph the toolkit names by another character. A blank shares its glyph with control characters.
Twins findTwins() {
    constexpr char16_t firstRadical = 0x2E80;
    constexpr char16_t lastRadical = 0x2FDF;
    constexpr char16_t firstKanji = 0x4E00;
    constexpr char16_t lastKanji = 0x9FFF;
    QFont font;
    font.setFamilies(japaneseFamilies());
    const QRawFont raw = QRawFont::fromFont(font, QFontDatabase::Japanese);
    QHash<quint32, char16_t> kanjiOf;
    const QList<quint32> kanji = glyphsFrom(raw, firstKanji, lastKanji);
    for (qsizetype i = kanji.size(); --i >= 0;)
        if (kanji[i] != 0) kanjiOf.insert(kanji[i], static_cast<char16_t>(firstKanji + i));
    Twins twins;
    for (char16_t control = 1; control < u' '; ++control) twins.insert(control, u' ');
    for (const auto& [name, letter] : codePageTwins)
        if (glyphsFrom(raw, name, name) == glyphsFrom(raw, letter, letter)) twins.insert(name, letter);
    const QList<quint32> radicals = glyphsFrom(raw, firstRadical, lastRadical);
    for (qsizetype i = 0; i < radicals.size(); ++i)
        if (const char16_t letter = kanjiOf.value(radicals[i]))
            twins.insert(static_cast<char16_t>(firstRadical + i), letter);
    return twins;
}

// Each entry of the list is "<hhhh>".
void renameIn(QByteArray& pdf, qsizetype from, qsizetype to, const Twins& twins) {
    constexpr int digits = 4;
    for (qsizetype at = pdf.indexOf('<', from); at >= 0 && at < to; at = pdf.indexOf('<', at + 1)) {
        const auto name = static_cast<char16_t>(pdf.mid(at + 1, digits).toUInt(nullptr, 16));
        if (const char16_t letter = twins.value(name))
            pdf.replace(at + 1, digits, QByteArray::number(letter, 16).rightJustified(digits, '0').toUpper());
    }
}

} // namespace

void nameLetters(QByteArray& pdf) {
    static const Twins twins = findTwins();
    qsizetype to = 0;
    for (qsizetype from = 0; (from = pdf.indexOf("beginbfrange", to)) >= 0;) {
        to = pdf.indexOf("endbfrange", from);
        if (to < 0) return;
        for (qsizetype list = pdf.indexOf('[', from); list >= 0 && list < to; list = pdf.indexOf('[', list + 1))
            renameIn(pdf, list, std::min(to, pdf.indexOf(']', list)), twins);
    }
}

} // namespace kurbo
