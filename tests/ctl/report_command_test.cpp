#include "store/file/database_file.h"
#include "support/kurboctl.h"
#include "support/sample_company.h"
#include "support/table.h"

namespace kurbo::test {
namespace {

QString outputOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished()) << program << " is part of poppler-utils";
    return QString::fromUtf8(process.readAllStandardOutput());
}

class ReportCommand : public SampleCompany {
  protected:
    ReportCommand() {
        connection.execute(u"UPDATE C03_Staff SET F_StaffName = '金子　一月' WHERE (F_StaffCode = '1001')"_q);
        addCard(1, *makeDay(2026, 4, 1), u"08:52"_q, u"18:05"_q);
        insert("T04_Destination", "DestCode, DestName, User", u"1, '金山～西', '1001'"_q);
        insert("T03_GoOut", "KurboID, Order, Out, Destination, Expense", u"1, 1, #2026/04/01 10:05:31#, 1, 1200"_q);
        connection.close();
    }
    [[nodiscard]] Outcome report(const QString& arguments, const QString& pdf = u"r.pdf"_q) const {
        return kurboctl(QStringList({u"report"_q, path}) + arguments.split(u' ') +
                        QStringList({u"--out"_q, desk.file(pdf), u"--app-folder"_q, desk.folder.path(), u"--at"_q,
                                     u"2026/05/07 10:00:00"_q}));
    }
};

// The text is found by its letters, not by look-alikes, and every font is in the file.
TEST_F(ReportCommand, WritesEachReportAsAPdf) {
    for (const QStringList& row : rowsOf(R"(
card --staff 1001 --month 2026/04 | 2026/04/01～2026/04/30,氏名：金子,一月 (1001),08:52,合計(実働),所属長,1 / 1,印刷日：2026/05/07
totals --section S01 --from 2026/03 --to 2026/04 --by month | 月次集計,2026/03～2026/04,2026年 04月,金子,小計,合計
totals --staff 1001 --from 2026/04 --to 2026/04 | 金子,2026年 04月,小計
goout --staff 1001 --from 2026/04/01 --to 2026/04/30 | 外出出張明細,金山～西,¥1.200,2026年 04月 01日～2026年 04月 30日
)")) {
        const Outcome outcome = report(row[0]);
        EXPECT_EQ(outcome.exit, 0) << row[0] << outcome.err;
        EXPECT_EQ(outcome.out + outcome.err, u"1ページを保存しました。\n"_q);
        const QString text =
            outputOf(u"pdftotext"_q, {u"-raw"_q, desk.file(u"r.pdf"_q), u"-"_q}).replace(u"¥1,"_q, u"¥1."_q);
        for (const QString& part : row[1].split(u',')) EXPECT_TRUE(text.contains(part)) << part << "\n" << text;
        const QStringList fonts = outputOf(u"pdffonts"_q, {desk.file(u"r.pdf"_q)}).trimmed().split(u'\n').mid(2);
        EXPECT_GE(fonts.size(), 1);
        for (const QString& font : fonts) EXPECT_TRUE(font.contains(u"Identity-H       yes"_q)) << font;
    }
}

TEST_F(ReportCommand, RefusesAndFailsByItsExit) {
    // The exit, the file, the arguments, and what is told.
    for (const QStringList& row : rowsOf(R"(
1 | r.pdf     | card --staff 9999 --month 2026/04 |
2 | r.pdf     | novel --staff 1001 |
2 | store.mdb | card --staff 1001 --month 2026/04 |
3 | no/r.pdf  | card --staff 1001 --month 2026/04 | パスが見つかりません。
2 | r.pdf     | goout --staff 1001 --from 2026/04/30 --to 2026/04/01 | --to lies before --from
2 | r.pdf     | card --staff 1001 --month 2026/04 --from 2026/04/01 --to 2026/04/30 |
1 |           | card --staff 1001 --month 2026/04 | ファイルではないため
)")) {
        const Outcome outcome = report(row[2], row[1]);
        EXPECT_EQ(outcome.exit, row[0].toInt()) << row[2];
        EXPECT_TRUE(!outcome.err.isEmpty() && outcome.err.contains(row[3])) << row[2] << outcome.err;
        EXPECT_FALSE(QFile::exists(desk.file(u"r.pdf"_q))) << row[2];
    }
}

} // namespace
} // namespace kurbo::test
