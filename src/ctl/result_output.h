#pragma once

#include "store/rows.h"

#include <QString>

namespace kurbo {

enum class Format { Table, Tsv, Csv, Json };

// "table" (also for no word), "tsv", "csv" or "json". Throws WrongUse.
[[nodiscard]] Format formatNamed(const QString& name);

// Prints a SELECT's rows on standard output. JSON is one line, an array of objects with the columns in their order;
// the other forms begin with the columns' names. Dates stand as they are stored, Null as null or nothing.
void print(Rows& rows, Format format);

// The same for rows of texts; not for JSON.
void printRows(const QStringList& headings, const QList<QStringList>& rows, Format format);

// JSON of a text, of an array of texts, and of an array of such arrays.
[[nodiscard]] QString jsonText(const QString& text);
[[nodiscard]] QString jsonTexts(const QStringList& texts);
[[nodiscard]] QString jsonTable(const QList<QStringList>& rows);

} // namespace kurbo
