#include "maintenance/data_move.h"

#include "base/system/files.h"
#include "maintenance/old_days.h"
#include "store/engine_fault.h"
#include "store/file/lock_file.h"
#include "support/disaster.h"

#include <sqlite3.h>

#include <QDir>

#include <csignal>
#include <set>

namespace kurbo::test {
namespace {

// Does something at every step of the bar.
class AtSteps final : public Progress {
  public:
    void begin(const QString& /*text*/, int maximum) override { EXPECT_EQ(maximum, 100); }
    void step(int value) override {
        last = value;
        if (act) act(value);
    }
    void end() override { ended = true; }

    std::function<void(int)> act;
    int last = 0;
    bool ended = false;
};

class DataMove : public OldDays {
  protected:
    OptimizeResult run(const MoveOrder& given) {
        bar = {};
        bar.act = act;
        return carryOut({desk.prompts, desk.clock, desk.paths, bar}, connection, path, given);
    }
    // What the refusal of a move says; nothing has changed then, and the connection is open as it was.
    QString refusal(const MoveOrder& given) {
        const Contents before = contentsOf(path);
        const bool open = connection.isOpen();
        const QString said = refusalOf([&] { (void)run(given); });
        EXPECT_EQ(connection.isOpen(), open);
        EXPECT_TRUE(bar.ended);
        EXPECT_TRUE(contentsOf(path) == before);
        return said;
    }
    [[nodiscard]] QStringList files() const { return QDir(desk.folder.path()).entryList(QDir::Files, QDir::Name); }

    std::function<void(int)> act;
    AtSteps bar;
};

// Adds a card for a day of the range.
QString additionOf(int id) {
    return u"INSERT INTO T02_Kurbo (F_KurboID, F_DateID, F_User) VALUES (%1, '20260110', '1003')"_q.arg(id);
}

// Whether a program that knows nothing of lock files got in with it.
bool addedByTool(const QString& path, int id) {
    sqlite3* tool = nullptr;
    sqlite3_open(path.toUtf8().constData(), &tool);
    const int result = sqlite3_exec(tool, additionOf(id).toUtf8().constData(), nullptr, nullptr, nullptr);
    sqlite3_close(tool);
    return result == SQLITE_OK;
}

} // namespace

TEST_F(DataMove, MovesEachRowOfTheRangeAndRenumbersTheOthers) {
    connection.close();
    const QByteArray whole = readFile(path);
    const Contents before = contentsOf(path);
    for (const bool withMonths : {false, true}) {
        replaceFile(path, whole);
        QFile::remove(destination + u".old"_q);
        replaceFile(destination, "replaced without a question");
        connection.open(path, databasePassword());
        EXPECT_EQ(run(order(withMonths)), OptimizeResult::OK);
        EXPECT_TRUE(bar.ended && bar.last == 100);
        connection.close();
        EXPECT_TRUE(contentsOf(destination) == moved(before, order(withMonths)));
        EXPECT_TRUE(contentsOf(path) == left(before, order(withMonths)));
        EXPECT_EQ(files(), QStringList({u"old.mdb"_q, u"old.mdb.old"_q, u"store.mdb"_q}));
        EXPECT_EQ(readFile(destination + u".old"_q), "replaced without a question");
    }
    connection.open(destination, databasePassword());
    EXPECT_EQ(count(u"M02_StaffInfo"_q), 5) << "the destination is a whole database";
}

TEST_F(DataMove, AnEmptiedCardTableIsNotRenumbered) {
    MoveOrder given = order(false);
    given.startDay = makeDay(2026, 1, 1);
    given.endDay = today;
    EXPECT_EQ(run(given), OptimizeResult::OK);
    EXPECT_EQ(count(u"T02_Kurbo"_q) + count(u"T03_GoOut"_q), 0);
    EXPECT_THROW((void)run(given), Complaint) << "nothing is left to move";
}

TEST_F(DataMove, EveryWordOfTheCompactionHasItsEnd) {
    EXPECT_EQ(run(order(false)), OptimizeResult::OK);
    const QByteArray old = readFile(destination);
    {
        Connection other;
        other.open(destination, databasePassword());
        EXPECT_TRUE(refusal(order(true)).startsWith(u"移動先DBに他のユーザーが接続しています。"_q));
        EXPECT_EQ(readFile(destination), old);
        other.open(path, databasePassword());
        EXPECT_EQ(refusal(order(false)), u"他のユーザーがデータベースに接続しています。\r\n"
                                         "ユーザーが接続していない時に再度実行して下さい。"_q);
    }
    connection.close();
    replaceFile(desk.file(u"store.ldb"_q), {});
    EXPECT_EQ(run(order(false)), OptimizeResult::ExistLdb) << "left by a crash: without a word";
    QFile::remove(desk.file(u"store.ldb"_q));
    ASSERT_TRUE(QFile::rename(path, desk.file(u"away.mdb"_q)));
    EXPECT_EQ(refusalOf([&] { (void)run(order(false)); }),
              u"データベースファイル %1 が見つかりません。\r\n"
              "データベースファイルの保存場所を確認して下さい。"_q.arg(path));
}

// What a crash has left of an older destination must not be played back into the new one.
TEST_F(DataMove, LeavingsOfAnOldDestinationGo) {
    const Contents before = contentsOf(path);
    makeSampleCompany(destination);
    ASSERT_EQ(endOf(startChild([&] {
                  failAtCall(DiskFailure::Killed, 4);
                  Connection old;
                  old.open(destination, databasePassword());
                  old.execute(u"UPDATE T01_Calendar SET F_Holiday = '半分'"_q);
                  return 0;
              })),
              Died);
    ASSERT_TRUE(files().contains(u"old.mdb-journal"_q));
    EXPECT_EQ(run(order(false)), OptimizeResult::OK);
    EXPECT_TRUE(contentsOf(destination) == moved(before, order(false)));
}

TEST_F(DataMove, NoOtherClientGetsInBetween) {
    std::set<int> seen;
    QStringList cards;
    int inside = 0;
    act = [&](int step) {
        if (!seen.insert(step).second) return;
        Connection other;
        other.setTimeout(std::chrono::milliseconds(20));
        const QString refused = refusalOf([&] {
            other.open(path, databasePassword());
            other.execute(additionOf(1000 + step));
            cards.append(QString::number(1000 + step));
        });
        EXPECT_TRUE(refused.isEmpty() || refused == QString::number(static_cast<int>(StoreError::Busy)));
        inside += refused.isEmpty() ? 0 : 1;
        other.close();
        if (addedByTool(path, 2000 + step)) cards.append(QString::number(2000 + step));
    };
    EXPECT_EQ(run(order(false)), OptimizeResult::OK);
    EXPECT_GE(inside, 4) << "at every mark but the first";
    EXPECT_EQ(cards, QStringList({u"1010"_q, u"2010"_q})) << "before the database was taken";
    QStringList found;
    for (const QStringList& card : contentsOf(destination).cards)
        if (card[2] == u"1003") found.append(card[0]);
    EXPECT_EQ(found, cards);
}

TEST_F(DataMove, AtEachCallOfTheDiskEveryDayIsInOneOfBothFiles) {
    connection.close();
    makeSampleCompany(destination);
    const QByteArray whole = readFile(path);
    const QByteArray wholeOld = readFile(destination);
    const Contents before = contentsOf(path);
    const Contents old = contentsOf(destination);
    const MoveOrder given = order(true);
    const Contents staying = left(before, given);
    const Contents going = moved(before, given);
    const auto restore = [&] {
        for (const QString& name : files())
            if (!name.endsWith(u".log")) QFile::remove(desk.file(name));
        replaceFile(path, whole);
        replaceFile(destination, wholeOld);
    };
    const auto write = [&](const Context& context) {
        return guarded(context, u"frmMaintainance", u"cmdExec_Click", false, [&] {
            Connection own;
            return carryOut(context, own, path, given) == OptimizeResult::OK;
        });
    };
    const auto isWritten = [&] {
        const Contents now = contentsOf(path);
        const Contents there = contentsOf(destination);
        const bool written = now == staying;
        EXPECT_TRUE(written || now == before);
        EXPECT_TRUE(there == going || (!written && there == old));
        return written;
    };
    failEverywhere(desk, {restore, write, isWritten}, 200);
    EXPECT_EQ(files(), QStringList({u"Error.log"_q, u"old.mdb"_q, u"old.mdb.old"_q, u"store.mdb"_q}));
}

TEST_F(DataMove, AKilledMoveThatIsRepeatedKeepsEachOlderFile) {
    connection.close();
    const Contents before = contentsOf(path);
    replaceFile(destination, "the archive");
    EXPECT_EQ(endOf(startChild([&] {
                  act = [](int step) { return step == 80 ? ::kill(::getpid(), SIGKILL) : 0; };
                  return run(order(true)) == OptimizeResult::OK ? 0 : 1;
              })),
              Died);
    EXPECT_TRUE(contentsOf(path) == before);
    LockFile::removeStale(path);
    EXPECT_EQ(run(order(true)), OptimizeResult::OK);
    EXPECT_EQ(readFile(destination + u".old"_q), "the archive");
    EXPECT_TRUE(contentsOf(destination) == moved(before, order(true)));
    EXPECT_TRUE(QFile::exists(destination + u".old2"_q));
}

TEST_F(DataMove, TheWholeCommandAsksAndTells) {
    const QString question =
        u"データの移動を行います。移動したデータは元に戻せません。\r\n期間：2026/01/05～2026/02/28\r\n移動先：%1"
        "\r\n\r\nよろしいですか？"_q.arg(destination);
    MoveOrder running = order(true);
    running.endDay = makeDay(2026, 4, 1);
    desk.prompts.expect(question, Answer::Cancel)
        .expect(u"月次集計データ：2025/12～2026/01\r\n移動先：%1\r\n\r\nこの期間には、まだ締日が来ていない日"
                "(2026/04/01以降)が含まれています。\r\n"_q.arg(destination),
                Answer::Cancel);
    for (const MoveOrder& each : {order(false), running}) EXPECT_FALSE(moveData(desk.context, connection, path, each));
    EXPECT_FALSE(QFile::exists(destination));
    desk.prompts.expect(question).expect(u"データ移動が完了しました。"_q);
    EXPECT_TRUE(moveData(desk.context, connection, path, order(false)));
}

} // namespace kurbo::test
