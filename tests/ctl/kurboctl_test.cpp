#include "base/system/files.h"
#include "store/file/database_file.h"
#include "support/kurboctl.h"
#include "support/sample_company.h"
#include "support/table.h"

#include <QRegularExpression>
#include <QSet>

#include <csignal>
#include <sys/resource.h>

namespace kurbo::test {
namespace {

class Kurboctl : public SampleCompany {
  protected:
    Kurboctl() { connection.close(); }
    // Parted by blanks; "@name" is the file of that name.
    [[nodiscard]] QStringList words(const QString& text) const {
        QStringList all = text.split(u' ');
        for (QString& word : all)
            if (word.startsWith(u'@')) word = desk.file(word.sliced(1));
        return all;
    }
    Outcome punched(const QStringList& more, const QString& at = u"2026/04/15 08:55:10"_q,
                    const std::function<void()>& inChild = {}) {
        return kurboctl(QStringList({u"punch"_q, path, u"--staff"_q, u"1001"_q, u"--at"_q, at, u"--app-folder"_q,
                                     desk.folder.path()}) +
                            more,
                        {}, inChild);
    }
    QString sql(const QString& statements, const QString& format = u"tsv"_q) {
        const Outcome outcome = kurboctl({u"sql"_q, path, u"--format"_q, format}, statements);
        EXPECT_EQ(outcome.exit, 0) << outcome.err;
        return outcome.out;
    }
    const QStringList pw{u"--password"_q, u"kurbo1"_q};
};

} // namespace

TEST_F(Kurboctl, WrongUseIsTwo) {
    for (const QStringList& row : rowsOf(R"(
new
sql @store.mdb --format xml
punch @store.mdb enter
punch @store.mdb dance --staff 1 --password x
punch @store.mdb enter --at noon
totals @store.mdb --from 2026/03 --to 2026/04
holidays @h.txt --year 2021
move @store.mdb --dest @old.mdb --from 2026/01/01 --to 2026/02/28 --month-from 2026/01
)")) {
        const Outcome outcome = kurboctl(words(row[0]));
        EXPECT_EQ(outcome.exit, 2) << row[0];
        EXPECT_TRUE(outcome.out.isEmpty() && !outcome.err.isEmpty()) << row[0];
    }
    EXPECT_TRUE(kurboctl({}).err.contains(u"usage: kurboctl"_q));
}

TEST_F(Kurboctl, FilesAreMadeCheckedAndCompacted) {
    replaceFile(desk.file(u"held.ldb"_q), {});
    for (const QStringList& row : rowsOf(R"(
0 | holidays @h.txt --year 2027             |
1 | holidays @h.txt --year 2028             |
0 | holidays @h.txt --year 2028 --overwrite |
0 | new @新しい.mdb                         |
1 | new @新しい.mdb                         |
3 | new @no/x.mdb                           |
0 | check @新しい.mdb                       | OK
0 | compact @新しい.mdb                     | OK
0 | new @held.mdb                           |
1 | compact @held.mdb                       | ExistLdb
3 | check @none.mdb                         |
)")) {
        const Outcome outcome = kurboctl(words(row[1]));
        EXPECT_EQ(outcome.exit, row[0].toInt()) << row[1] << outcome.err;
        EXPECT_TRUE(outcome.out.contains(row[2])) << row[1] << outcome.out;
        const bool overwritten = readFile(desk.file(u"h.txt"_q)).contains("\"03/20\"");
        EXPECT_EQ(overwritten, !row[1].startsWith(u"holidays"_q) || row[1].endsWith(u"overwrite"_q));
    }
}

TEST_F(Kurboctl, SqlPrintsInEveryForm) {
    const QString statement = u"SELECT F_StaffCode, F_Birth, F_Order / 2.0 AS Half, F_StaffName FROM C03_Staff "
                              "WHERE F_StaffCode = '1002';"_q;
    sql(u"UPDATE C03_Staff SET F_Birth = #1990/01/02#, F_Order = 3, F_StaffName = '\"鈴木\", 花子' "
        "WHERE F_StaffCode = '1002';"_q);
    for (const auto& [format, printed] :
         {std::pair{u"json"_q, u"[{\"F_StaffCode\":\"1002\",\"F_Birth\":\"1990-01-02 00:00:00\","
                               "\"Half\":1.5,\"F_StaffName\":\"\\\"鈴木\\\", 花子\"}]\n"_q},
          {u"csv"_q, u"F_StaffCode,F_Birth,Half,F_StaffName\n1002,1990-01-02 00:00:00,1.5,\"\"\"鈴木\"\", 花子\"\n"_q},
          {u"tsv"_q, u"F_StaffCode\tF_Birth\tHalf\tF_StaffName\n1002\t1990-01-02 00:00:00\t1.5\t\"鈴木\", 花子\n"_q}})
        EXPECT_EQ(sql(statement, format), printed);
    EXPECT_EQ(sql(u"SELECT F_SectionName AS N, F_Order AS O FROM C02_Section ORDER BY F_Order"_q, u"table"_q),
              u"N           O\n新しい部課  0\n総務部      1\n"_q);
    EXPECT_EQ(
        sql(u"SELECT F_DestCode FROM T04_Destination; SELECT F_Fax FROM C02_Section WHERE F_Order=0;"_q, u"json"_q),
        u"[]\n[{\"F_Fax\":null}]\n"_q);
}

TEST_F(Kurboctl, SqlIsOneTransactionAndNothingIsPassedOver) {
    const Outcome outcome = kurboctl(words(u"sql @store.mdb"_q),
                                     u"DELETE * FROM C01_Corp; INSERT INTO T02_Kurbo (F_KurboID, F_DateID) VALUES "
                                     "(1, '20260401'), (1, '20260402');"_q);
    EXPECT_EQ(outcome.exit, 3);
    EXPECT_TRUE(outcome.err.startsWith(u"エラー番号：3022\nインデックス、主キー、"_q)) << outcome.err;
    for (const QString& statements : {u"UPDATE C01_Corp SET F_Tel = '1'; ROLLBACK; UPDATE C01_Corp SET F_Tel = '2';"_q,
                                      u"DROP TABLE C02_Section;"_q, u"PRAGMA user_version = 9;"_q})
        EXPECT_EQ(kurboctl(words(u"sql @store.mdb"_q), statements).exit, 3) << statements;
    EXPECT_EQ(sql(u"SELECT F_Corp, F_Tel FROM C01_Corp"_q), u"F_Corp\tF_Tel\n見本商事\t\n"_q);
    QProcess shell;
    const QString program = QStringLiteral(KURBO_BIN "/kurboctl");
    shell.start(u"sh"_q, {u"-c"_q, u"printf 'SELECT \\223' | "_q + program + u" sql "_q + path});
    ASSERT_TRUE(shell.waitForFinished());
    EXPECT_EQ(shell.exitCode(), 1) << "not UTF-8";
    shell.start(u"sh"_q, {u"-c"_q, program + u" check "_q + path + u" > /dev/full"_q});
    ASSERT_TRUE(shell.waitForFinished());
    EXPECT_EQ(shell.exitCode(), 3) << "no room for the output";
}

TEST_F(Kurboctl, CardsComeInEveryForm) {
    sql(u"UPDATE M01_CorpInfo SET F_RoundEnter = 1, F_RoundLeave = 0, F_CountUnit = 1; "
        "INSERT INTO T02_Kurbo (F_KurboID, F_DateID, F_User, F_Enter, F_Leave) "
        "VALUES (1, '20260302', '1001', #2026/03/02 08:52:10#, #2026/03/02 17:40#);"_q);
    const QString march = u"card @store.mdb --staff 1001 --month 2026/03 --today 2026/04/15 --format "_q;
    const QString json = kurboctl(words(march + u"json"_q)).out;
    EXPECT_TRUE(json.startsWith(u"{\"staff\":\"1001\",\"from\":\"2026/03/01\",\"to\":\"2026/03/31\",\"headings\":"_q));
    EXPECT_TRUE(json.contains(u"[\"2\",\"26/03/02(月)\",\"\",\"\",\"08:52\",\"17:40\","_q)) << json;
    EXPECT_EQ(kurboctl(words(march + u"tsv"_q)).out.count(u'\n'), 1 + 3 + 31);
}

TEST_F(Kurboctl, TotalsComeInEveryForm) {
    const auto totals = [this](const QString& more) {
        return kurboctl(words(u"totals @store.mdb --today 2026/04/15 --from 2026/03 --to 2026/04 "_q + more));
    };
    const QString section = u"--section S01 --by month"_q;
    const QString json = totals(section + u" --format json"_q).out;
    EXPECT_TRUE(json.contains(u"],[\"\",\"2026年 03月 小計\",\"\",\"0\",\"0:00\",\"60.0\","_q)) << json;
    EXPECT_EQ(totals(section + u" --format tsv"_q).out.count(u'\n'), 1 + 2 * (3 + 1) + 1);
    EXPECT_TRUE(totals(u"--staff 1001 --by month"_q).out.contains(u"山田太郎 小計"_q))
        << "a person's months are by staff";
    sql(u"UPDATE M02_StaffInfo SET F_Weekday = Null WHERE (F_StaffCode = '1001');"_q);
    const Outcome partly = totals(section);
    EXPECT_EQ(partly.exit, 1);
    EXPECT_TRUE(partly.err.contains(u"山田太郎 (1001)"_q) && partly.out.contains(u"鈴木花子"_q)) << partly.err;
}

TEST_F(Kurboctl, WhoIsNotRegisteredIsRefused) {
    // Left over after the person has gone from the list of people.
    sql(u"DELETE FROM C03_Staff WHERE (F_StaffCode = '1004');"_q);
    for (const QStringList& row : rowsOf(R"(
card @store.mdb --month 2026/03 --staff 1004
totals @store.mdb --from 2026/03 --to 2026/04 --section S09
export @store.mdb --from 2026/03 --to 2026/04 --out @x --section S09
export @store.mdb --from 2026/03 --to 2026/04 --out @x --section S01 --staff 1004
report @store.mdb totals --from 2026/03 --to 2026/04 --out @x --staff 9999
)")) {
        const Outcome outcome = kurboctl(words(row[0]));
        EXPECT_EQ(outcome.exit, 1) << row[0];
        EXPECT_TRUE(outcome.err.contains(row[0].section(u' ', -1) + u"」は登録されていません。"_q)) << outcome.err;
    }
}

TEST_F(Kurboctl, HelpAndManualNameTheSameOptions) {
    const QString manual = QString::fromUtf8(readFile(QStringLiteral(KURBO_DATA "/man/kurboctl.1"))).remove(u'\\');
    const auto optionsIn = [](const QString& text) {
        static const QRegularExpression form(u"--[a-z-]+"_q);
        QSet<QString> found;
        for (const auto& match : form.globalMatch(text)) found.insert(match.captured());
        return found;
    };
    const QStringList list = kurboctl({u"--help"_q}).out.split(u'\n').filter(QRegularExpression(u"^  [a-z]"_q));
    EXPECT_EQ(list.size(), 13);
    for (const QString& line : list) {
        const QString name = line.simplified().section(u' ', 0, 0);
        const Outcome help = kurboctl({name, u"--help"_q});
        EXPECT_EQ(help.exit, 0);
        EXPECT_TRUE(help.out.contains(u"\n  kurboctl "_q + name)) << "an example";
        EXPECT_TRUE(help.out.contains(line.mid(2).simplified().section(u' ', 1))) << help.out;
        // Of the manual what stands between this command and the next.
        QString told = manual.section(u".BI "_q + name + u" \" "_q, 1);
        told.truncate(told.indexOf(QRegularExpression(u"\n\\.TP\n\\.BI [a-z]|\n\\.SH"_q)));
        EXPECT_EQ(optionsIn(told), optionsIn(help.out.section(u"every command:"_q, 0, 0))) << name;
    }
}

TEST_F(Kurboctl, MonthsTravelAsFiles) {
    sql(u"INSERT INTO T05_Approved (F_Staff, F_Section, F_Year, F_Month, F_PaidTotal) "
        "VALUES ('1001', 'S01', '2026', '03', 12.5)"_q);
    const QString csv = desk.file(u"月次.csv"_q);
    const auto exported = [&](const QString& to, const QString& out) {
        return kurboctl({u"export"_q, path, u"--section"_q, u"S01"_q, u"--from"_q, u"2026/01"_q, u"--to"_q, to,
                         u"--out"_q, out, u"--app-folder"_q, desk.folder.path()});
    };
    EXPECT_EQ(exported(u"2026/12"_q, csv).out, u"1件の月次集計データを保存しました。\n"_q);
    EXPECT_EQ(exported(u"2026/02"_q, desk.file(u"none.csv"_q)).err, u"更新済の月次集計データがありません。\n"_q);
    EXPECT_EQ(exported(u"2026/12"_q, path).exit, 2) << "the database itself";
    EXPECT_EQ(exported(u"2026/12"_q, desk.file(u"no/x.csv"_q)).exit, 3);
    sql(u"UPDATE T05_Approved SET F_PaidTotal = 1;"_q);
    EXPECT_EQ(kurboctl({u"import"_q, path, csv, csv}).out, u"登録：0件、スキップ：2件\n"_q);
    EXPECT_EQ(kurboctl({u"import"_q, path, csv, u"--overwrite"_q}).out, u"登録：1件、スキップ：0件\n"_q);
    EXPECT_EQ(sql(u"SELECT T05_Approved.F_PaidTotal, M02_StaffInfo.F_PaidTotal AS B FROM T05_Approved INNER JOIN "
                  "M02_StaffInfo ON T05_Approved.F_Staff = M02_StaffInfo.F_StaffCode"_q),
              u"F_PaidTotal\tB\n12.5\t12.5\n"_q);
    replaceFile(csv, "x");
    EXPECT_EQ(kurboctl({u"import"_q, path, csv, u"--overwrite"_q}).exit, 1);
}

TEST_F(Kurboctl, PunchTellsHowItWent) {
    for (const QStringList& row : rowsOf(R"(
0 | 2026/04/15 08:55:10 | --password kurbo1 enter                 |
1 | 2026/04/15 08:55:10 | --password kurbo1 enter                 | 既に出社打刻済です。打刻できません。
1 | 2026/04/15 08:55:10 | --password x enter                      | 不正なパスワードです。正しいパスワードを入力して下さい。
1 | 2026/04/16 07:00    | --password kurbo1 leave                 | からの継続勤務ですか？
0 | 2026/04/16 07:00    | --password kurbo1 leave --continued yes |
0 | 2026/04/16 07:00    | --password kurbo1 out                   | 本日の出社時打刻を行っていない
1 | 2031/01/01 09:00    | --password kurbo1 enter                 | カレンダーが作成されていません。
)")) {
        const Outcome outcome = punched(words(row[2]), row[1]);
        EXPECT_EQ(outcome.exit, row[0].toInt()) << row.join(u'|');
        EXPECT_TRUE(outcome.err.contains(row[3])) << outcome.err;
    }
    EXPECT_EQ(sql(u"SELECT F_DateID, F_Enter, F_Leave FROM T02_Kurbo ORDER BY F_KurboID"_q),
              u"F_DateID\tF_Enter\tF_Leave\n20260415\t2026-04-15 08:54:40\t2026-04-16 07:01:00\n20260416\t\t\n"_q);
    EXPECT_EQ(kurboctl(words(u"punch @store.mdb --staff ADMIN --password ADMIN enter"_q)).err,
              u"アクセス権がありません。管理者にアクセス権の設定を依頼して下さい。\n"_q);
}

TEST_F(Kurboctl, PasswordsNeedNotBeSeen) {
    const QStringList enter{u"punch"_q, path, u"enter"_q, u"--staff"_q, u"1001"_q, u"--at"_q, u"2026/04/15 08:55"_q};
    const QStringList piped = enter + words(u"--password -"_q);
    EXPECT_EQ(kurboctl(piped, u"wrong\nkurbo1\n"_q).exit, 1);
    EXPECT_EQ(kurboctl(piped, u"kurbo1\r\nmore"_q).exit, 0);
    EXPECT_EQ(kurboctl(enter).exit, 2);
    qputenv("KURBO_PASSWORD", "kurbo1");
    EXPECT_EQ(kurboctl(enter).err, u"既に出社打刻済です。打刻できません。\n"_q);
    qunsetenv("KURBO_PASSWORD");
}

TEST_F(Kurboctl, MovesOldDays) {
    const auto move = [this](const QStringList& more) {
        return kurboctl(
            words(u"move @store.mdb --dest @old.mdb --from 2026/01/01 --to 2026/02/28 --today 2026/04/15"_q) + more);
    };
    EXPECT_EQ(move(words(u"--today 2026/02/27"_q)).exit, 1) << "days to come";
    EXPECT_TRUE(move(words(u"--today 2026/02/28"_q)).err.endsWith(u"--running を指定して下さい。\n"_q));
    replaceFile(desk.file(u"store.ldb"_q), {});
    EXPECT_EQ(move(words(u"--month-from 2026/01 --month-to 2026/02"_q)).out, u"データ移動が完了しました。\n"_q);
    EXPECT_EQ(sql(u"SELECT Min(F_DateID) AS D FROM T01_Calendar"_q), u"D\n20260301\n"_q);
    EXPECT_EQ(kurboctl(words(u"move @none.mdb --dest @old.mdb --from 2026/01/01 --to 2026/02/28"_q)).exit, 1);
}

TEST_F(Kurboctl, AFullDiskLosesNothingAndSaysSo) {
    const auto full = [](qint64 size) {
        return [size = static_cast<rlim_t>(size)] {
            ::signal(SIGXFSZ, SIG_IGN);
            const struct rlimit limit { size, size };
            ::setrlimit(RLIMIT_FSIZE, &limit);
        };
    };
    EXPECT_EQ(punched(pw + QStringList{u"enter"_q}, u"2026/04/15 08:55"_q, full(QFileInfo(path).size())).exit, 0)
        << "there is room in the file";
    const QByteArray before = readFile(path);
    const Outcome outcome = punched(pw + QStringList{u"enter"_q}, u"2026/04/16 08:55"_q, full(2048));
    EXPECT_EQ(outcome.exit, 3);
    EXPECT_TRUE(outcome.err.contains(u"ディスクの空き容量が不足しているため"_q)) << outcome.err;
    EXPECT_EQ(kurboctl(words(u"check @store.mdb"_q)).out, u"OK\n"_q);
    EXPECT_EQ(readFile(path), before);
    EXPECT_EQ(punched(pw + QStringList{u"enter"_q}, u"2026/04/16 08:55"_q).exit, 0) << "again with room";
}

} // namespace kurbo::test
