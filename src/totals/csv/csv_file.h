#pragma once

#include "base/guard.h"
#include "totals/csv/csv_record.h"

#include <QStringList>

#include <optional>

namespace kurbo {

// Replaces the file by these months in one step, and gives their number. After a failure, which is reported, it gives
// -1 and the old file stays; one that is locked, or protected from writing, is such a failure.
[[nodiscard]] int CsvSaveTotal(const Context& context, const QString& file, const QList<MonthRecord>& months);

// The months of a file; nothing after a failure, which is reported.
[[nodiscard]] std::optional<QList<MonthRecord>> ReadCsvFile(const Context& context, const QString& file);

// At most 100 files at one load: more are refused with a message.
[[nodiscard]] bool mayLoadCsv(const Context& context, qsizetype files);

// A month and the file that it comes from.
struct LoadedMonth {
    QString file;
    MonthRecord record;
};

// The months of all files in their order. Nothing when the files are too many, when one of them can't be read, and when
// the months are more than 200; each is told.
[[nodiscard]] std::optional<QList<LoadedMonth>> loadCsv(const Context& context, const QStringList& files);

} // namespace kurbo
