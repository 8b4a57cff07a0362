#include "session/parm_file.h"

#include "base/system/code_page.h"
#include "base/system/files.h"
#include "support/desk.h"

#include <QDir>

namespace kurbo::test {
namespace {

class ParmFile : public ::testing::Test {
  protected:
    ParmFile() { replaceFile(database, "x"); }
    QString read(const QByteArray& bytes) {
        replaceFile(desk.paths.ParmPath, bytes);
        return ReadParm(desk.context, desk.paths.ParmPath, dbPath);
    }

    Desk desk;
    QString database = desk.file(u"勤怠 データ.mdb"_q);
    QString dbPath;
};

} // namespace

TEST_F(ParmFile, IsReadAsItWasWritten) {
    EXPECT_EQ(ReadParm(desk.context, desk.paths.ParmPath, dbPath), u"NoParm"_q);
    ASSERT_TRUE(WriteParm(desk.context, desk.paths.ParmPath, database));
    EXPECT_EQ(readFile(desk.paths.ParmPath), *toCodePage(u'"' + database + u"\"\r\n"_q));
    EXPECT_EQ(ReadParm(desk.context, desk.paths.ParmPath, dbPath), u"OK"_q);
    EXPECT_EQ(dbPath, database);
    replaceFile(desk.paths.ParmPath, "");
    EXPECT_EQ(ReadParm(desk.context, desk.paths.ParmPath, dbPath), u"InputPastEnd"_q);
}

TEST_F(ParmFile, EveryOtherContent) {
    EXPECT_EQ(read("\"\"\r\n"), u"Install"_q);
    EXPECT_EQ(read("\r\n"), u"Install"_q);
    EXPECT_EQ(read("\"/no/such.mdb\"\r\n"), u"NoDB"_q);
    EXPECT_EQ(dbPath, u"/no/such.mdb"_q);
    EXPECT_EQ(read(toCodePageVisibly(database + u"\r\n"_q)), u"OK"_q) << "without quotes";
    EXPECT_EQ(read("\"" + toCodePageVisibly(database)), u"OK"_q) << "without the closing quote";
    EXPECT_EQ(read(toCodePageVisibly(u'"' + database + u"\"\r\nmore"_q)), u"OK"_q);
    EXPECT_EQ(read("\xff\xfe\x00garbage"), u"NoDB"_q);
}

TEST_F(ParmFile, WhatCantBeReadOrWrittenIsReported) {
    QDir(desk.folder.path()).mkdir(u"Parm.dat"_q);
    desk.prompts.expect(u"エラー番号："_q);
    EXPECT_EQ(ReadParm(desk.context, desk.paths.ParmPath, dbPath), u"Error"_q);
    EXPECT_EQ(desk.prompts.last().title, u"Kurbo.File－ReadParm"_q);
    desk.prompts.expect(u"エラー番号："_q);
    EXPECT_FALSE(WriteParm(desk.context, desk.paths.ParmPath, database));
    desk.prompts.expect(u"「𠮷」"_q);
    EXPECT_FALSE(WriteParm(desk.context, desk.paths.ParmPath, u"/tmp/𠮷.mdb"_q));
    desk.prompts.expect(u"「〜」"_q).expect(u"「\"」"_q);
    EXPECT_FALSE(WriteParm(desk.context, desk.paths.ParmPath, u"/tmp/\u301C.mdb"_q)) << "its twin names another file";
    EXPECT_FALSE(WriteParm(desk.context, desk.paths.ParmPath, u"/tmp/\".mdb"_q));
}

} // namespace kurbo::test
