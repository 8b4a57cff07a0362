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

} // namespace kurbo
