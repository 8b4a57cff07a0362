#include "store/file/lock_file.h"

#include "base/error_log.h"
#include "base/system/files.h"
#include "store/file/is_db_ok.h"
#include "support/child.h"
#include "support/desk.h"

#include <csignal>

namespace kurbo::test {
namespace {

Deadline in(int milliseconds) {
    return std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
}

class Locks : public ::testing::Test {
  protected:
    Locks() { replaceFile(database, "x"); }
    [[nodiscard]] bool there() const { return QFileInfo::exists(desk.file(u"store.ldb"_q)); }

    Desk desk;
    QString database = desk.file(u"store.mdb"_q);
    LockFile first;
    LockFile second;
};

// Another process that is connected, and has the turn, until it is killed.
pid_t startClient(const QString& database) {
    int ready[2] = {};
    if (::pipe(ready) != 0) ADD_FAILURE();
    const pid_t client = startChild([&] {
        LockFile lock;
        if (!lock.join(database, in(1000), {}) || !lock.waitTurn(in(1000), {})) return 1;
        (void)!::write(ready[1], "y", 1);
        for (;;) ::pause();
    });
    ::close(ready[1]);
    char answer = 'n';
    EXPECT_EQ(::read(ready[0], &answer, 1), 1);
    ::close(ready[0]);
    return client;
}

void kill(pid_t client) {
    ::kill(client, SIGKILL);
    EXPECT_EQ(endOf(client), -1);
}

} // namespace

TEST_F(Locks, AStaleFileIsRemovedAndAHeldOneStays) {
    replaceFile(desk.file(u"store.ldb"_q), "left by a crash");
    RemoveStaleLock(database);
    EXPECT_FALSE(there());
    const pid_t client = startClient(database);
    RemoveStaleLock(database);
    ASSERT_TRUE(first.join(database, in(1000), {}));
    EXPECT_FALSE(first.waitTurn(in(150), {}));
    kill(client);
    EXPECT_TRUE(first.waitTurn(in(1000), {})) << "a killed writer gives its turn back";
    ASSERT_TRUE(second.join(database, in(1000), {}));
    first.leave();
    EXPECT_TRUE(there());
    second.leave();
    EXPECT_FALSE(there()) << "the last one out clears it away";
}

TEST_F(Locks, AnotherClientsFileIsLeftAlone) {
    ASSERT_TRUE(first.join(database, in(1000), {}));
    ASSERT_TRUE(QFile::remove(desk.file(u"store.ldb"_q))); // an operator thought it was stale
    ASSERT_TRUE(second.join(database, in(1000), {}));
    first.leave();
    EXPECT_TRUE(there());
    EXPECT_FALSE(first.claim(database));
    EXPECT_EQ(LockFile::nameFor(u"/a.mdb/STORE.MDB"_q), u"/a.mdb/STORE.LDB"_q) << "it is beside it, in its case";
}

TEST_F(Locks, ClaimIsForOneAloneAndOthersWait) {
    ASSERT_TRUE(first.claim(database));
    EXPECT_FALSE(second.claim(database));
    EXPECT_THROW((void)second.join(database, in(150), {}), Fault);
}

TEST_F(Locks, WritersComeInTheirOrder) {
    LockFile third;
    for (LockFile* lock : {&first, &second, &third}) ASSERT_TRUE(lock->join(database, in(1000), {}));
    ASSERT_TRUE(first.waitTurn(in(1000), {}));
    EXPECT_FALSE(second.waitTurn(in(150), {})) << "gives its place back";
    first.endTurn();
    ASSERT_TRUE(third.waitTurn(in(1000), {}));
    third.endTurn();
    ASSERT_TRUE(second.waitTurn(in(1000), {}));
}

TEST_F(Locks, ALinkInItsPlaceIsNeverFollowed) {
    const QString theirs = desk.file(u"theirs"_q);
    const QString lock = desk.file(u"store.ldb"_q);
    replaceFile(theirs, "12345678");
    QFile::setPermissions(theirs, QFile::ReadOwner | QFile::WriteOwner);
    for (const auto link : {&::symlink, &::link}) {
        ASSERT_EQ(link(theirs.toUtf8().constData(), lock.toUtf8().constData()), 0);
        EXPECT_THROW((void)first.join(database, in(1000), {}), Fault);
        EXPECT_FALSE(first.claim(database) || LockFile::isHeld(database));
        RemoveStaleLock(database);
        EXPECT_TRUE(there());
        ASSERT_TRUE(QFile::remove(lock));
    }
    LogError(desk.folder.path(), {});
    ASSERT_TRUE(QFile::remove(desk.file(u"Error.log"_q)) && QFile::link(theirs, desk.file(u"Error.log"_q)));
    LogError(desk.folder.path(), {});
    EXPECT_EQ(readFile(theirs), "12345678");
    EXPECT_EQ(QFile::permissions(theirs) & (QFile::ReadOther | QFile::ReadGroup), QFile::Permissions());
}

} // namespace kurbo::test
