#pragma once

#include "store/client.h"
#include "store/file/database_file.h"
#include "support/scripted_prompts.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <array>

namespace kurbo {

using test::ScriptedPrompts;

inline QString u8(const char* text) {
    return QString::fromUtf8(text);
}

// A small company in a folder of its own, on Friday, 2026/11/20 08:55:12.
class Office : public ::testing::Test {
  protected:
    Office() {
        client.DbPath = folder.filePath(QStringLiteral("store.mdb"));
        createDatabase(client.DbPath);
        Connection connection;
        connection.open(client.DbPath, databasePassword());
        for (const char* statement : company) connection.execute(u8(statement));
    }

    // The first value of a question to the database, as text.
    [[nodiscard]] QString stored(const char* question) const {
        Connection connection;
        connection.open(client.DbPath, databasePassword());
        const auto value = connection.firstValue(u8(question));
        return value ? value->text() : QStringLiteral("no row");
    }

    void execute(const char* statement) const {
        Connection connection;
        connection.open(client.DbPath, databasePassword());
        connection.execute(u8(statement));
    }

    QTemporaryDir folder;
    ScriptedPrompts prompts;
    FixedClock clock{*parseSlashMoment(u"2026/11/20 08:55:12")};
    Paths paths = pathsIn(folder.path());
    NoProgress progress;
    Context context{prompts, clock, paths, progress};
    Client client{context};

  private:
    static constexpr std::array company{
        "INSERT INTO C02_Section (F_SectionCode, F_SectionName, F_DB, F_Order, F_Display) "
        "VALUES ('S1', '総務部', 'カレントデータベース', 1, -1)",
        "INSERT INTO C03_Staff (F_StaffCode, F_StaffName, F_Section, F_Order, F_Display) "
        "VALUES ('P1', '佐藤', 'S1', 1, -1)",
        "INSERT INTO C03_Staff (F_StaffCode, F_StaffName, F_Section, F_Order, F_Display) "
        "VALUES ('P2', '鈴木', 'S1', 2, -1)",
        "INSERT INTO M02_StaffInfo (F_StaffCode, F_Password, F_Access, F_EnterDelay, F_LeaveGain) "
        "VALUES ('P1', 'pw1', 1, 60, 0)",
        "INSERT INTO M02_StaffInfo (F_StaffCode, F_Password) VALUES ('P2', 'pw2')",
        "INSERT INTO M08_Access (F_AccessCode, F_AccessName, F_Section, F_ReadMyKurbo) "
        "VALUES (1, '一般', 'MySection', -1)",
        "INSERT INTO T01_Calendar (F_DateID, F_Date, F_Holiday) VALUES ('20261120', #2026/11/20#, '創立記念日')",
    };
};

} // namespace kurbo
