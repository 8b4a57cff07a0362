#pragma once

#include <QString>

namespace kurbo {

// The password that every database of the system carries.
[[nodiscard]] inline QString databasePassword() {
    return QStringLiteral("kiso4726");
}

// The value of C02_Section.F_DB for a section that lives in the very same file.
[[nodiscard]] inline QString currentDatabase() {
    return QStringLiteral("カレントデータベース");
}

// Makes a database with all tables, the reserved records and the administrator "ADMIN", whose password is "ADMIN".
// Throws a Fault, also for a file that is there already, and then leaves nothing behind.
void createDatabase(const QString& path);

// A whole copy of a database over `target`, taken by the engine, put in place in one step; nothing where both are one
// file. Throws a Fault and leaves the old file.
void copyDatabase(const QString& path, const QString& target);

// Empty when the file is whole; otherwise what is wrong with it, a line each. Throws a Fault when it can't be read.
[[nodiscard]] QStringList checkDatabase(const QString& path);

} // namespace kurbo
