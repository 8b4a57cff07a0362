#include "store/dialect/dialect.h"

#include "store/dialect/dialect_lexer.h"
#include "store/engine_fault.h"
#include "store/text_order.h"
#include "support/sample_company.h"

namespace kurbo::test {
namespace {

class Dialect : public SampleCompany {
  protected:
    QString value(const QString& expression) { return asked(u"SELECT "_q + expression + u" FROM C01_Corp;"_q); }
};

} // namespace

TEST_F(Dialect, JoinsTextWithNullAsEmpty) {
    EXPECT_EQ(value(u"'a' & Null & 'b'"_q), u"ab"_q);
    EXPECT_EQ(value(u"Null & Null"_q), QString());
    EXPECT_EQ(value(u"1 + 2 & 'x' & 2 * 3"_q), u"3x6"_q);
    EXPECT_EQ(value(u"('a' & ('b' & 'c')) & Left('def', 2)"_q), u"abcde"_q);
    EXPECT_EQ(value(u"IIf('a' & Null = 'A' & '', 1, 2)"_q), u"1"_q) << "joined text is text";
    EXPECT_EQ(
        asked(u"SELECT F_Corp FROM C01_Corp WHERE F_Corp & F_Branch = '見本商事' AND 1 & 2 BETWEEN '11' AND '13'"_q),
        u"見本商事"_q);
}

TEST_F(Dialect, FunctionsKnowNullAndTheirLimits) {
    EXPECT_EQ(value(u"Left('漢字かな', 2)"_q), u"漢字"_q);
    EXPECT_EQ(value(u"Right('漢字かな', 9)"_q), u"漢字かな"_q);
    EXPECT_EQ(value(u"Mid('20260401', 5, 2)"_q), u"04"_q);
    EXPECT_EQ(value(u"Mid('abc', 3)"_q), u"c"_q);
    EXPECT_EQ(value(u"Left(F_Branch, 2)"_q), u"-"_q);
    EXPECT_EQ(value(u"CLng('20260401') + 1"_q), u"20260402"_q);
    EXPECT_EQ(value(u"Format(7, '0000')"_q), u"0007"_q);
    EXPECT_EQ(value(u"Format(-12345, '0000')"_q), u"-12345"_q);
    EXPECT_EQ(value(u"Format('3', '00月')"_q), u"03月"_q);
    EXPECT_EQ(value(u"Format(#2026/04/01 08:05:09#, 'yyyy/mm/dd hh:nn:ss')"_q), u"2026/04/01 08:05:09"_q);
    EXPECT_THROW((void)value(u"CDate('2026/02/30')"_q), Fault);
    EXPECT_THROW((void)value(u"CLng('abc')"_q), Fault);
}

TEST_F(Dialect, TrueIsAnyValueButZero) {
    connection.execute(u"UPDATE C02_Section SET F_Display = 1 WHERE F_SectionCode = 'S01'"_q);
    EXPECT_EQ(asked(u"SELECT F_SectionCode FROM C02_Section WHERE (F_Display = True)AND (F_Order > 0)"_q), u"S01"_q);
    EXPECT_EQ(asked(u"SELECT Count(*) FROM C02_Section WHERE F_Display <> True"_q), u"1"_q);
    connection.execute(u"UPDATE C02_Section SET F_Display = True WHERE (F_Display = False)"_q);
    EXPECT_EQ(asked(u"SELECT F_Display FROM C02_Section WHERE F_SectionCode = 'NEW'"_q), u"-1"_q);
}

TEST_F(Dialect, TextComparesWithoutRegardToCaseAndKeepsNullApart) {
    connection.execute(u"UPDATE C01_Corp SET F_Branch = '', F_Title = 'ＡＢＣ', F_President = 'It''s \"x\"'"_q);
    EXPECT_EQ(asked(u"SELECT Count(*) FROM C01_Corp WHERE (F_Title = 'ａbc')"_q), u"0"_q);
    EXPECT_EQ(asked(u"SELECT Count(*) FROM C01_Corp WHERE (F_Title = 'ａｂｃ')"_q), u"1"_q);
    EXPECT_EQ(asked(u"SELECT Count(*) FROM C01_Corp WHERE (F_Branch = '') AND (F_Address1 Is Null)"_q), u"1"_q);
    EXPECT_EQ(asked(u"SELECT F_President FROM C01_Corp"_q), u"It's \"x\""_q);
    EXPECT_EQ(asked(u"SELECT Count(*) FROM C03_Staff WHERE F_StaffCode = \"admin\""_q), u"1"_q);
}

TEST_F(Dialect, SpellingsOfOtherToolsAreUnderstood) {
    EXPECT_EQ(value(u"7 / 2"_q), u"3.5"_q);
    EXPECT_EQ(value(u"Len('漢字')"_q), u"2"_q);
    EXPECT_EQ(value(u"Format(#2026/04/01 08:05:09#, 'h:nn')"_q), u"8:05"_q);
    EXPECT_EQ(value(u"Format(#2026/04/01 08:05:09#, 'yy/m/d hh:mm')"_q), u"26/4/1 08:05"_q);
    EXPECT_EQ(value(u"IIf(Left('Abc', 1) = 'a' AND Mid('xB', 2) & '' = 'b', 'same', 'other')"_q), u"same"_q);
    EXPECT_EQ(asked(u"SELECT [C02_Section].[F_SectionCode] FROM [C02_Section] WHERE [C02_Section].F_Order = 1"_q),
              u"S01"_q);
    connection.execute(u"UPDATE C01_Corp SET C01_Corp.F_Tel = 'a=b', F_Fax = '1' WHERE C01_Corp.F_Corp = '見本商事'"_q);
    EXPECT_EQ(asked(u"SELECT F_Tel & F_Fax FROM C01_Corp"_q), u"a=b1"_q);
    connection.execute(u"DELETE C01_Corp.* FROM C01_Corp WHERE C01_Corp.F_Fax = '1'"_q);
    EXPECT_EQ(count(u"C01_Corp"_q), 0);
    EXPECT_EQ(connection.rows(u"SELECT Count(*) FROM C01_Corp"_q).name(0), u"Count(*)"_q);
}

TEST_F(Dialect, SyntaxErrorsAreFaults) {
    for (const QString& statement :
         {u"SELECT 'open FROM C01_Corp"_q, u"SELECT (1 FROM C01_Corp"_q, u"SELECT 1) FROM C01_Corp"_q, u";"_q,
          QString(), u"SELECT #2026/13/01# FROM C01_Corp"_q, u"SELECT #x FROM C01_Corp"_q,
          u"SELECT [F_Corp FROM C01_Corp"_q, u"SELEKT F_Corp FROM C01_Corp"_q, u"SELECT F_Corp ' FROM C01_Corp"_q,
          u"SELECT @x FROM C01_Corp"_q, u"ROLLBACK"_q, u"COMMIT"_q, u"PRAGMA foreign_keys = OFF"_q,
          u"DROP TABLE C01_Corp"_q, u"SELECT "_q + u"("_q.repeated(200000)})
        EXPECT_EQ(refusalOf([&] { (void)asked(statement); }), QString::number(static_cast<int>(StoreError::Syntax)))
            << statement;
}

TEST(DialectText, StatementsAreSplitOutsideOfQuotes) {
    EXPECT_EQ(splitStatements(u"SELECT ';' FROM A; \n; DELETE * FROM B WHERE x = \"a;b\";  SELECT [a;b] FROM C"_q),
              QStringList({u"SELECT ';' FROM A"_q, u"DELETE * FROM B WHERE x = \"a;b\""_q, u"SELECT [a;b] FROM C"_q}));
}

TEST(DialectText, OrderIsTurnedRoundTermByTerm) {
    const auto turned = [](const QString& statement) { return QString::fromUtf8(translatedFromLast(statement).sql); };
    EXPECT_TRUE(turned(u"SELECT a FROM T ORDER BY a;"_q).endsWith(u"ORDER BY a DESC"_q));
    EXPECT_EQ(turned(u"SELECT a FROM (SELECT b FROM U ORDER BY b) ORDER BY Left(a, 2) DESC, b ASC, c & d"_q)
                  .section(u"ORDER BY"_q, -1)
                  .remove(u' '),
              u"(kurbo_left(a,2)COLLATENOCASE),bDESC,(ifnull(c,'')||ifnull(d,'')COLLATENOCASE)DESC"_q);
    EXPECT_THROW((void)turned(u"SELECT a FROM T"_q), Fault);
}

TEST(DialectText, OnlyAPlainSelectNamesItsTable) {
    const auto table = [](const QString& statement) { return translated(statement).table; };
    EXPECT_EQ(table(u"SELECT *, F_Year & F_Month AS X From T05_Approved;"_q), u"T05_Approved"_q);
    EXPECT_EQ(table(u"SELECT F_DateID FROM T01_Calendar WHERE F_DateID NOT IN (SELECT F_DateID FROM T02_Kurbo)"_q),
              u"T01_Calendar"_q);
    for (const QString& statement :
         {u"SELECT DISTINCT a FROM T"_q, u"SELECT a FROM T INNER JOIN U ON a = b"_q, u"SELECT a FROM T, U"_q,
          u"SELECT a FROM T UNION SELECT a FROM U"_q, u"SELECT a FROM T GROUP BY a"_q, u"DELETE * FROM T"_q})
        EXPECT_EQ(table(statement), QString()) << statement;
}

TEST(TextOrder, IsOneOrderForTheStoreAndForRecordSets) {
    const QStringList sorted{QString(), u"0"_q, u"a"_q, u"AB"_q, u"b"_q, u"あ"_q, u"い"_q, u"漢"_q, u"Ａ"_q, u"ｂ"_q};
    for (qsizetype i = 0; i < sorted.size(); ++i)
        for (qsizetype j = 0; j < sorted.size(); ++j)
            EXPECT_EQ(compareText(sorted[i], sorted[j]) < 0, i < j) << sorted[i] << " " << sorted[j];
    EXPECT_EQ(compareText(u"Ａｂ"_q, u"ａＢ"_q), 0);
}

} // namespace kurbo::test
