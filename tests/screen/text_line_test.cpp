#include "screen/damage.h"
#include "screen/grid/text_line.h"

#include "base/system/files.h"

namespace kurbo::test {

TEST(TextLine, FieldsComeBackAndOtherLinesAreRefused) {
    const Desk desk;
    const QString file = desk.file(u"Text.tmp"_q);
    const QStringList fields{u""_q, u"a\"b,\"\""_q, u"部課表ソ"_q, u"\""_q};
    writeTextLine(file, fields);
    for (const QString& field : {u"髙𠮷"_q, u"〜"_q, u"a\r\nb"_q})
        EXPECT_TRUE(refused([&] { writeTextLine(file, {field}); })) << field;
    EXPECT_EQ(readFile(file), "\"\",\"a\"\"b,\"\"\"\"\",\"\x95\x94\x89\xDB\x95\x5C\x83\x5C\",\"\"\"\"\r\n");
    EXPECT_EQ(readTextLine(file, 4), fields);
    for (const char* end : {"", "\n", "\r", "\r\n"}) {
        put(file, QByteArray("\"a\",\"b\"") + end);
        EXPECT_EQ(readTextLine(file, 2), (QStringList{u"a"_q, u"b"_q}));
    }
    for (const char* line : {"", "\"a\"", "\"a\",\"b\",\"c\"", "\"a\",b", "\"a\",\"b", "\"a\";\"b\"",
                             "\"a\",\"b\"\r\n\r\n", "\"a\" ,\"b\"", "\"a\",\"b\nc\"", "\"a\",\"\xFF\xFF\""}) {
        put(file, line);
        EXPECT_TRUE(refused([&] { (void)readTextLine(file, 2); })) << line;
    }
}

} // namespace kurbo::test
