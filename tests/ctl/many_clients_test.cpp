#include "base/system/files.h"
#include "store/file/database_file.h"
#include "support/kurboctl.h"
#include "support/sample_company.h"

#include <QFileInfo>
#include <QRandomGenerator>

#include <map>
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
            connection.execute(u"INSERT INTO C03_Staff (F_StaffCode, F_Section, F_Display) VALUES (?, 'S01', True)"_q,
                               {code(i)});
            connection.execute(u"INSERT INTO M02_StaffInfo (F_StaffCode, F_Password, F_CloseDay, F_Access) "
                               "VALUES (?, 'pw', 31, 1)"_q,
                               {code(i)});
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

    // Ids are 1, 2, 3 ... without a gap exactly when none was given twice and no row was lost.
    void expectRows(int expected) {
        EXPECT_TRUE(checkDatabase(path).isEmpty());
        connection.open(path, databasePassword());
        EXPECT_EQ(count(u"T02_Kurbo"_q), expected);
        EXPECT_EQ(asked(u"SELECT Count(*) FROM (SELECT DISTINCT F_User, F_DateID FROM T02_Kurbo)"_q).toInt(), expected);
        EXPECT_EQ(asked(u"SELECT Max(F_KurboID) FROM T02_Kurbo"_q).toInt(), expected);
        connection.close();
        EXPECT_FALSE(QFileInfo::exists(desk.file(u"store.ldb"_q)));
    }
};

} // namespace

TEST_F(ManyClients, PunchAtTheSameMoment) {
    for (int round = 0; round < rounds; ++round) {
        std::vector<std::unique_ptr<QProcess>> running;
        for (int puncher = 0; puncher < clients; ++puncher) running.push_back(started(puncher, round));
        for (const auto& process : running) {
            ASSERT_TRUE(process->state() == QProcess::NotRunning || process->waitForFinished(60000));
            EXPECT_EQ(process->exitCode(), 0) << process->readAllStandardError().toStdString();
        }
    }
    expectRows(clients * rounds);
}

TEST_F(ManyClients, AreKilledAtAnyMoment) {
    QRandomGenerator random(20260415);
    std::map<QString, int> done; // by "staff day"
    for (int round = 0; round < rounds; ++round) {
        std::vector<std::unique_ptr<QProcess>> running;
        for (int puncher = 0; puncher < clients; ++puncher) running.push_back(started(puncher, round));
        for (int puncher = 0; puncher < clients; ++puncher) {
            auto& process = *running[static_cast<std::size_t>(puncher)];
            if (puncher % 3 == 0 && !process.waitForFinished(static_cast<int>(random.bounded(1, 25)))) process.kill();
            ASSERT_TRUE(process.state() == QProcess::NotRunning || process.waitForFinished(60000));
            const bool ended = process.exitStatus() == QProcess::NormalExit;
            if (!ended) continue;
            EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
            ++done[code(puncher) + u' ' + dateId(dayOfRound(round))];
        }
    }
    EXPECT_LT(done.size(), clients * rounds) << "some were killed";
    EXPECT_TRUE(checkDatabase(path).isEmpty());
    connection.open(path, databasePassword());
    for (const auto& [punch, times] : done)
        EXPECT_EQ(asked(u"SELECT Count(*) FROM T02_Kurbo WHERE F_User = '%1' AND F_DateID = '%2'"_q.arg(
                      punch.section(u' ', 0, 0), punch.section(u' ', 1))),
                  u"1"_q);
}

} // namespace kurbo::test
