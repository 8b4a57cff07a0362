#pragma once

#include "store/client.h"
#include "support/desk.h"

namespace kurbo::test {

// Makes a database with a little company in it: section S01 with 1001 (ordinary right, enter delay 30 s, leave gain
// 60 s), 1002 (superior), 1003 (no right) and 1004 (not displayed), the calendar of 2026, and the administrator.
// Passwords are "kurbo1".
void makeSampleCompany(const QString& path);

// A desk with such a database, open, and a client that will open it too.
class SampleCompany : public ::testing::Test {
  protected:
    SampleCompany();

    // One row of the person, with times of the day as "hh:nn" (empty for none) and the three leaves (empty for none).
    void addCard(int id, Day day, const QString& enter, const QString& leave, const QString& paid = {},
                 const QString& staff = QStringLiteral("1001"));
    // A row of a table: names of fields without their "F_", and values, each parted by commas.
    void insert(const char* table, const char* fields, const QString& values);
    // First column of the first row as text, "-" for Null, empty without a row.
    [[nodiscard]] QString asked(const QString& statement);
    [[nodiscard]] int count(const QString& table);

    Desk desk;
    QString path = desk.file(QStringLiteral("store.mdb"));
    Connection connection;
    Client client{desk.context};
    Day today = desk.clock.today();
};

} // namespace kurbo::test
