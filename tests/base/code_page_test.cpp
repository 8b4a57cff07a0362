#include "base/system/code_page.h"
#include "support/desk.h"

namespace kurbo::test {

TEST(CodePage, KeepsWhatItHolds) {
    for (const QString& text : {u"あア漢字"_q, u"ｶﾀｶﾅ"_q, u"～－―∥￥①㈱髙"_q, u"abc\\~"_q, QString()}) {
        const auto bytes = toCodePage(text);
        ASSERT_TRUE(bytes) << text;
        EXPECT_EQ(fromCodePage(*bytes), text);
    }
    EXPECT_EQ(toCodePage(u"～"_q)->toHex(), QByteArray("8160"));
}

TEST(CodePage, FoldsTwinsToItsOwnCharacters) {
    EXPECT_EQ(fromCodePage(*toCodePage(u"〜−—‖¥‾"_q)), u"～－―∥￥￣"_q);
}

TEST(CodePage, NamesWhatItLacks) {
    QString missing;
    EXPECT_FALSE(toCodePage(u"株式𠮷野"_q, &missing));
    EXPECT_EQ(missing, u"𠮷"_q);
    EXPECT_FALSE(toCodePage(u"한국"_q, &missing));
    EXPECT_EQ(missing, u"한"_q);
    EXPECT_EQ(fromCodePage(toCodePageVisibly(u"吉𠮷田😀!"_q)), u"吉?田?!"_q);
}

TEST(CodePage, CountsBytes) {
    EXPECT_EQ(byteLength(u"漢字"_q), 4);
    EXPECT_EQ(byteLength(u"ｶﾅab"_q), 4);
    EXPECT_EQ(byteLength(u"Ａ𠮷"_q), 4);
    EXPECT_EQ(byteLength({}), 0);
}

} // namespace kurbo::test
