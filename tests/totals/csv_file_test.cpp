#include "totals/csv/csv_file.h"

#include "base/system/file_lock.h"
#include "base/system/files.h"
#include "totals/months.h"

#include <QDir>

#include <fcntl.h>

namespace kurbo::test {
namespace {

class CsvFile : public ::testing::Test {
  protected:
    CsvFile() { replaceFile(path, "old"); }
    int save(const QString& file) { return CsvSaveTotal(desk.context, file, {savedMonth(u"1001"_q, u"202603"_q)}); }
    // A file of that many months.
    QString months(int count) {
        replaceFile(desk.file(u"%1.csv"_q.arg(count)), (marchLine + "\r\n").repeated(count));
        return desk.file(u"%1.csv"_q.arg(count));
    }
    void expectLocked() {
        desk.prompts.expect(u"指定したファイルは他のアプリケーションでロックされているか、\r\n"
                            "書き込み保護の設定がなされています。"_q);
    }

    Desk desk;
    QString path = desk.file(u"月次.csv"_q);
};

} // namespace

TEST_F(CsvFile, IsReplacedAsAWholeOrNotAtAll) {
    {
        const Descriptor other{::open(QFile::encodeName(path).constData(), O_RDWR)};
        ASSERT_TRUE(tryLock(other.get(), 0, LockKind::Exclusive));
        expectLocked();
        EXPECT_EQ(save(path), -1);
    }
    QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadOther);
    {
        const AsNobody nobody;
        expectLocked();
        EXPECT_EQ(save(path), -1);
        expectLocked();
        EXPECT_EQ(save(desk.file(u"new.csv"_q)), -1) << "the folder is protected";
    }
    desk.prompts.expect(u"エラー番号：53"_q);
    EXPECT_EQ(save(desk.file(u"no/x.csv"_q)), -1);
    desk.prompts.expect(u"使用できない文字：鷗"_q);
    EXPECT_EQ(CsvSaveTotal(desk.context, path, {savedMonth(u"1"_q, u"202603"_q), savedMonth(u"鷗"_q, u"202603"_q)}),
              -1);
    EXPECT_EQ(readFile(path), "old");
    EXPECT_EQ(save(path), 1);
    EXPECT_EQ(readFile(path), marchLine + "\r\n");
    EXPECT_EQ(QDir(desk.folder.path()).entryList({u"*csv*"_q}), QStringList{u"月次.csv"_q}) << "nothing left beside it";
}

TEST_F(CsvFile, OneThatCantBeReadIsNamed) {
    desk.prompts.expect(u"データ形式に誤りがあります。\r\nﾌｧｲﾙ名："_q + path + u"\r\n行：1"_q);
    EXPECT_FALSE(ReadCsvFile(desk.context, path));
    desk.prompts.expect(u"データ形式に誤りがあります。\r\nﾌｧｲﾙ名：/dev/zero"_q);
    EXPECT_FALSE(ReadCsvFile(desk.context, u"/dev/zero"_q));
    desk.prompts.expect(u"エラー番号：53"_q);
    EXPECT_FALSE(ReadCsvFile(desk.context, desk.file(u"none.csv"_q)));
}

TEST_F(CsvFile, AHundredFilesAndTwoHundredMonthsAtOnce) {
    const QString tooMany =
        u"１度に読込めるデータ数の上限(200)を超えています。\r\n複数回に分けて読込を行って下さい。"_q;
    EXPECT_EQ(loadCsv(desk.context, QStringList(100, months(2)))->size(), 200);
    desk.prompts.expect(u"１度に読込めるファイル数の上限(100)を超えています。"_q);
    EXPECT_FALSE(loadCsv(desk.context, QStringList(101, desk.file(u"none.csv"_q)))) << "nothing is opened";
    for (const QStringList& files : {QStringList{months(201)}, QStringList{months(150), months(51), path}}) {
        desk.prompts.expect(tooMany);
        EXPECT_FALSE(loadCsv(desk.context, files));
    }
    desk.prompts.expect(u"データ形式に誤りがあります。"_q);
    EXPECT_FALSE(loadCsv(desk.context, {months(2), path, months(201)})) << "the load stops at the first fault";
    EXPECT_EQ(loadCsv(desk.context, {months(1), months(2)})->last().file, months(2));
}

} // namespace kurbo::test
