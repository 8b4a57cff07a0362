#include "store/file/database_file.h"
#include "support/kurboctl.h"
#include "support/sample_company.h"

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
        connection.execute(
            u"INSERT INTO T04_Destination (F_DestCode, F_DestName, F_User) VALUES (1, '金山～西', '1001')"_q);
        connection.execute(u"INSERT INTO T03_GoOut (F_KurboID, F_Order, F_Out, F_Destination, F_Expense) "
                           "VALUES (1, 1, #2026/04/01 10:05:31#, 1, 1200)"_q);
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
    struct Case {
        QString arguments;
        QStringList texts;
    };
    const std::vector cases{
        Case{u"card --staff 1001 --month 2026/04"_q,
             {u"タイムカード"_q, u"2026/04/01～2026/04/30"_q, u"氏名：金子"_q, u"一月 (1001)"_q, u"26/04/01(水)"_q,
              u"08:52"_q, u"合計(実働)"_q, u"本人"_q, u"所属長"_q, u"1 / 1"_q, u"印刷日：2026/05/07"_q}},
        Case{u"totals --section S01 --from 2026/03 --to 2026/04 --by month"_q,
             {u"月次集計"_q, u"2026/03～2026/04"_q, u"2026年 04月"_q, u"金子"_q, u"小計"_q, u"合計"_q}},
        Case{u"totals --staff 1001 --from 2026/04 --to 2026/04"_q, {u"金子"_q, u"2026年 04月"_q, u"小計"_q}},
        Case{u"goout --staff 1001 --from 2026/04/01 --to 2026/04/30"_q,
             {u"外出出張明細"_q, u"金山～西"_q, u"¥1,200"_q, u"2026年 04月 01日～2026年 04月 30日"_q}}};
    for (const Case& c : cases) {
        const Outcome outcome = report(c.arguments);
        EXPECT_EQ(outcome.exit, 0) << c.arguments << outcome.err;
        EXPECT_EQ(outcome.out, u"1ページを保存しました。\n"_q);
        EXPECT_EQ(outcome.err, QString());
        const QString text = outputOf(u"pdftotext"_q, {u"-raw"_q, desk.file(u"r.pdf"_q), u"-"_q});
        for (const QString& part : c.texts) EXPECT_TRUE(text.contains(part)) << part << "\n" << text;
        const QStringList fonts = outputOf(u"pdffonts"_q, {desk.file(u"r.pdf"_q)}).trimmed().split(u'\n').mid(2);
        EXPECT_GE(fonts.size(), 1);
        for (const QString& font : fonts) EXPECT_TRUE(font.contains(u"Identity-H       yes"_q)) << font;
    }
}

TEST_F(ReportCommand, RefusesAndFailsByItsExit) {
    struct Case {
        QString arguments;
        QString pdf;
        int exit;
        QString told{};
    };
    const std::vector cases{
        Case{u"card --staff 9999 --month 2026/04"_q, u"r.pdf"_q, 1},
        Case{u"totals --section S99 --from 2026/04 --to 2026/04"_q, u"r.pdf"_q, 1},
        Case{u"goout --staff 1001"_q, u"r.pdf"_q, 2},
        Case{u"card --month 2026/04"_q, u"r.pdf"_q, 2},
        Case{u"novel --staff 1001"_q, u"r.pdf"_q, 2},
        Case{u"card --staff 1001 --month 2026/04"_q, u"store.mdb"_q, 2},
        Case{u"card --staff 1001 --month 2026/04"_q, u"no/r.pdf"_q, 3, u"/no\n"_q},
        Case{u"goout --staff 1001 --from 2026/04/30 --to 2026/04/01"_q, u"r.pdf"_q, 2, u"--to lies before --from"_q},
        Case{u"card --staff 1001 --month 2026/04 --from 2026/04/01 --to 2026/04/30"_q, u"r.pdf"_q, 2},
        Case{u"totals --staff 1001 --from 2026/04 --to 2026/04 --month 2026/04"_q, u"r.pdf"_q, 2},
        Case{u"card --staff 1001 --month 2026/04"_q, {}, 1, u"ファイルではないため"_q}};
    for (const Case& c : cases) {
        const Outcome outcome = report(c.arguments, c.pdf);
        EXPECT_EQ(outcome.exit, c.exit) << c.arguments;
        EXPECT_TRUE(!outcome.err.isEmpty() && outcome.err.contains(c.told)) << c.arguments << outcome.err;
        EXPECT_FALSE(QFile::exists(desk.file(u"r.pdf"_q))) << c.arguments;
    }
    const QStringList april{u"report"_q, path, u"card"_q, u"--staff"_q, u"1001"_q, u"--month"_q, u"2026/04"_q};
    EXPECT_EQ(kurboctl(april).exit, 2);
    EXPECT_EQ(kurboctl(april + QStringList{u"--out"_q, {}}).exit, 2);
}

TEST_F(ReportCommand, APersonWithoutASectionHasNoneInTheHeading) {
    connection.open(path, databasePassword());
    connection.execute(u"UPDATE C03_Staff SET F_Section = NULL WHERE (F_StaffCode = '1001')"_q);
    connection.close();
    for (const QString& kind : {u"goout --staff 1001 --month 2026/04"_q, u"card --staff 1001 --month 2026/04"_q,
                                u"totals --staff 1001 --from 2026/04 --to 2026/04"_q}) {
        const Outcome outcome = report(kind);
        EXPECT_EQ(outcome.exit, 0) << kind << outcome.err;
        const QString text = outputOf(u"pdftotext"_q, {u"-raw"_q, desk.file(u"r.pdf"_q), u"-"_q});
        EXPECT_TRUE(text.contains(u"氏名：金子"_q) && !text.contains(u"部課"_q)) << text;
    }
}

} // namespace
} // namespace kurbo::test
