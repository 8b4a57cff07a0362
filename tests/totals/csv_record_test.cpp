#include "totals/csv/csv_record.h"

#include "base/system/code_page.h"
#include "support/table.h"
#include "totals/months.h"

namespace kurbo::test {
namespace {

QByteArray encoded(const QString& text) {
    return toCodePage(text).value();
}

// The line with its n-th field (from 1) in another form.
QByteArray withField(int field, const QByteArray& cell) {
    QByteArrayList cells = marchLine.split(',');
    cells[field - 1] = cell;
    return cells.join(',');
}

QString refusal(const QByteArray& bytes) {
    return refusalOf([&] { (void)readCsv(bytes, u"x.csv"_q); });
}

QString refusal(const MonthRecord& month) {
    return refusalOf([&] { (void)csvBytes({month}); });
}

} // namespace

TEST(CsvRecord, ALineHoldsTheMonth) {
    MonthRecord april = savedMonth(u"ｱ\"1,2"_q, u"202604"_q);
    april.section = u"営業－ソ"_q; // the last letter's second byte is a backslash
    april.figures = {};
    april.personalApproval = true;
    const QByteArray bytes = csvBytes({savedMonth(u"1001"_q, u"202603"_q), april});
    EXPECT_EQ(bytes, marchLine + "\r\n" +
                         encoded(u"\"ｱ\"\"1,2\",\"営業－ソ\",\"2026\",\"04\",\"0\",\"0\",\"0\",\"0\",\"0\",\"0\","
                                 "\"0\",\"0\",\"0\",\"0\",\"0\",\"0\",\"0\",\"0\",\"0\",\"0\",\"0\",\"0\","
                                 "\"True\",\"True\",\"2026/04/01-2026/04/28\"\r\n"_q));
    for (std::size_t i = 0; i < april.figures.size(); ++i)
        april.figures[i] = quantities[i].unit() == Unit::Days ? Value(0.0) : Value(0);
    april.figures[placeOf(Quantity::PaidTotal)] = {};
    EXPECT_EQ(readCsv(bytes, {}), QList({savedMonth(u"1001"_q, u"202603"_q), april}))
        << "empty cells become 0, but no balance becomes 0 days";
}

TEST(CsvRecord, SinglesComeBackExactly) {
    for (const float days : {0.1F, 1.0F / 3, -0.5F, 1e-45F, 3.4028235e38F, 16777217.0F, 12345.678F}) {
        MonthRecord month = savedMonth(u"1001"_q, u"202603"_q, static_cast<double>(days));
        month.figures[13] = static_cast<double>(days);
        EXPECT_EQ(readCsv(csvBytes({month}), {}), QList{month}) << days;
    }
}

TEST(CsvRecord, OneBadFieldIsNamed) {
    const struct {
        int field;
        QString title;
        QByteArrayList cells;
    } cases[] = {
        {1, u"社員ｺｰﾄﾞ"_q, {"\"\"", "1001", "\" 1001\"", "\"12345678901\"", "\xef\xbb\xbf\"1001\"", {"\"1\0\"", 4}}},
        {2, u"部課ｺｰﾄﾞ"_q, {"\"S01", "\"S\"01\"", "\"S\x81\"", "\"S\r01\"", encoded(u"\"全角が六字\"x"_q)}},
        {3, u"年"_q, {"\"26\"", "\"0000\"", encoded(u"\"２０２６\""_q)}},
        {4, u"月"_q, {"\"3\"", "\"13\""}},
        {5, u"出勤日数"_q, {"\"\"", "20", "\"20.5\"", "\"32768\""}},
        {6, u"実働時間"_q, {"\"170:30\"", "\"2147483648\"", "\"+5\"", "\"007\""}},
        {7, u"有給残数"_q, {"\"18.5\"", "", "1e3", "nan", "18.5 ", QByteArray(40, '9')}},
        {17, u"有給"_q, {"\"1.5.5\"", "1.5", "\"-\""}},
        {20, u"欠勤"_q, {"\"-32769\""}},
        {24, u"所長"_q, {"\"\"", "\"yes\"", "True"}},
        {25, u"集計期間"_q, {"\"2026/03/01-2026/02/28\"", "\"2026/02/29-2026/03/28\"", "\"2026/3/1-2026/03/28\""}},
        {25, u"項目数"_q, {"\"\","}},
    };
    for (const auto& c : cases)
        for (const QByteArray& cell : c.cells)
            EXPECT_EQ(refusal(marchLine + "\r\n" + withField(c.field, cell) + "\r\n"),
                      u"データ形式に誤りがあります。\r\nﾌｧｲﾙ名：x.csv\r\n行：2\r\n項目："_q + c.title)
                << cell.toStdString();
}

TEST(CsvRecord, LinesAreToldApart) {
    for (const QByteArray& bytes : {marchLine, marchLine + "\n", withField(7, "18.50") + "\r\n", withField(23, "\"0\""),
                                    withField(17, "\"06.5\""), withField(24, "\"-1\""), withField(24, "\"TRUE\"")})
        EXPECT_EQ(readCsv(bytes, {}), QList{savedMonth(u"1001"_q, u"202603"_q)}) << bytes.toStdString();
    EXPECT_EQ(readCsv(marchLine + "\n" + marchLine, {}).size(), 2);
    for (const auto& [bytes, place] : {std::pair{QByteArray("\r\n"), u"1\r\n項目：社員ｺｰﾄﾞ"_q},
                                       {marchLine + "\r\n\r\n", u"2\r\n項目：社員ｺｰﾄﾞ"_q},
                                       {marchLine + "\r" + marchLine, u"1\r\n項目：集計期間"_q},
                                       {marchLine.left(90), u"1\r\n項目：代休"_q},
                                       {QByteArray(1 << 24, '"'), u"1\r\n項目：行の長さ"_q}})
        EXPECT_TRUE(refusal(bytes).endsWith(u"行："_q + place)) << place;
}

TEST(CsvRecord, WhatCouldNotBeReadAgainIsNotWritten) {
    // The letter that has a twin would come back as that.
    for (const QStringList& row : rowsOf(R"(
森鷗外 |      | 1     | 使用できない文字：鷗
1〜2   |      | 1     | 使用できない文字：〜
1001   | 三月 | 1     | 項目：集計期間
1/n2   |      | 1     | 項目：社員ｺｰﾄﾞ
1001   |      | 40000 | 項目：出勤日数
)")) {
        MonthRecord month = savedMonth(row[0], u"202603"_q);
        month.term = row[1];
        month.figures[0] = row[2].toInt();
        EXPECT_EQ(refusal(month), u"CSVﾌｧｲﾙに保存できないデータがあります。\r\n社員ｺｰﾄﾞ："_q + row[0] +
                                      u"\r\n年月：2026/03\r\n"_q + row[3]);
    }
}

} // namespace kurbo::test
