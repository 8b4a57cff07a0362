#include "base/system/files.h"
#include "store/file/database_file.h"
#include "support/kurboctl.h"
#include "support/sample_company.h"

#include <QRandomGenerator>

#include <memory>
#include <vector>

namespace kurbo::test {
namespace {

constexpr int clients = 16;
constexpr int rounds = 50;

class ManyClients : public SampleCompany {
  protected:
    ManyClients() {
        Transaction transaction(connection);
        for (int i = 0; i < clients; ++i) {
            insert("C03_Staff", "StaffCode, Section, Display", u"'%1', 'S01', True"_q.arg(code(i)));
            insert("M02_StaffInfo", "StaffCode, Password, CloseDay, Access", u"'%1', 'pw', 31, 1"_q.arg(code(i)));
        }
        transaction.commit();
        connection.close();
    }

    static QString code(int i) { return u"P%1"_q.arg(i, 2, 10, QChar(u'0')); }
    static Day dayOfRound(int round) { return *makeDay(2026, 1, 1) + std::chrono::days(round); }

    [[nodiscard]] std::unique_ptr<QProcess> started(int puncher, int round) const {
        auto process = std::make_unique<QProcess>();
        process->start(QStringLiteral(KURBO_BIN "/kurboctl"),
                       {u"punch"_q, path, u"--staff"_q, code(puncher), u"--password"_q, u"pw"_q, u"enter"_q, u"--at"_q,
                        slashDate(dayOfRound(round)) + u" 09:00"_q, u"--app-folder"_q, desk.folder.path()});
        return process;
    }

    // All punch in each round; staff and day of those that came to their end. A third is killed at any moment.
    QStringList punchAll(bool killing) {
        QRandomGenerator random(20260415);
        QStringList done;
        for (int round = 0; round < rounds; ++round) {
            std::vector<std::unique_ptr<QProcess>> running;
            for (int puncher = 0; puncher < clients; ++puncher) running.push_back(started(puncher, round));
            for (int puncher = 0; puncher < clients; ++puncher) {
                QProcess& process = *running[static_cast<std::size_t>(puncher)];
                const int patience = killing && puncher % 3 == 0 ? static_cast<int>(random.bounded(1, 25)) : 60000;
                const bool ended = process.state() == QProcess::NotRunning || process.waitForFinished(patience);
                EXPECT_TRUE(ended || killing);
                if (!ended) process.kill();
                EXPECT_TRUE(process.state() == QProcess::NotRunning || process.waitForFinished(60000));
                if (process.exitStatus() != QProcess::NormalExit) continue;
                EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
                done.append(code(puncher) + dateId(dayOfRound(round)));
            }
        }
        return done;
    }
};

} // namespace

TEST_F(ManyClients, PunchAtTheSameMoment) {
    EXPECT_EQ(punchAll(false).size(), clients * rounds);
    // Ids are 1, 2, 3 ... without a gap exactly when none was given twice and no row was lost.
    EXPECT_TRUE(checkDatabase(path).isEmpty());
    connection.open(path, databasePassword());
    EXPECT_EQ(count(u"T02_Kurbo"_q), clients * rounds);
    EXPECT_EQ(count(u"(SELECT DISTINCT F_User, F_DateID FROM T02_Kurbo)"_q), clients * rounds);
    EXPECT_EQ(asked(u"SELECT Max(F_KurboID) FROM T02_Kurbo"_q).toInt(), clients * rounds);
    connection.close();
    EXPECT_FALSE(QFileInfo::exists(desk.file(u"store.ldb"_q)));
}

TEST_F(ManyClients, AreKilledAtAnyMoment) {
    const QStringList done = punchAll(true);
    EXPECT_LT(done.size(), clients * rounds) << "some were killed";
    EXPECT_TRUE(checkDatabase(path).isEmpty());
    connection.open(path, databasePassword());
    for (const QString& punch : done)
        EXPECT_EQ(asked(u"SELECT Count(*) FROM T02_Kurbo WHERE F_User & F_DateID = '%1'"_q.arg(punch)), u"1"_q);
}

} // namespace kurbo::test
