#include "base/field_tests.h"
#include "base/system/code_page.h"
#include "screen/fields/prefectures.h"
#include "support/desk.h"
#include "support/table.h"

#include <QSet>

namespace kurbo::test {

TEST(CodePage, KeepsWhatItHoldsAndFoldsTwins) {
    for (const QString& text : u"あア漢字|ｶﾀｶﾅ|～－―∥￥①㈱髙|abc\\~|"_q.split(u'|')) {
        const auto bytes = toCodePage(text);
        ASSERT_TRUE(bytes) << text;
        EXPECT_EQ(fromCodePage(*bytes), text);
        EXPECT_EQ(byteLength(text), bytes->size());
    }
    EXPECT_EQ(toCodePage(u"～"_q)->toHex(), QByteArray("8160"));
    EXPECT_EQ(fromCodePage(*toCodePage(u"〜−—‖¥‾"_q)), u"～－―∥￥￣"_q);
    EXPECT_EQ(byteLength(u"Ａ𠮷"_q), 4);
}

TEST(CodePage, NamesWhatItLacks) {
    for (const auto& [text, lack] : {std::pair{u"株式𠮷野"_q, u"𠮷"_q}, {u"한국"_q, u"한"_q}}) {
        QString missing;
        EXPECT_FALSE(toCodePage(text, &missing));
        EXPECT_EQ(missing, lack);
    }
    EXPECT_EQ(fromCodePage(toCodePageVisibly(u"吉𠮷田😀!"_q)), u"吉?田?!"_q);
}

TEST(FieldTests, ANumberMayHaveSignPointCommasAndExponent) {
    for (const QString& text : u"0; 12 ;-3;+1,234,567.5;.5;1.;1e3;1D-3"_q.split(u';'))
        EXPECT_TRUE(isNumeric(text)) << text;
    for (const QString& text : u"; ;.;-;1e;1 2;,1;1.2.3;１;12a;1\n;nan;1e999"_q.split(u';'))
        EXPECT_FALSE(isNumeric(text)) << text;
}

// A text and the kinds of whole number that take it.
TEST(FieldTests, WholeNumbersByTheirSign) {
    using enum IntegerMode;
    for (const QStringList& row : rowsOf("7|yyynn\n1e3|yyynn\n-0|yynyn\n-1,000|ynnyy\n1.0|nnnnn\n|nnnnn\n七|nnnnn")) {
        QString passes;
        for (const IntegerMode mode : {Any, NotNegative, Positive, NotPositive, Negative})
            passes += IsIntegerText(row[0], mode) ? u'y' : u'n';
        EXPECT_EQ(passes, row[1]) << row[0];
    }
}

// A text, and whether it is of letters and digits, of single bytes, a time.
TEST(FieldTests, KindsOfText) {
    for (const QStringList& row : rowsOf("Az09|yyn\na_b|nyn\nｶﾅ|nyn\nＡ|nnn\n😀|nnn\n|nnn\n09:05|nyy\n9:05|nyy\n"
                                         "23:59:59|nyy\n24:00|nyn\n12:60|nyn\n9_:05|nyn")) {
        QString kinds;
        for (const bool is : {IsAlphaNumeric(row[0]), IsSingleByte(row[0]), isTimeText(row[0])})
            kinds += is ? u'y' : u'n';
        EXPECT_EQ(kinds, row[1]) << row[0];
    }
    EXPECT_FALSE(isTimeText(u"12:00 "_q));
}

TEST(Prefectures, HaveTheNumbersOfTheStandard) {
    QSet<QString> names;
    for (int code = 0; code <= prefectureCount; ++code) {
        names.insert(PrefectureName(code));
        EXPECT_EQ(PrefectureCode(PrefectureName(code)), code);
    }
    EXPECT_EQ(names.size(), 48);
    EXPECT_EQ(PrefectureName(13) + PrefectureName(48), u"東京都全国"_q);
    EXPECT_EQ(PrefectureCode(u"東京"_q), -1);
}

} // namespace kurbo::test
