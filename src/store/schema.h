#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <string_view>

namespace kurbo {

// "KRBO" in the file's header tells our files from any other; the version rises with every change of the tables.
inline constexpr int applicationId = 0x4B52424F;
inline constexpr int schemaVersion = 1;
// The declared type of columns that hold date and time as "yyyy-mm-dd hh:nn:ss".
inline constexpr std::string_view dateTimeType = "DATETIME_TEXT";

// All tables, indexes and the seal of an empty database, in the engine's SQL.
[[nodiscard]] QList<QByteArray> schemaStatements(const QString& password);
// Names of the sixteen tables.
[[nodiscard]] QStringList tableNames();
// The names of the indexes that are made beside those of the keys.
[[nodiscard]] QStringList indexNames();
// The fields that tell a row of the table from all others.
[[nodiscard]] QStringList keyOf(const QString& table);

// Whether `password` is the one behind the salted hash in `seal`.
[[nodiscard]] bool sealMatches(const QString& seal, const QString& password);

} // namespace kurbo
