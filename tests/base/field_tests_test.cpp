#include "base/field_tests.h"
#include "screen/fields/prefectures.h"
#include "support/desk.h"

#include <QSet>

namespace kurbo::test {

TEST(FieldTests, ANumberMayHaveSignPointCommasAndExponent) {
    for (const QString& text : {u"0"_q, u" 12 "_q, u"-3"_q, u"+1,234,567.5"_q, u".5"_q, u"1."_q, u"1e3"_q, u"1D-3"_q})
        EXPECT_TRUE(isNumeric(text)) << text;
    for (const QString& text : {QString(), u" "_q, u"."_q, u"-"_q, u"1e"_q, u"1 2"_q, u",1"_q, u"1.2.3"_q, u"１"_q,
                                u"12a"_q, u"1\n"_q, u"nan"_q, u"1e999"_q})
        EXPECT_FALSE(isNumeric(text)) << text;
}

TEST(FieldTests, WholeNumbersByTheirSign) {
    struct Case {
        QString text;
        QList<IntegerMode> passes;
    };
    using enum IntegerMode;
    for (const auto& [text, passes] :
         {Case{u"  7"_q, {Any, NotNegative, Positive}}, Case{u"1e3"_q, {Any, NotNegative, Positive}},
          Case{u"-0"_q, {Any, NotNegative, NotPositive}}, Case{u"-1,000"_q, {Any, NotPositive, Negative}},
          Case{u"1.0"_q, {}}, Case{QString(), {}}, Case{u"七"_q, {}}})
        for (const IntegerMode mode : {Any, NotNegative, Positive, NotPositive, Negative})
            EXPECT_EQ(IsIntegerText(text, mode), passes.contains(mode)) << text << static_cast<int>(mode);
}

TEST(FieldTests, KindsOfText) {
    for (const auto& [text, alphaNumeric, singleByte, time] :
         {std::tuple{u"Az09"_q, true, true, false}, std::tuple{u"a_b"_q, false, true, false},
          std::tuple{u"ｶﾅ"_q, false, true, false}, std::tuple{u"Ａ"_q, false, false, false},
          std::tuple{u"😀"_q, false, false, false}, std::tuple{QString(), false, false, false},
          std::tuple{u"09:05"_q, false, true, true}, std::tuple{u"9:05"_q, false, true, true},
          std::tuple{u"23:59:59"_q, false, true, true}, std::tuple{u"24:00"_q, false, true, false},
          std::tuple{u"12:60"_q, false, true, false}, std::tuple{u"9_:05"_q, false, true, false},
          std::tuple{u"12:00 "_q, false, true, false}}) {
        EXPECT_EQ(IsAlphaNumeric(text), alphaNumeric) << text;
        EXPECT_EQ(IsSingleByte(text), singleByte) << text;
        EXPECT_EQ(isTimeText(text), time) << text;
    }
}

TEST(Prefectures, HaveTheNumbersOfTheStandard) {
    QSet<QString> names;
    for (int code = 0; code <= prefectureCount; ++code) {
        names.insert(PrefectureName(code));
        EXPECT_EQ(PrefectureCode(PrefectureName(code)), code);
    }
    EXPECT_EQ(names.size(), 48);
    EXPECT_EQ(PrefectureName(1), u"北海道"_q);
    EXPECT_EQ(PrefectureName(13), u"東京都"_q);
    EXPECT_EQ(PrefectureName(27), u"大阪府"_q);
    EXPECT_EQ(PrefectureName(40), u"福岡県"_q);
    EXPECT_EQ(PrefectureName(47), u"沖縄県"_q);
    EXPECT_EQ(PrefectureName(48), u"全国"_q);
    EXPECT_EQ(PrefectureName(-1), u"全国"_q);
    EXPECT_EQ(PrefectureCode(u"東京"_q), -1);
}

} // namespace kurbo::test
